#include "animation/CZelBezierPoint.h"

#include "xml/CZelXMLAdd.h"
#include "xml/CZelXMLGet.h"

namespace OvZel {

namespace {

/// A vector that fails is left at the origin.
void getVector(const CZelXMLGet& in, OrvaneXML::CXMLTag tag, CZelPoint& vector)
{
    vector = {};
    vector = CZelXMLGet(in.FindElement(tag)).GetCoord3D();
}

} // namespace

OrvaneXML::XIXMLElement* CZelBezierPoint::addXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element)
{
    OrvaneXML::XIXMLElement* child = CZelXMLAdd(element).AddElement("Bezier.Point");
    addTo(io, CZelXMLAdd(child));
    return child;
}

bool CZelBezierPoint::getXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element)
{
    getFrom(io, CZelXMLGet(CZelXMLGet(element).GetElement("Bezier.Point")));
    return true;
}

void CZelBezierPoint::addTo(CZelXMLIO&, const CZelXMLAdd& out) const
{
    out.AddCoord3D("Position", mPosition);
    out.AddCoord3D("CPBefore", mCPBefore);
    out.AddCoord3D("CPAfter", mCPAfter);
    out.AddBoolean("AreLocked", mAreLocked);
}

void CZelBezierPoint::getFrom(CZelXMLIO&, const CZelXMLGet& in)
{
    getVector(in, "Position", mPosition);
    getVector(in, "CPBefore", mCPBefore);
    getVector(in, "CPAfter", mCPAfter);
    mAreLocked = in.IsElement("AreLocked");
}

} // namespace OvZel
