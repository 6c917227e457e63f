#pragma once

#include "xml/trn_image_RGBAn8.h"

#include <zel/xml/XIXMLData.h>
#include <zel/xml/XIXMLReadStream.h>

namespace OvZel {

/// A bitmap that is the provider of its own CDATA bytes.
///
/// The stored form is a stream of 32-bit words in hexadecimal digits: format, width, height, then
/// in turn a run (count, pixel) and a literal stretch (count, pixels) until the picture is full. A
/// pixel is stored as alpha, red, green, blue. Two pixels A A are the words 2 A, and A B A A are
/// 1 A, 2 B A, 1 A: a stretch ends behind the first of two equal pixels.
class XCXMLImage : public trn_image_RGBAn8, public OrvaneXML::XIXMLData::IXMLCData {
public:
    XCXMLImage() = default;
    /// A view of pixels that belong to another.
    XCXMLImage(std::uint32_t width, std::uint32_t height, std::uint8_t* pixels);

    /// Replaces the bitmap; on any failure the old one stays. A picture without width or height
    /// gives no bitmap. Raises "Unknown format", "XCXMLImage::Read - Wrong data",
    /// "XCXMLImage::ReadHex - Invalid hex value" or "XCXMLImage::ReadHex - Read stream error".
    void ReadImage(OrvaneXML::XIXMLReadStream& stream);
    /// Writes nothing without a bitmap. Raises "XCXMLImage::WriteHex - Write stream error".
    void WriteImage(OrvaneXML::XIXMLWriteStream& stream) const;

    /// WriteImage; false on any failure.
    bool Write(OrvaneXML::XIXMLWriteStream* stream, void* reserved,
               OrvaneXML::XIXMLData* node) override;
    /// This image, with one more reference.
    IXMLCData* Clone() override;
    /// Gives a reference back.
    void Destroy() override { release(); }
};

} // namespace OvZel
