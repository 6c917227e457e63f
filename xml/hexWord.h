#pragma once

#include "xml/tree/lanes.h"

#include <cstdint>
#include <cstring>

namespace OvZel {

// Eight digits and their four bytes, all at once: each lane of a 64-bit number holds one digit.
// Only 0 to 9 and A to F are digits here.

namespace HexLanes {

using OrvaneXML::eachLane;
using OrvaneXML::littleEndian;

/// The digits of lanes that hold 0 to 15; larger ones up to 24 give no digit or themselves a bad
/// one.
constexpr std::uint64_t digitsOf(std::uint64_t values)
{
    const std::uint64_t letters = (values + eachLane(6)) >> 4 & eachLane(1);
    return values + eachLane('0') + letters * ('A' - '0' - 10);
}

} // namespace HexLanes

/// Stores the four bytes that eight digits stand for; the result is not 0 if one of them is none.
inline std::uint64_t decodeHexWord(const char* digits, std::uint8_t* bytes)
{
    using namespace HexLanes;
    std::uint64_t text;
    std::memcpy(&text, digits, sizeof text);
    text = littleEndian(text);
    const std::uint64_t values = (text & eachLane(0x0F)) + (text >> 6 & eachLane(1)) * 9;
    const std::uint64_t bad = (digitsOf(values) ^ text) | (values & eachLane(0xF0));
    std::uint64_t packed = (values << 4 | values >> 8) & 0x00FF00FF00FF00FF;
    packed = (packed | packed >> 8) & 0x0000FFFF0000FFFF;
    packed |= packed >> 16;
    const std::uint32_t word = littleEndian(static_cast<std::uint32_t>(packed));
    std::memcpy(bytes, &word, sizeof word);
    return bad;
}

/// Writes the eight digits of four bytes.
inline void encodeHexWord(const std::uint8_t* bytes, char* digits)
{
    using namespace HexLanes;
    std::uint32_t word;
    std::memcpy(&word, bytes, sizeof word);
    std::uint64_t spread = littleEndian(word);
    spread = (spread | spread << 16) & 0x0000FFFF0000FFFF;
    spread = (spread | spread << 8) & 0x00FF00FF00FF00FF;
    const std::uint64_t values = (spread >> 4 & 0x000F000F000F000F) | (spread & 0x000F000F000F000F)
                                                                          << 8;
    const std::uint64_t text = littleEndian(digitsOf(values));
    std::memcpy(digits, &text, sizeof text);
}

} // namespace OvZel
