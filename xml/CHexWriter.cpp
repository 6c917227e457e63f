#include "xml/CHexWriter.h"

#include "core/OvThrow.h"
#include "xml/hexWord.h"

namespace OvZel {

void CHexWriter::write(std::uint8_t b0, std::uint8_t b1, std::uint8_t b2, std::uint8_t b3)
{
    if (mEnd == kNbDigits)
        flush();
    const std::uint8_t bytes[] = {b0, b1, b2, b3};
    encodeHexWord(bytes, mDigits + mEnd);
    mEnd += kDigitsPerWord;
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
