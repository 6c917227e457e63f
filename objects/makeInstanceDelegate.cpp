#include "objects/makeInstanceDelegate.h"

#include "objects/C3DPlantGroupInstances.h"
#include "objects/C3DPlantRef.h"
#include "objects/CZelAnimatedObjectInstance.h"
#include "objects/CZelBBObjectInstance.h"
#include "objects/CZelInternalComponentInstance.h"
#include "objects/CZelObjectLightRef.h"

#include <string_view>

namespace OvZel {

std::unique_ptr<IObjectDelegate> makeInstanceDelegate(CZelObjectInstance& instance, CZelXMLIO& io,
                                                      const CZelXMLGet& data)
{
    const std::string_view text = instance.getClass();
    if (text == "ModelObject")
        return std::make_unique<CZelInternalComponentInstance>(instance, io, data);
    if (text == "ZelObject")
        return std::make_unique<CZelZelObjectInstance>(instance, io, data);
    if (text == "3DPlant")
        return std::make_unique<C3DPlantRef>(instance, io, data);
    if (text == "Billboard")
        return std::make_unique<CZelBBObjectInstance>(instance, io, data);
    if (text == "LightObject")
        return std::make_unique<CZelObjectLightRef>(instance, io, data);
    if (text == "AnimatedObject")
        return std::make_unique<CZelAnimatedObjectInstance>(instance, io, data);
    if (text == "GroupInstances")
        return std::make_unique<CZelGroupInstances>(instance);
    if (text == "3DPlantGroupInstances")
        return std::make_unique<C3DPlantGroupInstances>(instance, data);
    return nullptr;
}

} // namespace OvZel
