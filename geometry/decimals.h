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

/// The same texts as digit by digit at once, by way of an integer. May write eight characters in
/// any case.
inline char* putDecimals(char* out, double fraction)
{
    // The digits end where those behind would all be zeros, but for a rest on the very edge. The
    // rounding of both ways is far below the margin within which the one that defines them decides.
    constexpr double kMargin = 1e-8;
    const double scaled = fraction * 1e6;
    const auto whole = static_cast<std::uint32_t>(static_cast<std::int64_t>(scaled));
    const double over = scaled - whole;
    if (over < kMargin || over > 1.0 - kMargin)
        return putDecimalsDigitByDigit(out, fraction);
    const std::uint64_t digits =
        kDigitPairs[whole / 10'000] | std::uint64_t{kDigitFours[whole % 10'000]} << 16;
    const std::uint64_t text = OrvaneXML::littleEndian(digits);
    std::memcpy(out, &text, sizeof text);
    // Zeros at the end are none of it, but for one; a zero is the only digit without these bits.
    const std::uint64_t others = (digits & OrvaneXML::eachLane(0x0F)) | 1;
    return out + 8 - std::countl_zero(others) / 8;
}

} // namespace OvZel
