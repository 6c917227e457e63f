#pragma once

#include <cstdint>

namespace OvZel {

/// The whole numbers that a setter lets through.
struct CIntegerRange {
    std::int32_t lowest;
    std::int32_t highest;

    constexpr std::int32_t clip(std::int32_t value) const
    {
        if (value < lowest)
            return lowest;
        return value > highest ? highest : value;
    }
};

} // namespace OvZel
