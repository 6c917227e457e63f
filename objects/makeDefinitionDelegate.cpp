#include "objects/makeDefinitionDelegate.h"

#include "objects/C3DPlant.h"
#include "objects/CZelAnimatedObject.h"
#include "objects/CZelObjectLight.h"
#include "objects/CZelZelObjectDefinition.h"

#include <string_view>

namespace OvZel {

std::unique_ptr<IObjectDelegate> makeDefinitionDelegate(CZelZelObjectDefinition& definition,
                                                        CZelXMLIO& io, const CZelXMLGet& data)
{
    const std::string_view text = definition.getClass();
    if (text == "3DPlant" || text == "3DPlantGroupInstances")
        return std::make_unique<C3DPlant>(definition, io, data);
    if (text == "LightObject")
        return std::make_unique<CZelObjectLight>(definition);
    if (text == "AnimatedObject")
        return std::make_unique<CZelAnimatedObject>(definition, io, data);
    return nullptr;
}

} // namespace OvZel
