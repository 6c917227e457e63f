#include "views/CZelAnimation.h"

#include <algorithm>

namespace OvZel {

void CZelAnimation::setCurrentPath(std::int32_t index)
{
    const std::int32_t nbPaths = mPaths->size();
    mCurrentPath = std::max(index, 0);
    // Clients count on the number of paths itself being kept.
    if (mCurrentPath > nbPaths)
        mCurrentPath = std::max(nbPaths - 1, 0);
    CZelMgrRef* target = mgrRef();
    if (mCurrentPath != index && target != nullptr && target->getMgr() != nullptr)
        target->warning("IZelAnimation::setCurrentPath - index invalid");
}

} // namespace OvZel
