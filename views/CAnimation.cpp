#include "views/CAnimation.h"

namespace OvZel {

CAnimation::CAnimation(IZelObjectLinkRef* owner)
    : TZelXMLFrontierObjLinkRef(owner), mPoints(new CPoints(this)), mKeys(new CKeys(this)),
      mViewInfo(new CZelViewInfo(owner))
{
}

void CAnimation::setDuration(double duration)
{
    mDuration = duration;
    CZelMgrRef* target = mgrRef();
    if (duration >= 0.0 || target == nullptr || target->getMgr() == nullptr)
        return;
    mDuration = 0.0; // also for what is not a number
    target->warning("Method setDuration has clipped a value out of range.");
}

void CAnimation::setNbXImage(std::int32_t nbImages)
{
    mNbXImage = nbImages;
    CZelMgrRef* target = mgrRef();
    if (nbImages >= 0 || target == nullptr || target->getMgr() == nullptr)
        return;
    mNbXImage = 0;
    target->warning("Method setNbXImage has clipped a value out of range.");
}

} // namespace OvZel
