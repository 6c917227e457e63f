#include "xml/CHexWriter.h"

#include "core/OvThrow.h"
#include "xml/hexWords.h"

#include <algorithm>
#include <bit>

namespace OvZel {

namespace {

/// The bytes of a pixel with alpha moved from the last place to the first.
std::uint32_t alphaFirst(const CHexWriter::CPixel& pixel)
{
    constexpr int kOneByte = std::endian::native == std::endian::little ? 8 : -8;
    return std::rotl(std::bit_cast<std::uint32_t>(pixel), kOneByte);
}

} // namespace

void CHexWriter::write(std::uint32_t word)
{
    const CPixel bytes{static_cast<std::uint8_t>(word >> 16), static_cast<std::uint8_t>(word >> 8),
                       static_cast<std::uint8_t>(word), static_cast<std::uint8_t>(word >> 24)};
    write(&bytes, 1);
}

void CHexWriter::write(const CPixel* pixels, std::size_t nb)
{
    std::uint32_t words[kNbWords];
    while (nb > 0) {
        const std::size_t nbNow = std::min(nb, room());
        std::transform(pixels, pixels + nbNow, words, alphaFirst);
        encodeHexWords(reinterpret_cast<const std::uint8_t*>(words), mDigits + mEnd, nbNow);
        mEnd += nbNow * kDigitsPerWord;
        pixels += nbNow;
        nb -= nbNow;
    }
}

std::size_t CHexWriter::room()
{
    if (mEnd == kNbDigits)
        flush();
    return (kNbDigits - mEnd) / kDigitsPerWord;
}

void CHexWriter::flush()
{
    const auto size = static_cast<std::uint32_t>(mEnd);
    mEnd = 0;
    if (size > 0 && mStream.Write(mDigits, size) < size)
        OvThrow::Signal("XCXMLImage::WriteHex - Write stream error");
}

} // namespace OvZel
