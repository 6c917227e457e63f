#include "tools/showParts.h"

#include "tools/showValues.h"

#include <zel/IZelMgr.h>

namespace tool {

using nlohmann::ordered_json;

static constexpr const char* kLightTypes[] = {"point", "spot", "parallel"};

static ordered_json lightOutline(OvZel::IZelLight& light, const CNames& groups)
{
    ordered_json object = named(light);
    object["type"] = word(kLightTypes, light.getType());
    object["active"] = light.getActive();
    object["power"] = light.getPower();
    object["color"] = colorText(light.getColor());
    object["position"] = pointValue(light.getPosition());
    object["groups"] = nameList(*light.getLightsGroups(), groups);
    return object;
}

void showLights(OvZel::IZelMgr& document, ordered_json& outline)
{
    const CNames groups(*document.getLightsGroups());
    outline["lights"] = outlines(*document.getLights(), [&](OvZel::IZelLight& light) {
        return lightOutline(light, groups);
    });
    outline["lightsGroups"] = outlines(*document.getLightsGroups(), named);
}

} // namespace tool
