#pragma once

#include <cstddef>
#include <cstdint>

namespace OvZel {

// Many words of eight digits at once, as decodeHexWord and encodeHexWord do one by one.

/// Stores the bytes of `nb` words; the result is not 0 if a digit is none.
std::uint64_t decodeHexWords(const char* digits, std::uint8_t* bytes, std::size_t nb);
/// Writes the digits of `nb` words.
void encodeHexWords(const std::uint8_t* bytes, char* digits, std::size_t nb);

} // namespace OvZel
