#pragma once

#include <zel/xml/XIXMLWriteStream.h>

#include <cstddef>
#include <cstdint>

namespace OvZel {

/// Writes the 32-bit words of an image as upper-case hexadecimal digits, up to 2048 at a time.
class CHexWriter {
public:
    explicit CHexWriter(OrvaneXML::XIXMLWriteStream& stream) : mStream(stream) {}
    CHexWriter(const CHexWriter&) = delete;
    CHexWriter& operator=(const CHexWriter&) = delete;

    /// These raise "XCXMLImage::WriteHex - Write stream error" when the stream takes less than it
    /// is given.
    void write(std::uint8_t b0, std::uint8_t b1, std::uint8_t b2, std::uint8_t b3);
    /// High byte first.
    void write(std::uint32_t word);
    /// To be called behind the last word.
    void flush();

private:
    static constexpr std::size_t kDigitsPerWord = 8;
    static constexpr std::size_t kNbDigits = 2048;

    OrvaneXML::XIXMLWriteStream& mStream;
    std::size_t mEnd = 0;
    char mDigits[kNbDigits];
};

} // namespace OvZel
