#include "objects/CZelZelObjectInstance.h"

#include "objects/renewed.h"

namespace OvZel {

CZelZelObjectInstance::CZelZelObjectInstance(CZelObjectInstance& instance, CZelXMLIO& io,
                                             const CZelXMLGet& data)
    : mInstance(instance)
{
    if (data.GetOptionalAttribute("Current.Overload") != nullptr)
        mCurrentOverload = data.GetUUID("Current.Overload");
    if (data.GetOptionalAttribute("External.Definition.Id") != nullptr)
        mExternalDefinitionId = data.GetUUID("External.Definition.Id");
    if (data.IsElement("Properties"))
        mProperties.getItems(io, data.GetElement("Properties"), "Property", &mInstance);
    if (data.IsElement("Lights"))
        mLights.getItems(io, data.GetElement("Lights"), "Light", &mInstance);
}

void CZelZelObjectInstance::save(CZelXMLIO& io, const CZelXMLAdd& data)
{
    data.AddUUID(renewedAttribute(data, "Current.Overload"), mCurrentOverload);
    data.AddUUID(renewedAttribute(data, "External.Definition.Id"), mExternalDefinitionId);
    mProperties.addItems(io, data.ReuseElement("Properties"), "Property");
    mLights.addItems(io, data.ReuseElement("Lights"), "Light");
}

} // namespace OvZel
