#include "animation/CZelSequence.h"

#include "xml/CZelXMLAdd.h"
#include "xml/CZelXMLGet.h"
#include "xml/CZelXMLIO.h"

namespace OvZel {

namespace {

// Two names for 2, of which the first is written, and none for 1.
constexpr CZelLabel kTargetTypes[] = {{"Fixed.Vertex", 0},
                                      {"Forward.Path", 2},
                                      {"Relative.Angle", 2},
                                      {"Object.Instance", 3},
                                      {nullptr, 0}};

} // namespace

OrvaneXML::XIXMLElement* CZelSequence::addXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element)
{
    OrvaneXML::XIXMLElement* child = CZelXMLAdd(element).AddElement("Sequence");
    addTo(io, CZelXMLAdd(child));
    return child;
}

bool CZelSequence::getXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element)
{
    getFrom(io, CZelXMLGet(CZelXMLGet(element).GetElement("Sequence")));
    return true;
}

void CZelSequence::addTo(CZelXMLIO& io, const CZelXMLAdd& out) const
{
    out.AddUUID("UUID", *getId());
    out.AddInteger("Start.Frame", mStartFrame);
    out.AddInteger("End.Frame", mEndFrame);
    CZelXMLAdd(out.AddElement("Name")).AddAttribute("en", getName());
    out.AddInteger("View.Flags", mViewFlags);
    out.AddDouble("Focal", mFocal);
    out.AddCoord3D("Position", mPosition);
    out.AddAttributeLabel("Target.Type", kTargetTypes, mTargetType);
    out.AddDouble("Target.Distance", mTargetDistance);
    out.AddDouble("Horizontal.Angle", mHorizontalAngle);
    out.AddDouble("Vertical.Angle", mVerticalAngle);
    out.AddCoord3D("Current.Path.Tangent", mPathTangent);
    out.AddCoord3D("Target", mTarget);
    out.AddDouble("Roll", mRoll);
    out.AddUUID("Object.UUID", mObjectId);
    out.AddBoolean("Architect.Flag", mArchitectFlag);
    getViewInfo()->addTo(io, CZelXMLAdd(out.AddElement("View.Info")));
    getViewOptions()->addTo(io, CZelXMLAdd(out.AddElement("Options")));
}

void CZelSequence::getFrom(CZelXMLIO& io, const CZelXMLGet& in)
{
    const CZelUUID id = in.GetUUID("UUID");
    setId(&id);
    mStartFrame = in.GetInteger("Start.Frame");
    mEndFrame = in.GetInteger("End.Frame");
    setName(in.GetAttributeLanguage("Name"));
    mViewFlags = in.GetInteger("View.Flags");
    setFocal(in.GetDouble("Focal"));
    mPosition = in.GetPoint("Position", io.getMgrRef());
    mTargetType = in.GetAttributeLabel("Target.Type", kTargetTypes);
    if (in.IsElement("Target.Distance"))
        mTargetDistance = in.GetDouble("Target.Distance");
    if (in.IsElement("Horizontal.Angle"))
        mHorizontalAngle = in.GetDouble("Horizontal.Angle");
    if (in.IsElement("Vertical.Angle"))
        mVerticalAngle = in.GetDouble("Vertical.Angle");
    if (in.IsElement("Current.Path.Tangent"))
        mPathTangent = in.GetDirection("Current.Path.Tangent", io.getMgrRef());
    mTarget = in.GetPoint("Target", io.getMgrRef());
    mRoll = in.GetDouble("Roll");
    if (in.GetOptionalAttribute("Object.UUID") != nullptr)
        mObjectId = in.GetUUID("Object.UUID");
    mArchitectFlag = in.IsElement("Architect.Flag");
    getViewInfo()->getFrom(io, CZelXMLGet(in.GetElement("View.Info")));
    getViewOptions()->getFrom(io, CZelXMLGet(in.GetElement("Options")));
}

} // namespace OvZel
