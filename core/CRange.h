#pragma once

namespace OvZel {

/// The values that a setter lets through. A value that is not a number counts as one below.
struct CRange {
    double lowest;
    double highest;

    constexpr double clip(double value) const
    {
        if (!(value >= lowest))
            return lowest;
        return value > highest ? highest : value;
    }
};

} // namespace OvZel
