#include "tools/modelText.h"

#include "tools/oneLine.h"

#include <string_view>

namespace tool {

static bool isBetween(unsigned char byte, unsigned least, unsigned most)
{
    return byte >= least && byte <= most;
}

// How many bytes the first character has; 0 if it is none of UTF-8.
static std::size_t sizeOfFirst(std::string_view text)
{
    const auto first = static_cast<unsigned char>(text[0]);
    if (first < 0x80)
        return 1;
    if (!isBetween(first, 0xC2, 0xF4))
        return 0;
    const std::size_t size = first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
    if (text.size() < size)
        return 0;
    // Neither longer than need be, nor half a pair, nor beyond the last character.
    const unsigned least = first == 0xE0 ? 0xA0 : first == 0xF0 ? 0x90 : 0x80;
    const unsigned most = first == 0xED ? 0x9F : first == 0xF4 ? 0x8F : 0xBF;
    if (!isBetween(static_cast<unsigned char>(text[1]), least, most))
        return 0;
    for (std::size_t i = 2; i < size; ++i)
        if (!isBetween(static_cast<unsigned char>(text[i]), 0x80, 0xBF))
            return 0;
    return size;
}

std::string modelText(const std::string& bytes)
{
    std::string text;
    for (std::string_view rest = bytes; !rest.empty();) {
        const std::size_t size = sizeOfFirst(rest);
        if (size > 0) {
            text += rest.substr(0, size);
        } else {
            const auto byte = static_cast<unsigned char>(rest[0]);
            text += static_cast<char>(0xC0 | byte >> 6);
            text += static_cast<char>(0x80 | (byte & 0x3F));
        }
        rest.remove_prefix(size > 0 ? size : 1);
    }
    return oneLine(text);
}

} // namespace tool
