#pragma once

#include "core/inlined.h"
#include "core/isSingleThreaded.h"

#include <atomic>
#include <cstdint>

namespace OvZel {

/// What changeCount adds to lower a count by one.
inline constexpr auto kMinusOne = static_cast<std::uint32_t>(-1);

/// Adds to the count unless it is below the bound; says whether it did.
ZEL_INLINED bool changeCount(std::atomic<std::uint32_t>& count, std::uint32_t bound,
                             std::uint32_t by)
{
    std::uint32_t value = count.load(std::memory_order_relaxed);
    if (isSingleThreaded()) {
        if (value >= bound)
            count.store(value + by, std::memory_order_relaxed);
        return value >= bound;
    }
    while (value >= bound)
        if (count.compare_exchange_weak(value, value + by, std::memory_order_acq_rel,
                                        std::memory_order_relaxed))
            return true;
    return false;
}

} // namespace OvZel
