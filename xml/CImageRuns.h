#pragma once

#include "core/largePages.h"
#include "xml/CHexReader.h"
#include "xml/trn_image_RGBAn8.h"

#include <cstddef>
#include <cstdint>

namespace OvZel {

/// A stored picture before it is unpacked: its size and its runs.
///
/// The runs take no more memory than their digits did. Only when they are known to fill the picture
/// exactly is memory for the pixels worth taking, since a few bytes can claim any size.
class CImageRuns {
public:
    using CPixel = trn_image_RGBAn8::CPixel;

    /// Raises "Unknown format" or "XCXMLImage::Read - Wrong data", and what CHexReader raises.
    explicit CImageRuns(OrvaneXML::XIXMLReadStream& stream);

    CImageRuns(const CImageRuns&) = delete;
    CImageRuns& operator=(const CImageRuns&) = delete;

    std::uint32_t width() const { return mWidth; }
    std::uint32_t height() const { return mHeight; }
    std::size_t nbPixels() const { return mNbPixels; }
    /// Writes nbPixels() pixels.
    void expand(CPixel* out) const;

private:
    void readFormat();
    void readRuns();
    std::uint32_t readNumber();
    std::uint32_t readCount(std::size_t nbLeft);
    void readPixels(std::size_t nb);
    template <CPixel pixel(std::uint32_t)>
    void expandAs(CPixel* out) const;

    CHexReader mReader;
    bool mLittleEndian = false;
    std::uint32_t mWidth = 0;
    std::uint32_t mHeight = 0;
    std::size_t mNbPixels = 0;
    std::uint32_t* append(std::size_t nb);

    // A run's count and pixel, then the count and the pixels of the literal stretch behind it, and
    // so on. Counts are numbers, pixels the four bytes of the stream.
    struct CWords {
        ~CWords() { freeBuffer(data, size()); }
        std::size_t size() const { return room * sizeof(std::uint32_t); }

        std::uint32_t* data = nullptr;
        std::size_t room = 0;
    };
    CWords mWords;
    std::size_t mNbWords = 0;
};

} // namespace OvZel
