#include "tools/checkParts.h"

#include "tools/CFindings.h"
#include "tools/CNames.h"

#include <zel/IZelMgr.h>

#include <map>

namespace tool {

static constexpr std::int32_t kSpot = 1;

static void checkLight(OvZel::IZelLight& light, const CNames& groups, CFindings& findings)
{
    const std::string name = "light " + idText(*light.getBasicData()->getId()) + " \"" +
                             light.getBasicData()->getName() + "\"";
    forEach(*light.getLightsGroups(), [&](OvZel::CZelUUID& id, std::int32_t) {
        if (groups.lacks(id))
            findings.add("W114", name + " is of the group " + idText(id) + ", which isn't there");
    });
    if (light.getType() == kSpot && light.getConeAngle() == 0.0)
        findings.add("W115", name + " is a spot with a cone of 0");
}

static void checkHeliodons(OvZel::IZelMgr& document, CFindings& findings)
{
    std::map<std::string, int> nbWithName;
    forEach(*document.getHeliodons(), [&](OvZel::IZelHeliodon& heliodon, std::int32_t) {
        const std::string name = heliodon.getBasicData()->getName();
        if (++nbWithName[name] == 2)
            findings.add("W116", "more than one heliodon has the name \"" + name + "\"");
    });
}

void checkLights(OvZel::IZelMgr& document, CFindings& findings)
{
    const CNames groups(*document.getLightsGroups());
    const auto check = [&](OvZel::IZelLight& light, std::int32_t) {
        checkLight(light, groups, findings);
    };
    forEach(*document.getLights(), check);
    forEach(*document.getObjectInstances(), [&](OvZel::IZelObjectInstance& each, std::int32_t) {
        if (OvZel::IZelZelObjectInstance* lamp = each.asZelObjectInstance())
            forEach(*lamp->getLights(), check);
    });
    checkHeliodons(document, findings);
}

} // namespace tool
