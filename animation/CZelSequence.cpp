#include "animation/CZelSequence.h"

namespace OvZel {

void CZelSequence::setFocal(double focal)
{
    mFocal = focal;
    // A sequence that belongs to no document, or has outlived it, keeps any value.
    CZelMgrRef* target = getWarningTarget();
    if (target == nullptr || target->getMgr() == nullptr)
        return;
    mFocal = kFocal.clip(focal);
    if (mFocal != focal)
        target->warning("Method setFocal has clipped a value out of range.");
}

} // namespace OvZel
