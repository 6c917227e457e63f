#include "objects/CZelExternalDefinition.h"

#include "xml/listXML.h"

using OrvaneXML::XIXMLElement;

namespace OvZel {

XIXMLElement* CZelExternalDefinition::addXML(CZelXMLIO& io, XIXMLElement* element)
{
    const CZelXMLAdd out(CZelXMLAdd(element).AddElement("External.Definition"));
    addTo(io, out);
    return out.element();
}

bool CZelExternalDefinition::getXML(CZelXMLIO& io, XIXMLElement* element)
{
    getFrom(io, CZelXMLGet(CZelXMLGet(element).GetElement("External.Definition")));
    return true;
}

void CZelExternalDefinition::addTo(CZelXMLIO& io, const CZelXMLAdd& out) const
{
    out.AddUUID("UUID", *getId());
    out.AddText("URL", mURL.c_str());
    addItems(io, out.AddElement("Properties"), "Property", *mProperties);
}

void CZelExternalDefinition::getFrom(CZelXMLIO& io, const CZelXMLGet& in)
{
    if (io.getUUID() && in.GetOptionalAttribute("UUID") != nullptr) {
        const CZelUUID id = in.GetUUID("UUID");
        setId(&id);
    }
    if (in.IsElement("URL"))
        mURL = in.GetText("URL");
    if (in.IsElement("Properties"))
        getItems(io, in.GetElement("Properties"), "Property", *mProperties);
}

} // namespace OvZel
