#pragma once

#include <zel/xml/XIXMLReadStream.h>

#include <cstddef>
#include <cstdint>

namespace OvZel {

/// Reads the 32-bit words of an image from hexadecimal digits.
///
/// Takes up to 2048 digits at a time from the stream, so that it may stand behind the last word
/// that was read. What follows an image is never decoded.
class CHexReader {
public:
    explicit CHexReader(OrvaneXML::XIXMLReadStream& stream) : mStream(stream) {}
    CHexReader(const CHexReader&) = delete;
    CHexReader& operator=(const CHexReader&) = delete;

    /// Stores `nbWords` x 4 bytes in the order of the stream. Raises
    /// "XCXMLImage::ReadHex - Invalid hex value" for anything but 0 to 9 and A to F, and
    /// "XCXMLImage::ReadHex - Read stream error" when the stream ends before the last word.
    void read(std::uint8_t* bytes, std::size_t nbWords);

private:
    static constexpr std::size_t kDigitsPerWord = 8;
    static constexpr std::size_t kNbDigits = 2048;

    /// The number of whole words in the buffer, at least one.
    std::size_t fill();

    OrvaneXML::XIXMLReadStream& mStream;
    std::size_t mBegin = 0;
    std::size_t mEnd = 0;
    char mDigits[kNbDigits];
};

} // namespace OvZel
