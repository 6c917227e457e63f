#include "core/TSharedPtr.h"

#include "core/isSingleThreaded.h"

namespace OvZel {

namespace {

constinit Orvane::XCMutexRecursive gCountMutex;

/// Adds to the count, -1 as the largest number, and gives the value from before.
std::uint32_t add(std::atomic<std::uint32_t>& count, std::uint32_t by)
{
    if (!isSingleThreaded())
        return count.fetch_add(by, std::memory_order_acq_rel);
    const std::uint32_t before = count.load(std::memory_order_relaxed);
    count.store(before + by, std::memory_order_relaxed);
    return before;
}

} // namespace

Orvane::XCMutexRecursive& countMutex()
{
    return gCountMutex;
}

void CZelSharedPtrBase::raiseStrongFromZero()
{
    const Orvane::XCMutexRecursive::CLock lock(gCountMutex);
    if (add(mStrong, 1) == 0)
        raiseWeak();
}

void CZelSharedPtrBase::lowerStrongToZero(bool destroy)
{
    const Orvane::XCMutexRecursive::CLock lock(gCountMutex);
    if (add(mStrong, kMinusOne) != 1)
        return;
    if (destroy)
        destroyObject();
    lowerWeak();
}

void CZelSharedPtrBase::raiseWeak()
{
    add(mWeak, 1);
}

void CZelSharedPtrBase::lowerWeak()
{
    if (add(mWeak, kMinusOne) == 1)
        destroyBlock();
}

IZelSharedPtrBase* nullBlock()
{
    static struct CHolder {
        TSharedPtr<char>* block = new TSharedPtr<char>(nullptr);
        CHolder() { block->addRef(); }
        ~CHolder() { block->release(); }
    } holder;
    return holder.block;
}

} // namespace OvZel
