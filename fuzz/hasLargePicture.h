#pragma once

#include <cstdint>
#include <string_view>

/// Whether a section of the text claims a picture of more than a million pixels. A legal picture of
/// a few bytes may take a gibibyte, which says nothing about the library and exhausts the machine
/// that runs the targets.
inline bool hasLargePicture(std::string_view text, std::string_view opening = "<![CDATA[")
{
    constexpr std::uint64_t kMaxPixels = 1 << 20;
    const auto word = [](std::string_view digits) {
        std::uint32_t value = 0;
        for (const char c : digits)
            value = value << 4 | (c >= 'A' ? static_cast<std::uint32_t>(c - 'A' + 10) & 15
                                           : static_cast<std::uint32_t>(c - '0') & 15);
        return value;
    };
    for (std::size_t at = text.find(opening); at != text.npos; at = text.find(opening, at + 1)) {
        const std::string_view digits = text.substr(at + opening.size(), 24);
        if (digits.size() < 24) {
            if (opening.empty())
                return false;
            continue;
        }
        std::uint32_t width = word(digits.substr(8, 8));
        std::uint32_t height = word(digits.substr(16, 8));
        if (digits[0] == '0' && digits[1] == '1') {
            width = __builtin_bswap32(width);
            height = __builtin_bswap32(height);
        }
        if (std::uint64_t{width} * height > kMaxPixels)
            return true;
        if (opening.empty())
            return false;
    }
    return false;
}
