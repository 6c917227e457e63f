#pragma once

#include "core/inlined.h"
#include "xml/tree/lanes.h"

#include <array>
#include <cstdint>
#include <cstring>

namespace OvZel {

// The text of a number here has its first digit in the lowest byte.

/// "00" to "99".
inline constexpr std::array<std::uint16_t, 100> kDigitPairs = [] {
    std::array<std::uint16_t, 100> pairs{};
    for (unsigned i = 0; i < 100; ++i)
        pairs[i] = static_cast<std::uint16_t>(('0' + i / 10) | ('0' + i % 10) << 8);
    return pairs;
}();

/// "0000" to "9999".
extern const std::array<std::uint32_t, 10'000> kDigitFours;

// These write behind `out` and return the end of what they wrote.

/// The two digits of a number below 100.
inline char* putPair(char* out, std::uint32_t value)
{
    const std::uint16_t text = OrvaneXML::littleEndian(kDigitPairs[value]);
    std::memcpy(out, &text, sizeof text);
    return out + sizeof text;
}

/// The four digits of a number below 10,000.
inline char* putFour(char* out, std::uint32_t value)
{
    const std::uint32_t text = OrvaneXML::littleEndian(kDigitFours[value]);
    std::memcpy(out, &text, sizeof text);
    return out + sizeof text;
}

/// A number below 10,000 without leading zeros.
inline char* putUpToFour(char* out, std::uint32_t value)
{
    if (value >= 1000)
        return putFour(out, value);
    if (value >= 100) {
        *out = static_cast<char>('0' + value / 100);
        return putPair(out + 1, value % 100);
    }
    if (value >= 10)
        return putPair(out, value);
    *out = static_cast<char>('0' + value);
    return out + 1;
}

ZEL_INLINED char* putUnsigned(char* out, std::uint32_t value)
{
    if (value < 10'000)
        return putUpToFour(out, value);
    if (value < 100'000'000)
        return putFour(putUpToFour(out, value / 10'000), value % 10'000);
    const std::uint32_t low = value % 100'000'000;
    out = putUpToFour(out, value / 100'000'000);
    return putFour(putFour(out, low / 10'000), low % 10'000);
}

inline char* putInteger(char* out, std::int32_t value)
{
    if (value >= 0)
        return putUnsigned(out, static_cast<std::uint32_t>(value));
    *out = '-';
    return putUnsigned(out + 1, 0 - static_cast<std::uint32_t>(value));
}

} // namespace OvZel
