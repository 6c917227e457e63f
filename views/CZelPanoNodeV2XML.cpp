#include "views/CZelPanoNodeV2.h"

#include "xml/CZelXMLAdd.h"
#include "xml/CZelXMLGet.h"
#include "xml/CZelXMLIO.h"

namespace OvZel {

OrvaneXML::XIXMLElement* CZelPanoNodeV2::addXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element)
{
    OrvaneXML::XIXMLElement* child = CZelXMLAdd(element).AddElement("PanoramaV2.Node");
    addTo(io, CZelXMLAdd(child));
    return child;
}

bool CZelPanoNodeV2::getXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element)
{
    getFrom(io, CZelXMLGet(CZelXMLGet(element).GetElement("PanoramaV2.Node")));
    return true;
}

void CZelPanoNodeV2::addTo(CZelXMLIO&, const CZelXMLAdd& out) const
{
    out.AddUUID("UUID", *getId());
    CZelXMLAdd(out.AddElement("Name")).AddAttribute("en", getName());
    out.AddCoord3D("Position", mPosition);
    out.ReuseElement("Direct.Neighboring"); // always empty, and nobody reads it
    out.AddCoord3D("Direction", mDirection);
}

void CZelPanoNodeV2::getFrom(CZelXMLIO& io, const CZelXMLGet& in)
{
    if (!in.IsElement("Name") || !in.IsElement("Position"))
        return;
    if (io.getUUID() && in.GetOptionalAttribute("UUID") != nullptr) {
        const CZelUUID id = in.GetUUID("UUID");
        setId(&id);
    }
    setName(in.GetAttributeLanguage("Name"));
    mPosition = in.GetPoint("Position", io.getMgrRef());
    if (in.IsElement("Direction"))
        mDirection = in.GetDirection("Direction", io.getMgrRef());
}

} // namespace OvZel
