#include "objects/CZelInternalComponentInstance.h"

#include "objects/renewed.h"

namespace OvZel {

CZelInternalComponentInstance::CZelInternalComponentInstance(CZelObjectInstance& instance,
                                                             CZelXMLIO& io, const CZelXMLGet& data)
    : mInstance(instance)
{
    if (data.GetOptionalAttribute("Component.UUID") != nullptr)
        mComponentUUID = data.GetUUID("Component.UUID");
    if (data.IsElement("Properties"))
        mProperties.getItems(io, data.GetElement("Properties"), "Property", &mInstance);
}

void CZelInternalComponentInstance::save(CZelXMLIO& io, const CZelXMLAdd& data)
{
    data.AddUUID(renewedAttribute(data, "Component.UUID"), mComponentUUID);
    mProperties.addItems(io, data.ReuseElement("Properties"), "Property");
}

} // namespace OvZel
