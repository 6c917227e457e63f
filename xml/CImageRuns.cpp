#include "xml/CImageRuns.h"

#include "core/OvThrow.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <new>

namespace OvZel {

namespace {

// The format word, read with the high byte first.
constexpr std::uint32_t kBigEndian = 1;
constexpr std::uint32_t kLittleEndian = 0x01000000;

constexpr std::size_t kWordsAtATime = 256;
constexpr std::size_t kFirstRoom = 4 * kWordsAtATime * sizeof(std::uint32_t);

/// The little-endian files that exist have nothing of use behind the first byte of a pixel.
CImageRuns::CPixel onlyFirst(std::uint32_t word)
{
    std::uint8_t first;
    std::memcpy(&first, &word, 1);
    return {first, 0, 0, 0};
}

/// Alpha moves from the first byte to the last.
CImageRuns::CPixel alphaLast(std::uint32_t word)
{
    constexpr int kOneByte = std::endian::native == std::endian::little ? 8 : -8;
    return std::bit_cast<CImageRuns::CPixel>(std::rotr(word, kOneByte));
}

} // namespace

CImageRuns::CImageRuns(OrvaneXML::XIXMLReadStream& stream) : mReader(stream)
{
    readFormat();
    mWidth = readNumber();
    mHeight = readNumber();
    const std::uint64_t nbPixels = std::uint64_t{mWidth} * mHeight;
    if (nbPixels > trn_image_RGBAn8::kMaxPixels)
        OvThrow::Signal("XCXMLImage::Read - Wrong data");
    mNbPixels = static_cast<std::size_t>(nbPixels);
}

std::unique_ptr<CImageRuns::CPixel[]> CImageRuns::read()
{
    return mLittleEndian ? readAs<&onlyFirst>() : readAs<&alphaLast>();
}

template <CImageRuns::CPixel pixel(std::uint32_t)>
std::unique_ptr<CImageRuns::CPixel[]> CImageRuns::readAs()
{
    keepRuns();
    std::unique_ptr<CPixel[]> pixels = newPixels();
    readRest<pixel>(expandKept<pixel>(pixels.get()));
    return pixels;
}

std::unique_ptr<CImageRuns::CPixel[]> CImageRuns::newPixels() const
{
    std::unique_ptr<CPixel[]> pixels(new CPixel[mNbPixels]);
    adviseLargePages(pixels.get(), mNbPixels * sizeof(CPixel));
    return pixels;
}

template <CImageRuns::CPixel pixel(std::uint32_t)>
void CImageRuns::readRest(CPixel* out)
{
    CPixel* const end = out + mNbLeft;
    out = readPixels<pixel>(out, mNbLiterals);
    while (out != end) {
        const std::uint32_t nbRepeats = readCount(static_cast<std::size_t>(end - out));
        CPixel repeated;
        readPixels<pixel>(&repeated, 1);
        out = std::fill_n(out, nbRepeats, repeated);
        if (out == end)
            break;
        out = readPixels<pixel>(out, readCount(static_cast<std::size_t>(end - out)));
    }
}

/// Returns where the next ones belong.
template <CImageRuns::CPixel pixel(std::uint32_t)>
CImageRuns::CPixel* CImageRuns::readPixels(CPixel* out, std::size_t nb)
{
    std::uint32_t words[kWordsAtATime];
    while (nb > 0) {
        const std::size_t nbNow = std::min(nb, kWordsAtATime);
        mReader.read(reinterpret_cast<std::uint8_t*>(words), nbNow);
        out = std::transform(words, words + nbNow, out, pixel);
        nb -= nbNow;
    }
    return out;
}

void CImageRuns::readFormat()
{
    const std::uint32_t format = readNumber();
    if (format != kBigEndian && format != kLittleEndian)
        OvThrow::Signal("Unknown format");
    mLittleEndian = format == kLittleEndian;
}

/// Stops between two pixels or counts, once enough is kept.
void CImageRuns::keepRuns()
{
    mNbLeft = mNbPixels;
    while (mNbLeft > 0 && !isEnoughKept()) {
        mNbLeft -= keepCount();
        keepPixels(1);
        if (mNbLeft == 0)
            break;
        mNbLiterals = keepCount();
        while (mNbLiterals > 0 && !isEnoughKept()) {
            const std::uint32_t nb = std::min<std::uint32_t>(mNbLiterals, kWordsAtATime);
            keepPixels(nb);
            mNbLiterals -= nb;
            mNbLeft -= nb;
        }
    }
}

std::uint32_t CImageRuns::keepCount()
{
    const std::uint32_t count = readCount(mNbLeft);
    *append(1) = count;
    return count;
}

std::uint32_t CImageRuns::readNumber()
{
    std::uint8_t b[4];
    mReader.read(b, 1);
    if (mLittleEndian)
        std::reverse(b, b + 4);
    return std::uint32_t{b[0]} << 24 | std::uint32_t{b[1]} << 16 | std::uint32_t{b[2]} << 8 | b[3];
}

std::uint32_t CImageRuns::readCount(std::size_t nbLeft)
{
    const std::uint32_t count = readNumber();
    if (count > nbLeft)
        OvThrow::Signal("XCXMLImage::Read - Wrong data");
    return count;
}

void CImageRuns::keepPixels(std::size_t nb)
{
    mReader.read(reinterpret_cast<std::uint8_t*>(append(nb)), nb);
}

/// Room for further words, which count as there.
std::uint32_t* CImageRuns::append(std::size_t nb)
{
    if (mWords.room - mNbWords < nb) {
        const std::size_t larger = mWords.room == 0 ? kFirstRoom : nextBufferSize(mWords.size());
        void* words = resizeBuffer(mWords.data, mWords.size(), larger);
        if (words == nullptr)
            throw std::bad_alloc();
        mWords.data = static_cast<std::uint32_t*>(words);
        mWords.room = larger / sizeof(std::uint32_t);
    }
    mNbWords += nb;
    return mWords.data + mNbWords - nb;
}

/// Returns where the next pixel belongs.
template <CImageRuns::CPixel pixel(std::uint32_t)>
CImageRuns::CPixel* CImageRuns::expandKept(CPixel* out) const
{
    const std::uint32_t* word = mWords.data;
    const std::uint32_t* const end = word + mNbWords;
    while (word != end) {
        const std::uint32_t nbRepeats = *word++;
        out = std::fill_n(out, nbRepeats, pixel(*word++));
        if (word == end)
            break;
        const std::uint32_t nbLiterals = *word++;
        const auto nbKept = std::min<std::ptrdiff_t>(nbLiterals, end - word);
        out = std::transform(word, word + nbKept, out, pixel);
        word += nbKept;
    }
    return out;
}

} // namespace OvZel
