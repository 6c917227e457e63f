#pragma once

#include "xml/trn_image_RGBAn8.h"

#include <zel/xml/XIXMLWriteStream.h>

#include <cstddef>
#include <cstdint>

namespace OvZel {

/// Writes the 32-bit words of an image as upper-case hexadecimal digits, up to 2048 at a time.
class CHexWriter {
public:
    using CPixel = trn_image_RGBAn8::CPixel;

    explicit CHexWriter(OrvaneXML::XIXMLWriteStream& stream) : mStream(stream) {}
    CHexWriter(const CHexWriter&) = delete;
    CHexWriter& operator=(const CHexWriter&) = delete;

    /// One word, high byte first. All raise "XCXMLImage::WriteHex - Write stream error" when the
    /// stream takes less than it is given.
    void write(std::uint32_t word);
    /// One word a pixel, alpha first.
    void write(const CPixel* pixels, std::size_t nb);
    /// To be called behind the last word.
    void flush();

private:
    static constexpr std::size_t kDigitsPerWord = 8;
    static constexpr std::size_t kNbDigits = 2048;
    static constexpr std::size_t kNbWords = kNbDigits / kDigitsPerWord;

    /// How many more words go into the buffer, at least one.
    std::size_t room();

    OrvaneXML::XIXMLWriteStream& mStream;
    std::size_t mEnd = 0;
    char mDigits[kNbDigits];
};

} // namespace OvZel
