#include "views/CCamKey.h"

#include "xml/CZelXMLAdd.h"
#include "xml/CZelXMLGet.h"
#include "xml/CZelXMLIO.h"

namespace OvZel {

namespace {

constexpr CZelLabel kKeyTypes[] = {{"Timing", 0}, {"Path", 1},   {"Local", 2},
                                   {"Global", 3}, {"Target", 4}, {nullptr, 0}};

} // namespace

void CCamKey::addTo(CZelXMLIO&, const CZelXMLAdd& out) const
{
    out.AddDouble("Pitch", mPitch);
    out.AddDouble("Focal", mFocal);
    out.AddAttributeLabel("Key.Type", kKeyTypes, mKeyType);
    out.AddInteger("Fading.Duration", mFadingDuration);
    out.AddInteger("Fading.Nb.Images", mFadingImages);
    out.AddDouble("Horizontal.Angle", mHorizontalAngle);
    out.AddDouble("Vertical.Angle", mVerticalAngle);
    out.AddDouble("Anticipation", mAnticipation);
    out.AddInteger("Bezier.Section", mBezierSection);
    out.AddDouble("Bezier.T", mBezierT);
    out.AddInteger("Bezier.Transition", mBezierTransition);
    out.AddDouble("Bezier.Transition.T", mBezierTransitionT);
    out.AddCoord3D("Target", mTarget);
}

void CCamKey::getFrom(CZelXMLIO& io, const CZelXMLGet& in)
{
    setPitch(in.GetDouble("Pitch"));
    mFocal = in.GetDouble("Focal");
    mKeyType = in.GetAttributeLabel("Key.Type", kKeyTypes);
    mFadingDuration = in.GetInteger("Fading.Duration");
    mFadingImages = in.GetInteger("Fading.Nb.Images");
    mHorizontalAngle = in.GetDouble("Horizontal.Angle");
    mVerticalAngle = in.GetDouble("Vertical.Angle");
    setAnticipation(in.GetDouble("Anticipation"));
    setBezierSection(in.GetInteger("Bezier.Section"));
    setBezierT(in.GetDouble("Bezier.T"));
    setBezierTransition(in.GetInteger("Bezier.Transition"));
    setBezierTransitionT(in.GetDouble("Bezier.Transition.T"));
    mTarget = in.GetPoint("Target", io.getMgrRef());
}

} // namespace OvZel
