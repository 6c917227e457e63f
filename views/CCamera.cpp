#include "views/CCamera.h"

#include <cmath>

namespace OvZel {

namespace {

constexpr double kTwoPi = 6.283185307179586;
/// Up to here step by step, so that the usual rolls keep their last digits; beyond it the steps
/// would be many.
constexpr double kStepwise = 10000.0;

double wrapped(double roll)
{
    if (std::isnan(roll))
        return roll;
    if (std::isinf(roll))
        return 0.0;
    if (std::fabs(roll) > kStepwise)
        roll = std::fmod(roll, kTwoPi);
    while (roll < 0.0)
        roll += kTwoPi;
    while (roll > kTwoPi)
        roll -= kTwoPi;
    return roll;
}

} // namespace

CCamera::CCamera(IZelObjectLinkRef* owner) : TZelViewBasic(owner)
{
    setName("View 0");
}

void CCamera::setRoll(double roll)
{
    mRoll = wrapped(roll);
}

void CCamera::setFocal(double focal)
{
    mFocal = focal;
    // A camera that belongs to no document, or has outlived it, keeps any value.
    CZelMgrRef* target = getWarningTarget();
    if (target == nullptr || target->getMgr() == nullptr)
        return;
    mFocal = kFocal.clip(focal);
    if (mFocal != focal)
        target->warning("Method setFocal has clipped a value out of range.");
}

} // namespace OvZel
