#include "views/CAnimation.h"

#include "xml/listXML.h"

namespace OvZel {

OrvaneXML::XIXMLElement* CAnimation::addXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element)
{
    OrvaneXML::XIXMLElement* child = CZelXMLAdd(element).AddElement("Camera.Path");
    addTo(io, CZelXMLAdd(child));
    return child;
}

bool CAnimation::getXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element)
{
    getFrom(io, CZelXMLGet(CZelXMLGet(element).GetElement("Camera.Path")));
    return true;
}

void CAnimation::addTo(CZelXMLIO& io, const CZelXMLAdd& out) const
{
    CZelXMLAdd(out.AddElement("Name")).AddAttribute("en", mName.c_str());
    out.AddBoolean("View.Flags", mViewFlag);
    out.AddBoolean("Active", mActive);
    out.AddDouble("Movie.Duration", mDuration);
    out.AddInteger("Nb.Images.Extra", mNbXImage);
    out.AddBoolean("Speed.On", mSpeedOn);
    out.AddDouble("Speed", mSpeed);
    out.AddBoolean("Path.Closed", mPathClosed);
    addPoints(CZelXMLAdd(out.ReuseElement("Points")));
    addItems(io, out.ReuseElement("Camera.Keys"), "Camera.Key", *mKeys);
    getViewInfo()->addTo(io, CZelXMLAdd(out.AddElement("View.Info")));
    out.AddDouble("Current.Time", mCurrentTime);
}

void CAnimation::getFrom(CZelXMLIO& io, const CZelXMLGet& in)
{
    mName = in.GetAttributeLanguage("Name");
    mViewFlag = in.IsElement("View.Flags");
    mActive = in.IsElement("Active");
    setDuration(in.GetDouble("Movie.Duration"));
    setNbXImage(in.GetInteger("Nb.Images.Extra"));
    mSpeedOn = in.IsElement("Speed.On");
    mSpeed = in.GetDouble("Speed");
    mPathClosed = in.IsElement("Path.Closed");
    mPoints->removeAllObjects();
    getPoints(io, CZelXMLGet(in.GetElement("Points")));
    getRequiredItems(io, in, "Camera.Keys", "Camera.Key", *mKeys);
    getViewInfo()->getFrom(io, CZelXMLGet(in.GetElement("View.Info")));
    mCurrentTime = in.GetDouble("Current.Time");
}

void CAnimation::addPoints(const CZelXMLAdd& out) const
{
    for (std::int32_t i = 0; i < mPoints->size(); ++i)
        out.AddCoord3D("Point", mPoints->data()[i]);
}

void CAnimation::getPoints(CZelXMLIO& io, const CZelXMLGet& in)
{
    for (OrvaneXML::XIXMLElement* child = in.FindElement("Point"); child != nullptr;
         child = child->GetNextSame()) {
        CZelPoint* point = mPoints->append();
        OvThrow::IfNULL(point);
        *point = CZelXMLGet(child).GetPoint(io.getMgrRef());
    }
}

} // namespace OvZel
