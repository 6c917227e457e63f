#pragma once

#include <cstdint>

namespace OvZel {

/// A colour as it crosses the boundary: byte 0 is unused and 0; red, green and blue are bytes 1, 2
/// and 3.
struct CZelColor {
    /// 0, red, green, blue; all 0 at first.
    std::uint8_t bytes[4] = {};

    /// The colour of three parts, 0 to 255 each.
    static constexpr CZelColor rgb(std::uint8_t red, std::uint8_t green, std::uint8_t blue)
    {
        return {{0, red, green, blue}};
    }

    /// Byte by byte, the unused one too.
    friend constexpr bool operator==(const CZelColor& a, const CZelColor& b)
    {
        return a.bytes[0] == b.bytes[0] && a.bytes[1] == b.bytes[1] && a.bytes[2] == b.bytes[2] &&
               a.bytes[3] == b.bytes[3];
    }
    friend constexpr bool operator!=(const CZelColor& a, const CZelColor& b) { return !(a == b); }
};

static_assert(sizeof(CZelColor) == 4, "colours cross the boundary as four bytes");

} // namespace OvZel
