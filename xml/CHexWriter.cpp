#include "xml/CHexWriter.h"

#include "core/OvThrow.h"

#include <array>
#include <cstring>

namespace OvZel {

namespace {

constexpr std::array<char, 512> makePairs()
{
    std::array<char, 512> pairs{};
    for (std::size_t i = 0; i < 256; ++i) {
        pairs[2 * i] = "0123456789ABCDEF"[i >> 4];
        pairs[2 * i + 1] = "0123456789ABCDEF"[i & 15];
    }
    return pairs;
}

/// The two digits of each byte.
constexpr std::array<char, 512> kPairs = makePairs();

} // namespace

void CHexWriter::put(std::uint8_t byte)
{
    std::memcpy(mDigits + mEnd, &kPairs[std::size_t{byte} * 2], 2);
    mEnd += 2;
}

void CHexWriter::write(std::uint8_t b0, std::uint8_t b1, std::uint8_t b2, std::uint8_t b3)
{
    if (mEnd == kNbDigits)
        flush();
    put(b0);
    put(b1);
    put(b2);
    put(b3);
}

void CHexWriter::write(std::uint32_t word)
{
    write(static_cast<std::uint8_t>(word >> 24), static_cast<std::uint8_t>(word >> 16),
          static_cast<std::uint8_t>(word >> 8), static_cast<std::uint8_t>(word));
}

void CHexWriter::flush()
{
    const auto size = static_cast<std::uint32_t>(mEnd);
    mEnd = 0;
    if (size > 0 && mStream.Write(mDigits, size) < size)
        OvThrow::Signal("XCXMLImage::WriteHex - Write stream error");
}

} // namespace OvZel
