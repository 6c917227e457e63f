#include "core/TSharedPtr.h"

namespace OvZel {

namespace {

constinit Orvane::XCMutexRecursive gCountMutex;

/// Raises or lowers the count unless it is below the bound; says whether it did.
bool change(std::atomic<std::uint32_t>& count, std::uint32_t bound, std::uint32_t by)
{
    std::uint32_t value = count.load(std::memory_order_relaxed);
    while (value >= bound)
        if (count.compare_exchange_weak(value, value + by, std::memory_order_acq_rel,
                                        std::memory_order_relaxed))
            return true;
    return false;
}

} // namespace

Orvane::XCMutexRecursive& countMutex()
{
    return gCountMutex;
}

void CZelSharedPtrBase::raiseStrong()
{
    if (change(mStrong, 1, 1))
        return;
    const Orvane::XCMutexRecursive::CLock lock(gCountMutex);
    if (mStrong.fetch_add(1, std::memory_order_acq_rel) == 0)
        raiseWeak();
}

void CZelSharedPtrBase::lowerStrong(bool destroy)
{
    if (change(mStrong, 2, static_cast<std::uint32_t>(-1)))
        return;
    const Orvane::XCMutexRecursive::CLock lock(gCountMutex);
    if (mStrong.fetch_sub(1, std::memory_order_acq_rel) != 1)
        return;
    if (destroy)
        destroyObject();
    lowerWeak();
}

void CZelSharedPtrBase::lowerWeak()
{
    if (mWeak.fetch_sub(1, std::memory_order_acq_rel) == 1)
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
