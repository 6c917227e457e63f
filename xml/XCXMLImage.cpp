#include "xml/XCXMLImage.h"

#include "xml/CHexWriter.h"
#include "xml/CImageRuns.h"

#include <bit>
#include <new>

namespace OvZel {

namespace {

using CPixel = trn_image_RGBAn8::CPixel;

/// Pixels are compared as one number, which is quicker than channel by channel.
bool isEqual(const CPixel& a, const CPixel& b)
{
    return std::bit_cast<std::uint32_t>(a) == std::bit_cast<std::uint32_t>(b);
}

/// Writes the run at `first` and returns its end.
const CPixel* writeRun(CHexWriter& out, const CPixel* first, const CPixel* end)
{
    const CPixel* last = first + 1;
    while (last != end && isEqual(*last, *first))
        ++last;
    out.write(static_cast<std::uint32_t>(last - first));
    out.write(first, 1);
    return last;
}

/// Writes the stretch up to and with the first of two equal pixels, and returns its end.
const CPixel* writeLiterals(CHexWriter& out, const CPixel* first, const CPixel* end)
{
    const CPixel* last = first + 1;
    while (last != end && !isEqual(*last, last[-1]))
        ++last;
    const auto nb = static_cast<std::size_t>(last - first);
    out.write(static_cast<std::uint32_t>(nb));
    out.write(first, nb);
    return last;
}

} // namespace

XCXMLImage::XCXMLImage(std::uint32_t width, std::uint32_t height, std::uint8_t* pixels)
    : trn_image_RGBAn8(width, height, reinterpret_cast<CPixel*>(pixels))
{
}

void XCXMLImage::ReadImage(OrvaneXML::XIXMLReadStream& stream)
{
    try {
        CImageRuns runs(stream);
        if (runs.nbPixels() == 0)
            return adopt(0, 0, nullptr);
        adopt(runs.width(), runs.height(), runs.read());
    } catch (const std::bad_alloc&) {
        OvThrow::Signal("XCXMLImage::Read - Wrong data");
    }
}

void XCXMLImage::WriteImage(OrvaneXML::XIXMLWriteStream& stream) const
{
    if (nbPixels() == 0)
        return;
    CHexWriter out(stream);
    out.write(1); // the high byte of every word is first
    out.write(width());
    out.write(height());
    const CPixel* pixel = pixels();
    const CPixel* const end = pixel + nbPixels();
    while (pixel != end) {
        pixel = writeRun(out, pixel, end);
        if (pixel != end)
            pixel = writeLiterals(out, pixel, end);
    }
    out.flush();
}

bool XCXMLImage::Write(OrvaneXML::XIXMLWriteStream* stream, void*, OrvaneXML::XIXMLData*)
{
    try {
        OvThrow::IfNULL(stream);
        WriteImage(*stream);
        return true;
    } catch (...) {
        return false;
    }
}

OrvaneXML::XIXMLData::IXMLCData* XCXMLImage::Clone()
{
    addReference();
    return this;
}

} // namespace OvZel
