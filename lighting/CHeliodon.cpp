#include "lighting/CHeliodon.h"

#include <algorithm>
#include <cmath>

namespace OvZel {

CHeliodon::CHeliodon(IZelObjectLinkRef* owner)
    : TZelCOMObjLinkRef(owner), mClouds(new CZelClouds(this)), mFog(new CZelFog(this))
{
    setName("Heliodon");
}

void CHeliodon::setNorthAngle(double angle)
{
    if (std::isinf(angle) && angle > 0.0)
        mNorthAngle = 0.0;
    else if (angle > 360.0)
        mNorthAngle = std::fmod(std::trunc(angle), 360.0);
    else if (angle < 0.0)
        mNorthAngle = angle + 360.0; // once: files rely on what is left negative
    else
        mNorthAngle = angle;
}

void CHeliodon::setShadowBlur(std::int32_t level)
{
    mShadowBlur = std::clamp(level, 0, kShadowBlurMost);
    if (mShadowBlur != level)
        warn("IZelHeliodon::setShadowBlur: invalid blur level");
}

CZelColor CHeliodon::getColor(std::uint32_t index) const
{
    if (index < mColors.size())
        return mColors[index];
    warn("IZelHeliodon::getColor: bad index");
    return mColors[0];
}

void CHeliodon::setColor(std::uint32_t index, const CZelColor& color)
{
    if (index < mColors.size())
        mColors[index] = color;
    else
        warn("IZelHeliodon::setColor: bad index");
}

} // namespace OvZel
