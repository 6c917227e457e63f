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
/// A few bytes can claim any size. So the runs are kept as they come, which take no more memory
/// than their digits did. Memory for the pixels is taken when the runs fill the picture exactly, or
/// when so much of it has come that this memory is a small multiple of that; the rest is then
/// unpacked while it is read.
class CImageRuns {
public:
    using CPixel = trn_image_RGBAn8::CPixel;

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
    bool isEnoughKept() const { return mNbWords >= mNbPixels / kPixelsPerWord; }
    void keepRuns();
    void keepPixels(std::size_t nb);
    std::uint32_t keepCount();
    template <CPixel pixel(std::uint32_t)>
    CPixel* expandKept(CPixel* out) const;
    template <CPixel pixel(std::uint32_t)>
    void readRest(CPixel* out);
    template <CPixel pixel(std::uint32_t)>
    CPixel* readPixels(CPixel* out, std::size_t nb);

    static constexpr std::size_t kPixelsPerWord = 8;

    CHexReader mReader;
    bool mLittleEndian = false;
    std::uint32_t mWidth = 0;
    std::uint32_t mHeight = 0;
    std::size_t mNbPixels = 0;
    std::uint32_t* append(std::size_t nb);

    // What is kept: a run's count and pixel, then the count and the pixels of the literal
    // stretch behind it, and so on. Counts are numbers, pixels the four bytes of the stream.
    struct CWords {
        ~CWords() { freeBuffer(data, size()); }
        std::size_t size() const { return room * sizeof(std::uint32_t); }

        std::uint32_t* data = nullptr;
        std::size_t room = 0;
    };
    CWords mWords;
    std::size_t mNbWords = 0;
    std::size_t mNbLeft = 0;       // pixels that are not kept
    std::uint32_t mNbLiterals = 0; // of them the next ones, of a stretch that has begun
};

} // namespace OvZel
