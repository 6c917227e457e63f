#include "xml/CZelImage.h"

#include <cstring>
#include <exception>

namespace OvZel {

namespace {

trn_autoptr<XCXMLImage> copyOf(std::uint32_t width, std::uint32_t height,
                               const std::uint8_t* pixels)
{
    trn_autoptr<XCXMLImage> image(new XCXMLImage);
    image->resize(width, height);
    std::memcpy(image->pixels(), pixels, image->nbPixels() * 4);
    return image;
}

} // namespace

void CZelImage::getImage(std::uint32_t* width, std::uint32_t* height, std::uint8_t** pixels)
{
    if (width != nullptr)
        *width = mImage ? mImage->width() : 0;
    if (height != nullptr)
        *height = mImage ? mImage->height() : 0;
    if (pixels != nullptr)
        *pixels = mImage ? reinterpret_cast<std::uint8_t*>(mImage->pixels()) : nullptr;
}

void CZelImage::setImage(std::uint32_t width, std::uint32_t height, const std::uint8_t* pixels)
{
    if (width == 0 || height == 0 || pixels == nullptr) {
        mImage = trn_autoptr<XCXMLImage>();
        return;
    }
    try {
        mImage = copyOf(width, height, pixels);
    } catch (const std::exception& exception) {
        // A picture too large for the memory or the file form leaves the old one.
        if (CZelMgrRef* target = getWarningTarget())
            target->exceptionWarning("CZelImage::setImage", exception);
    }
}

void CZelImage::readImage(OrvaneXML::XIXMLReadStream& stream)
{
    trn_autoptr<XCXMLImage> image(new XCXMLImage);
    image->ReadImage(stream);
    mImage = image->nbPixels() > 0 ? std::move(image) : trn_autoptr<XCXMLImage>();
}

} // namespace OvZel
