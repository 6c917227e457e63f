#include "animation/CZel3DPath.h"

#include "xml/listXML.h"

namespace OvZel {

OrvaneXML::XIXMLElement* CZel3DPath::addXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element)
{
    OrvaneXML::XIXMLElement* child = CZelXMLAdd(element).AddElement("Path.3D");
    addTo(io, CZelXMLAdd(child));
    return child;
}

bool CZel3DPath::getXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element)
{
    getFrom(io, CZelXMLGet(CZelXMLGet(element).GetElement("Path.3D")));
    return true;
}

void CZel3DPath::addTo(CZelXMLIO& io, const CZelXMLAdd& out) const
{
    out.AddBoolean("Closed", mClosed);
    out.AddUUID("UUID", *getId());
    addItems(io, out.ReuseElement("Bezier.points"), "Bezier.Point", *mPoints); // sic
}

void CZel3DPath::getFrom(CZelXMLIO& io, const CZelXMLGet& in)
{
    mClosed = in.IsElement("Closed");
    const CZelUUID id = in.GetUUID("UUID");
    setId(&id);
    getOptionalItems(io, in, "Bezier.points", "Bezier.Point", *mPoints); // sic
}

} // namespace OvZel
