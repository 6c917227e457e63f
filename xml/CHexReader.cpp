#include "xml/CHexReader.h"

#include "core/OvThrow.h"
#include "xml/hexWords.h"

#include <algorithm>
#include <cstring>

namespace OvZel {

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
        if (decodeHexWords(mDigits + mBegin, bytes, nb) != 0)
            OvThrow::Signal("XCXMLImage::ReadHex - Invalid hex value");
        mBegin += nb * kDigitsPerWord;
        bytes += nb * 4;
        nbWords -= nb;
    }
}

} // namespace OvZel
