#pragma once

#include <cstddef>

namespace OvZel {

/// Notices that a walk along single links goes in circles: a client may set the parent or the child
/// of a node to any node. It costs no memory, so a walk may go round a few times before it is seen.
class CLoopGuard {
public:
    /// To be asked at each node.
    bool isBack(const void* node)
    {
        if (node == mMark)
            return true;
        // Marks at 1, 2, 4, 8...: in the end they stand farther apart than the circle is long.
        if (++mNbSteps == mNextMark) {
            mMark = node;
            mNextMark *= 2;
        }
        return false;
    }

private:
    const void* mMark = nullptr;
    std::size_t mNbSteps = 0;
    std::size_t mNextMark = 1;
};

} // namespace OvZel
