#include "lighting/CZelLightsGroup.h"

#include "xml/CZelXMLAdd.h"
#include "xml/CZelXMLGet.h"

namespace OvZel {

using OrvaneXML::XIXMLElement;

XIXMLElement* CZelLightsGroup::addXML(CZelXMLIO& io, XIXMLElement* element)
{
    const CZelXMLAdd out(CZelXMLAdd(element).AddElement("Lights.Group"));
    addTo(io, out);
    return out.element();
}

bool CZelLightsGroup::getXML(CZelXMLIO& io, XIXMLElement* element)
{
    getFrom(io, CZelXMLGet(CZelXMLGet(element).GetElement("Lights.Group")));
    return true;
}

void CZelLightsGroup::addTo(CZelXMLIO&, const CZelXMLAdd& out) const
{
    CZelXMLAdd(out.AddElement("Name")).AddAttribute("en", getName());
    out.AddUUID("ID", *getId());
    out.AddInteger("UI.Value", static_cast<std::int32_t>(getUIValue()));
}

void CZelLightsGroup::getFrom(CZelXMLIO&, const CZelXMLGet& in)
{
    setName(in.GetAttributeLanguage("Name"));
    // Lights name their groups by it, so it is always that of the file.
    const CZelUUID id = in.GetUUID("ID");
    setId(&id);
    if (in.IsElement("UI.Value"))
        setUIValue(static_cast<std::uint32_t>(in.GetInteger("UI.Value")));
}

} // namespace OvZel
