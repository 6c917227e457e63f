#pragma once

#include <atomic>
#include <cstdint>

namespace OvZel {

/// A count of references, 0 at first. The release that brings it back to 0 deletes the object.
/// Both operations may come from any thread.
class trn_reference {
public:
    trn_reference() = default;
    trn_reference(const trn_reference&) = delete;
    trn_reference& operator=(const trn_reference&) = delete;

    virtual void addReference() { mCount.fetch_add(1, std::memory_order_relaxed); }
    virtual void release()
    {
        if (mCount.fetch_sub(1, std::memory_order_acq_rel) == 1)
            delete this;
    }
    virtual ~trn_reference() = default;

private:
    std::atomic<std::uint32_t> mCount{0};
};

} // namespace OvZel
