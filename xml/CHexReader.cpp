#include "xml/CHexReader.h"

#include "core/OvThrow.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace OvZel {

namespace {

constexpr std::uint8_t kInvalid = 0xFF;

constexpr std::array<std::uint8_t, 256> makeValues()
{
    std::array<std::uint8_t, 256> values{};
    values.fill(kInvalid);
    for (std::uint8_t i = 0; i < 16; ++i)
        values[static_cast<unsigned char>("0123456789ABCDEF"[i])] = i;
    return values;
}

constexpr std::array<std::uint8_t, 256> kValues = makeValues();

/// False if one of the digits is none.
bool decode(const char* digits, std::uint8_t* bytes, std::size_t nbBytes)
{
    unsigned seen = 0;
    for (std::size_t i = 0; i < nbBytes; ++i) {
        const unsigned high = kValues[static_cast<unsigned char>(digits[2 * i])];
        const unsigned low = kValues[static_cast<unsigned char>(digits[2 * i + 1])];
        seen |= high | low;
        bytes[i] = static_cast<std::uint8_t>(high << 4 | low);
    }
    return seen < 16;
}

} // namespace

std::size_t CHexReader::fill()
{
    if (mEnd - mBegin < kDigitsPerWord) {
        std::memmove(mDigits, mDigits + mBegin, mEnd - mBegin);
        mEnd -= mBegin;
        mBegin = 0;
    }
    while (mEnd - mBegin < kDigitsPerWord) {
        const auto room = static_cast<std::uint32_t>(kNbDigits - mEnd);
        const std::uint32_t nb = std::min(mStream.Read(mDigits + mEnd, room), room);
        if (nb == 0)
            OvThrow::Signal("XCXMLImage::ReadHex - Read stream error");
        mEnd += nb;
    }
    return (mEnd - mBegin) / kDigitsPerWord;
}

void CHexReader::read(std::uint8_t* bytes, std::size_t nbWords)
{
    while (nbWords > 0) {
        const std::size_t nb = std::min(fill(), nbWords);
        if (!decode(mDigits + mBegin, bytes, nb * 4))
            OvThrow::Signal("XCXMLImage::ReadHex - Invalid hex value");
        mBegin += nb * kDigitsPerWord;
        bytes += nb * 4;
        nbWords -= nb;
    }
}

} // namespace OvZel
