#include "views/CCamera.h"

#include "xml/CZelXMLAdd.h"
#include "xml/CZelXMLGet.h"
#include "xml/CZelXMLIO.h"

namespace OvZel {

namespace {

constexpr CZelLabel kTargetTypes[] = {{"Fixed.Vertex", 0}, {"On.Object", 1}, {nullptr, 0}};

} // namespace

OrvaneXML::XIXMLElement* CCamera::addXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element)
{
    OrvaneXML::XIXMLElement* child = CZelXMLAdd(element).AddElement("Perspective.View");
    addTo(io, CZelXMLAdd(child));
    return child;
}

bool CCamera::getXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element)
{
    getFrom(io, CZelXMLGet(CZelXMLGet(element).GetElement("Perspective.View")));
    return true;
}

void CCamera::addTo(CZelXMLIO& io, const CZelXMLAdd& out) const
{
    CZelXMLAdd(out.AddElement("Name")).AddAttribute("en", getName());
    out.AddInteger("View.Flags", mViewFlags);
    out.AddCoord3D("Position", mPosition);
    out.AddCoord3D("Target", mTarget);
    out.AddDouble("Roll", mRoll);
    out.AddDouble("Focal", mFocal);
    out.AddUUID("Object.Id", mObjectId);
    out.AddAttributeLabel("Target.type", kTargetTypes, mTargetType);
    getViewInfo()->addTo(io, CZelXMLAdd(out.AddElement("View.Info")));
    getViewOptions()->addTo(io, CZelXMLAdd(out.AddElement("Options")));
    mInsertionObject.addTo(io, CZelXMLAdd(out.ReuseElement("InsertionObject")));
    if (mUpIsSet)
        out.AddCoord3D("Up", mUp);
    out.AddBoolean("Architect.Flag", mArchitectFlag);
}

void CCamera::getFrom(CZelXMLIO& io, const CZelXMLGet& in)
{
    setName(in.GetAttributeLanguage("Name"));
    mViewFlags = in.GetInteger("View.Flags");
    mPosition = in.GetPoint("Position", io.getMgrRef());
    mTarget = in.GetPoint("Target", io.getMgrRef());
    setRoll(in.GetDouble("Roll"));
    setFocal(in.GetDouble("Focal"));
    if (in.GetOptionalAttribute("Object.Id") != nullptr)
        mObjectId = in.GetUUID("Object.Id");
    if (in.GetOptionalAttribute("Target.type") != nullptr)
        mTargetType = in.GetAttributeLabel("Target.type", kTargetTypes);
    getViewInfo()->getFrom(io, CZelXMLGet(in.GetElement("View.Info")));
    getViewOptions()->getFrom(io, CZelXMLGet(in.GetElement("Options")));
    if (in.IsElement("InsertionObject"))
        mInsertionObject.getFrom(io, CZelXMLGet(in.GetElement("InsertionObject")));
    if (in.IsElement("Up"))
        setUp(in.GetDirection("Up", io.getMgrRef()));
    mArchitectFlag = in.IsElement("Architect.Flag");
}

} // namespace OvZel
