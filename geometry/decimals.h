#pragma once

#include "geometry/digits.h"

namespace OvZel {

/// The decimals of a number in a geometry block: at least one and at most six digits.
///
/// The fraction is that of the number's magnitude plus half a unit of the sixth decimal. Both write
/// behind `out` and return the end of what they wrote.

/// Cuts digits off until what is left over is no more than the rounding may have brought in. The
/// texts depend on the order of its operations, so it decides.
char* putDecimalsDigitByDigit(char* out, double fraction);

/// The same texts as digit by digit at once, by way of an integer. May write six characters in any
/// case.
inline char* putDecimals(char* out, double fraction)
{
    // The digits end where those behind would all be zeros, but for a rest on the very edge. The
    // rounding of both ways is far below the margin within which the one that defines them decides.
    constexpr double kMargin = 1e-8;
    constexpr int kMost = 6;
    const double scaled = fraction * 1e6;
    const auto whole = static_cast<std::uint32_t>(static_cast<std::int64_t>(scaled));
    const double over = scaled - whole;
    if (over < kMargin || over > 1.0 - kMargin)
        return putDecimalsDigitByDigit(out, fraction);
    putPair(out, whole / 10'000);
    putPair(out + 2, whole / 100 % 100);
    putPair(out + 4, whole % 100);
    int count = kMost;
    while (count > 1 && out[count - 1] == '0')
        --count;
    return out + count;
}

} // namespace OvZel
