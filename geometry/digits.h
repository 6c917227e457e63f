#pragma once

#include <array>
#include <cstdint>
#include <cstring>

namespace OvZel {

/// "00" to "99", one behind the other.
inline constexpr std::array<char, 200> kDigitPairs = [] {
    std::array<char, 200> pairs{};
    for (unsigned i = 0; i < 100; ++i) {
        pairs[2 * i] = static_cast<char>('0' + i / 10);
        pairs[2 * i + 1] = static_cast<char>('0' + i % 10);
    }
    return pairs;
}();

// These write behind `out` and return the end of what they wrote.

/// The two digits of a number below 100.
inline char* putPair(char* out, std::uint32_t value)
{
    std::memcpy(out, &kDigitPairs[2 * value], 2);
    return out + 2;
}

/// The four digits of a number below 10,000.
inline char* putFour(char* out, std::uint32_t value)
{
    return putPair(putPair(out, value / 100), value % 100);
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

inline char* putUnsigned(char* out, std::uint32_t value)
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
