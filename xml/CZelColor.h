#pragma once

#include <cstdint>

namespace OvZel {

/// A colour: byte 0 is unused and 0; red, green and blue are bytes 1, 2 and 3.
struct CZelColor {
    std::uint8_t bytes[4] = {};
};

} // namespace OvZel
