#include "views/CViewObject.h"

#include "xml/CZelXMLAdd.h"
#include "xml/CZelXMLGet.h"
#include "xml/CZelXMLIO.h"

namespace OvZel {

OrvaneXML::XIXMLElement* CViewObject::addXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element)
{
    OrvaneXML::XIXMLElement* child = CZelXMLAdd(element).AddElement("View.Object");
    addTo(io, CZelXMLAdd(child));
    return child;
}

bool CViewObject::getXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element)
{
    getFrom(io, CZelXMLGet(CZelXMLGet(element).GetElement("View.Object")));
    return true;
}

void CViewObject::addTo(CZelXMLIO& io, const CZelXMLAdd& out) const
{
    CZelXMLAdd(out.AddElement("Name")).AddAttribute("en", getName());
    out.AddInteger("View.Flags", mViewFlags);
    out.AddDouble("Focal", mFocal);
    out.AddCoord3D("Center", mCenter);
    out.AddDouble("Radius", mRadius);

    const CZelXMLAdd horizontal(out.AddElement("Horizontal"));
    horizontal.AddInteger("Angle", mHorizontalAngle);
    horizontal.AddInteger("Step", static_cast<std::int32_t>(mHorizontalStep));
    horizontal.AddInteger("Shift", mHorizontalShift);
    horizontal.AddDouble("Start", mHorizontalStart);

    const CZelXMLAdd vertical(out.AddElement("Vertical"));
    vertical.AddInteger("Angle", mVerticalAngle);
    vertical.AddInteger("Step", static_cast<std::int32_t>(mVerticalStep));
    vertical.AddInteger("Shift", mVerticalShift);
    vertical.AddDouble("Start", mVerticalStart);

    out.AddInteger("Origin.Angle", mOriginAngle);
    getViewInfo()->addTo(io, CZelXMLAdd(out.AddElement("View.Info")));
    getViewOptions()->addTo(io, CZelXMLAdd(out.AddElement("Options")));
}

void CViewObject::getFrom(CZelXMLIO& io, const CZelXMLGet& in)
{
    setName(in.GetAttributeLanguage("Name"));
    setViewFlags(in.GetInteger("View.Flags"));
    setFocal(in.GetDouble("Focal"));
    setCenter(in.GetPoint("Center", io.getMgrRef()));
    setRadius(in.GetDouble("Radius"));

    const CZelXMLGet horizontal(in.GetElement("Horizontal"));
    setHorizontalAngle(horizontal.GetInteger("Angle"));
    setHorizontalStep(static_cast<std::uint32_t>(horizontal.GetInteger("Step")));
    setHorizontalShift(horizontal.GetInteger("Shift"));
    setHorizontalStart(horizontal.GetDouble("Start"));

    const CZelXMLGet vertical(in.GetElement("Vertical"));
    setVerticalAngle(vertical.GetInteger("Angle"));
    setVerticalStep(static_cast<std::uint32_t>(vertical.GetInteger("Step")));
    setVerticalShift(vertical.GetInteger("Shift"));
    setVerticalStart(vertical.GetDouble("Start"));

    setOriginAngle(in.GetInteger("Origin.Angle"));
    getViewInfo()->getFrom(io, CZelXMLGet(in.GetElement("View.Info")));
    getViewOptions()->getFrom(io, CZelXMLGet(in.GetElement("Options")));
}

} // namespace OvZel
