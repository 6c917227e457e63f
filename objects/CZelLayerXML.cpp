#include "objects/CZelLayer.h"

using OrvaneXML::XIXMLElement;

namespace OvZel {

XIXMLElement* CZelLayer::addXML(CZelXMLIO& io, XIXMLElement* element)
{
    const CZelXMLAdd out(CZelXMLAdd(element).AddElement("Layer"));
    addTo(io, out);
    return out.element();
}

bool CZelLayer::getXML(CZelXMLIO& io, XIXMLElement* element)
{
    getFrom(io, CZelXMLGet(CZelXMLGet(element).GetElement("Layer")));
    return true;
}

void CZelLayer::addTo(CZelXMLIO&, const CZelXMLAdd& out) const
{
    out.AddUUID("UUID", *getId());
    CZelXMLAdd(out.AddElement("Name")).AddAttribute("en", getName());
    out.AddInteger("UI.Value", static_cast<std::int32_t>(getUIValue()));
}

void CZelLayer::getFrom(CZelXMLIO&, const CZelXMLGet& in)
{
    const CZelUUID id = in.GetUUID("UUID");
    setId(&id);
    setName(in.GetAttributeLanguage("Name"));
    if (in.IsElement("UI.Value"))
        setUIValue(static_cast<std::uint32_t>(in.GetInteger("UI.Value")));
}

} // namespace OvZel
