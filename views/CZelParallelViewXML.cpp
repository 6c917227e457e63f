#include "views/CZelParallelView.h"

#include "xml/CZelXMLAdd.h"
#include "xml/CZelXMLGet.h"
#include "xml/CZelXMLIO.h"

namespace OvZel {

namespace {

constexpr CZelLabel kTypes[] = {{"Front", 0}, {"Plan", 1}, {"Axono", 2}, {nullptr, 0}};

} // namespace

OrvaneXML::XIXMLElement* CZelParallelView::addXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element)
{
    OrvaneXML::XIXMLElement* child = CZelXMLAdd(element).AddElement("Parallel.View");
    addTo(io, CZelXMLAdd(child));
    return child;
}

bool CZelParallelView::getXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element)
{
    getFrom(io, CZelXMLGet(CZelXMLGet(element).GetElement("Parallel.View")));
    return true;
}

void CZelParallelView::addTo(CZelXMLIO& io, const CZelXMLAdd& out) const
{
    CZelXMLAdd(out.AddElement("Name")).AddAttribute("en", getName());
    out.AddAttributeLabel("PV.Type", kTypes, mType);
    out.AddInteger("View.Flags", mViewFlags);
    out.AddDouble("North.Angle", mNorthAngle);
    out.AddDouble("Size", mSize);
    out.AddCoord3D("Position", mPosition);
    out.AddCoord3D("Target", mTarget);
    getViewInfo()->addTo(io, CZelXMLAdd(out.AddElement("View.Info")));
    getViewOptions()->addTo(io, CZelXMLAdd(out.AddElement("Options")));
    out.AddBoolean("Special.Shading", mSpecialShading);
}

void CZelParallelView::getFrom(CZelXMLIO& io, const CZelXMLGet& in)
{
    setName(in.GetAttributeLanguage("Name"));
    mType = in.GetAttributeLabel("PV.Type", kTypes);
    mViewFlags = in.GetInteger("View.Flags");
    mNorthAngle = in.GetDouble("North.Angle");
    mSize = in.GetDouble("Size");
    mPosition = in.GetPoint("Position", io.getMgrRef());
    mTarget = in.GetPoint("Target", io.getMgrRef());
    // Both came into the format together.
    if (in.IsElement("View.Info")) {
        getViewInfo()->getFrom(io, CZelXMLGet(in.GetElement("View.Info")));
        getViewOptions()->getFrom(io, CZelXMLGet(in.GetElement("Options")));
    }
    mSpecialShading = in.IsElement("Special.Shading");
}

} // namespace OvZel
