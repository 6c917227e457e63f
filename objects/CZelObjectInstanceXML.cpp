#include "objects/CZelObjectInstance.h"

#include "xml/readWhileItLasts.h"

#include <limits>

namespace OvZel {

namespace {

constexpr CZelLabel kAnimationBehaviors[] = {
    {"Normal", 0}, {"FollowOnPath", 1}, {"FollowOnPathXY", 2}, {nullptr, 0}};

void addEnglish(const CZelXMLAdd& out, OrvaneXML::CXMLTag tag, const char* text)
{
    CZelXMLAdd(out.AddElement(tag)).AddAttribute("en", text);
}

void addBox(const CZelXMLAdd& out, const CZelBox& box)
{
    const CZelXMLAdd child(out.AddElement("Bounding.Box"));
    child.AddCoord3D("Min.Point", box.minimum);
    child.AddCoord3D("Max.Point", box.maximum);
}

CZelBox getBox(const CZelXMLGet& in, const IZelMgrRef* mgrRef)
{
    // Existing readers leave this box behind when the file has none, and clients know it by that:
    // turned inside out, with the smallest positive number where the lowest one would be at home.
    constexpr double kLargest = std::numeric_limits<double>::max();
    constexpr double kSmallest = std::numeric_limits<double>::min();
    CZelBox box{{kLargest, kLargest, kLargest}, {kSmallest, kSmallest, kSmallest}};
    if (in.IsElement("Bounding.Box")) {
        const CZelXMLGet child(in.GetElement("Bounding.Box"));
        box.minimum = child.GetPoint("Min.Point", mgrRef);
        box.maximum = child.GetPoint("Max.Point", mgrRef);
    }
    return box;
}

} // namespace

OrvaneXML::XIXMLElement* CZelObjectInstance::addXML(CZelXMLIO& io, XIXMLElement* element)
{
    const CZelXMLAdd out(CZelXMLAdd(element).AddElement("Object.Instance"));
    addTo(io, out);
    return out.element();
}

bool CZelObjectInstance::getXML(CZelXMLIO& io, XIXMLElement* element)
{
    getFrom(io, CZelXMLGet(CZelXMLGet(element).GetElement("Object.Instance")));
    return true;
}

void CZelObjectInstance::addTo(CZelXMLIO& io, const CZelXMLAdd& out)
{
    saveDelegate(io);
    addEnglish(out, "Name", getName());
    addEnglish(out, "Class", getClass());
    out.AddUUID("Id", *getId());
    out.AddUUID("Attach.Id", mAttachId);
    out.AddCoord3D("Normal", mNormal);
    out.AddCoord3D("Translation", mTranslation);
    out.AddCoord3D("Rotation", mRotation);
    out.AddCoord3D("Scale", mScale);
    out.AddInteger("Triangle.Id", mTriangleId);
    out.AddCoord3D("Anchor.Position", mAnchorPosition);
    out.AddCoord3D("Up.Vector", mUpVector);
    out.AddAttributeLabel("Placement.Property", kPlacements, mPlacementProperty);
    out.AddDouble("Initial.Angle", mInitialAngle);
    addBox(out, mBoundingBox);
    out.AddInteger("UIValue", static_cast<std::int32_t>(getUIValue()));
    out.AddBoolean("Coordinates.Locked", mCoordinatesLocked);
    out.AddBoolean("Scale.Locked", mScaleLocked);
    out.AddCoord3D("Current.Path.Direction", mCurrentPathDirection);
    out.AddAttributeLabel("Animation.Behavior", kAnimationBehaviors, mAnimationBehavior);
    out.AddBoolean("Target", mTarget);
    out.AddDouble("Transparency", mTransparency);
    out.AddUUID("Layer.Id", mLayerId);
    out.AddBoolean("Materials.Differents", mMaterialsDifferents);
    out.AddBoolean("Visible", mVisible);
    out.AddUUID("Overload.Id", mOverloadId);
    out.AddBoolean("Optimised", mOptimised);
    out.AddBoolean("Sub.Instance", mSubInstance);
    mProperties.addItems(io, out.AddElement("Properties"), "Property");
    mData.copyInto(*out.element());
}

void CZelObjectInstance::getFrom(CZelXMLIO& io, const CZelXMLGet& in)
{
    const CZelXMLGet data(in.GetElement("Instance.Data"));
    mData.copyFrom(*data.element());
    setName(in.GetAttributeLanguage("Name"));
    const CZelUUID id = in.GetUUID("Id");
    setId(&id);
    mAttachId = in.GetUUID("Attach.Id");
    // Oldest first: a file ends where its version ended, and the rest keep their values.
    readWhileItLasts([&] {
        mNormal = in.GetDirection("Normal", io.getMgrRef());
        mTranslation = in.GetVector("Translation", io.getMgrRef());
        mRotation = in.GetVector("Rotation", io.getMgrRef());
        mScale = in.GetVector("Scale", io.getMgrRef());
        mTriangleId = in.GetInteger("Triangle.Id");
        mAnchorPosition = in.GetPoint("Anchor.Position", io.getMgrRef());
        mUpVector = in.GetDirection("Up.Vector", io.getMgrRef());
        mPlacementProperty = in.GetAttributeLabel("Placement.Property", kPlacements);
        mInitialAngle = in.GetDouble("Initial.Angle");
        mBoundingBox = getBox(in, io.getMgrRef());
        setUIValue(static_cast<std::uint32_t>(in.GetInteger("UIValue")));
        getLaterItems(io, in);
    });
    // Last, since the delegate reads the private data.
    changeClass(io.getMgrRef(), in.GetAttributeLanguage("Class"), data);
}

/// None of these is required, so that only a value that cannot be read ends the block here.
void CZelObjectInstance::getLaterItems(CZelXMLIO& io, const CZelXMLGet& in)
{
    mCoordinatesLocked = in.IsElement("Coordinates.Locked");
    mScaleLocked = in.IsElement("Scale.Locked");
    if (in.IsElement("Current.Path.Direction"))
        mCurrentPathDirection = in.GetDirection("Current.Path.Direction", io.getMgrRef());
    if (in.GetOptionalAttribute("Animation.Behavior") != nullptr)
        mAnimationBehavior = in.GetAttributeLabel("Animation.Behavior", kAnimationBehaviors);
    mTarget = in.IsElement("Target");
    // Older files spell it "Tansparency" (sic), and that one wins. We write only the other.
    if (in.IsElement("Tansparency"))
        setTransparency(in.GetDouble("Tansparency"));
    else if (in.IsElement("Transparency"))
        setTransparency(in.GetDouble("Transparency"));
    if (in.GetOptionalAttribute("Layer.Id") != nullptr)
        mLayerId = in.GetUUID("Layer.Id");
    mMaterialsDifferents = in.IsElement("Materials.Differents");
    mVisible = in.IsElement("Visible"); // absent is false; a new instance has true
    if (in.GetOptionalAttribute("Overload.Id") != nullptr)
        mOverloadId = in.GetUUID("Overload.Id");
    mOptimised = in.IsElement("Optimised");
    mSubInstance = in.IsElement("Sub.Instance");
    if (in.IsElement("Properties"))
        mProperties.getItems(io, in.GetElement("Properties"), "Property", link());
}

} // namespace OvZel
