#include "materials/CTurbulenceNode.h"

#include "xml/CZelXMLAdd.h"
#include "xml/CZelXMLGet.h"
#include "xml/CZelXMLIO.h"

namespace OvZel {

void CTurbulenceNode::addTo(CZelXMLIO&, const CZelXMLAdd& out) const
{
    out.AddCoord3D("Origin", mValues.origin);
    out.AddCoord3D("Amplitude", mValues.amplitude);
    out.AddCoord3D("Direction", mValues.direction);
    out.AddDouble("Size", mValues.size);
    out.AddTable("Table", *mTable);
}

void CTurbulenceNode::getFrom(CZelXMLIO& io, const CZelXMLGet& in)
{
    mValues.origin = in.GetPoint("Origin", io.getMgrRef());
    mValues.amplitude = in.GetVector("Amplitude", io.getMgrRef());
    mValues.direction = in.GetDirection("Direction", io.getMgrRef());
    mValues.size = in.GetDouble("Size");
    in.GetTable("Table", *mTable);
}

} // namespace OvZel
