#include "materials/CGlazingNode.h"

#include "xml/CZelXMLAdd.h"
#include "xml/CZelXMLGet.h"
#include "xml/CZelXMLIO.h"

namespace OvZel {

void CGlazingNode::addTo(CZelXMLIO&, const CZelXMLAdd& out) const
{
    out.AddDouble("X.Scale", mValues.xScale);
    out.AddDouble("Y.Scale", mValues.yScale);
    out.AddDouble("Flatness", mValues.flatness);
    out.AddBoolean("Tilt.Detect", mValues.tiltDetect);
    out.AddDouble("Tilt.Factor", mValues.tiltFactor);
    out.AddBoolean("Animation", mValues.animation);
    out.AddDouble("Speed", mValues.speed);
}

void CGlazingNode::getFrom(CZelXMLIO&, const CZelXMLGet& in)
{
    mValues.xScale = in.GetDouble("X.Scale");
    mValues.yScale = in.GetDouble("Y.Scale");
    mValues.flatness = in.GetDouble("Flatness");
    mValues.tiltDetect = in.IsElement("Tilt.Detect");
    mValues.tiltFactor = in.GetDouble("Tilt.Factor");
    mValues.animation = in.IsElement("Animation");
    // A speed that was saved with the animation off isn't kept.
    mValues.speed = mValues.animation ? in.GetDouble("Speed") : kSpeed;
}

} // namespace OvZel
