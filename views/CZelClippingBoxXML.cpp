#include "views/CZelClippingBox.h"

#include "xml/CZelXMLAdd.h"
#include "xml/CZelXMLGet.h"
#include "xml/CZelXMLIO.h"

namespace OvZel {

OrvaneXML::XIXMLElement* CZelClippingBox::addXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element)
{
    OrvaneXML::XIXMLElement* child = CZelXMLAdd(element).AddElement("Clipping.Box");
    addTo(io, CZelXMLAdd(child));
    return child;
}

bool CZelClippingBox::getXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element)
{
    getFrom(io, CZelXMLGet(CZelXMLGet(element).GetElement("Clipping.Box")));
    return true;
}

void CZelClippingBox::addTo(CZelXMLIO&, const CZelXMLAdd& out) const
{
    out.AddCoord3D("Minimum", mMinimum);
    out.AddCoord3D("Maximum", mMaximum);
    out.AddCoord3D("Pivot", mPivot);
    out.AddBoolean("Visible", mVisible);
    out.AddBoolean("Active", mActive);
    out.AddDouble("Angle", mAngle);
}

void CZelClippingBox::getFrom(CZelXMLIO& io, const CZelXMLGet& in)
{
    mMinimum = in.GetPoint("Minimum", io.getMgrRef());
    // Older files have no pivot; theirs is the one that goes with the maximum.
    setMaximum(in.GetPoint("Maximum", io.getMgrRef()));
    if (in.IsElement("Pivot"))
        mPivot = in.GetPoint("Pivot", io.getMgrRef());
    mVisible = in.IsElement("Visible");
    mActive = in.IsElement("Active");
    if (in.IsElement("Angle"))
        mAngle = in.GetDouble("Angle");
}

} // namespace OvZel
