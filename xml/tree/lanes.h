#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace OrvaneXML {

/// The widest step through a text. So many bytes can be read at the NUL behind each text of a tree,
/// and behind the last one of a document.
constexpr std::size_t kWidestStep = 16;

// Eight characters at once: each lane of a 64-bit number holds one. A test sets the highest bit of
// each lane that passes. Borrows spoil lanes behind the first that passes, never that one.

constexpr std::uint64_t eachLane(unsigned char value)
{
    return value * std::uint64_t{0x0101010101010101};
}

/// Lanes below the limit, which is at most 128.
constexpr std::uint64_t lanesBelow(std::uint64_t lanes, unsigned char limit)
{
    return (lanes - eachLane(limit)) & ~lanes & eachLane(0x80);
}

constexpr std::uint64_t lanesOf(std::uint64_t lanes, char c)
{
    return lanesBelow(lanes ^ eachLane(static_cast<unsigned char>(c)), 1);
}

/// A number whose first byte in memory is the lowest, as the machine's own, and back.
template <class T>
constexpr T littleEndian(T value)
{
    if constexpr (std::endian::native == std::endian::little)
        return value;
    T turned = 0;
    for (unsigned i = 0; i < sizeof(T); ++i)
        turned = static_cast<T>(turned << 8 | (value >> 8 * i & 0xFF));
    return turned;
}

/// The first character in the lowest lane.
inline std::uint64_t lanesAt(const char* text)
{
    std::uint64_t lanes;
    std::memcpy(&lanes, text, sizeof lanes);
    return littleEndian(lanes);
}

/// The place of the first lane that passed; at least one did.
constexpr int firstLane(std::uint64_t passed)
{
    return std::countr_zero(passed) / 8;
}

/// The first character whose lane passes. There is one, and seven bytes can be read behind it.
template <class TTest>
char* findLane(char* p, TTest test)
{
    for (;; p += 8)
        if (const std::uint64_t found = test(lanesAt(p)))
            return p + firstLane(found);
}

} // namespace OrvaneXML
