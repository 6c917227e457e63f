#pragma once

#include "core/largePages.h"
#include "xml/CHexReader.h"
#include "xml/trn_image_RGBAn8.h"

#include <cstddef>
#include <cstdint>
#include <memory>

namespace OvZel {

/// Reads a stored picture: its size, then its runs.
///
/// A few bytes can claim any size. Up to kMadeAtOnce pixels are made before they are known to come;
/// of a larger picture the runs are kept first, which take no more memory than their digits did,
/// and memory for the pixels is taken only when the runs fill the picture exactly.
class CImageRuns {
public:
    using CPixel = trn_image_RGBAn8::CPixel;

    static constexpr std::size_t kMadeAtOnce = 8 * 1024 * 1024;

    /// Reads the size. Raises "Unknown format" or "XCXMLImage::Read - Wrong data", and what
    /// CHexReader raises.
    explicit CImageRuns(OrvaneXML::XIXMLReadStream& stream);

    CImageRuns(const CImageRuns&) = delete;
    CImageRuns& operator=(const CImageRuns&) = delete;

    std::uint32_t width() const { return mWidth; }
    std::uint32_t height() const { return mHeight; }
    std::size_t nbPixels() const { return mNbPixels; }
    /// Reads all pixels, row by row. Raises the same, and std::bad_alloc.
    std::unique_ptr<CPixel[]> read();

private:
    void readFormat();
    std::uint32_t readNumber();
    std::uint32_t readCount(std::size_t nbLeft);
    std::unique_ptr<CPixel[]> newPixels() const;
    template <CPixel pixel(std::uint32_t)>
    std::unique_ptr<CPixel[]> readAs();
    template <CPixel pixel(std::uint32_t)>
    void readInto(CPixel* out);
    template <CPixel pixel(std::uint32_t)>
    CPixel* readPixels(CPixel* out, std::size_t nb);
    void keepRuns();
    void keepPixels(std::size_t nb);
    template <CPixel pixel(std::uint32_t)>
    void expand(CPixel* out) const;

    CHexReader mReader;
    bool mLittleEndian = false;
    std::uint32_t mWidth = 0;
    std::uint32_t mHeight = 0;
    std::size_t mNbPixels = 0;
    std::uint32_t* append(std::size_t nb);

    // Of a large picture: a run's count and pixel, then the count and the pixels of the literal
    // stretch behind it, and so on. Counts are numbers, pixels the four bytes of the stream.
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
