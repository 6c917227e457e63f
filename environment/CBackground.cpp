#include "environment/CBackground.h"

namespace OvZel {

void CBackground::setLinePower(double power)
{
    mLinePower = power;
    CZelMgrRef* const ref = mgrRef();
    if (ref == nullptr || ref->getMgr() == nullptr)
        return; // clients rely on it: without a document, or behind its end, nothing is clipped
    mLinePower = kLinePower.clip(power);
    if (mLinePower != power)
        ref->warning("Method setLinePower has clipped a value out of range.");
}

} // namespace OvZel
