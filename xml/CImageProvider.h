#pragma once

#include "core/TZelComPtr.h"
#include "xml/CZELProvider.h"

#include <zel/IZelImage.h>

namespace OvZel {

/// Writes the bitmap that an image has at the time of the save.
class CImageProvider : public CZELProvider {
public:
    /// Keeps the image, which may be null.
    CImageProvider(IBlockHost* host, IZelImage* image) : CZELProvider(host), mImage(image) {}

    IXMLCData* Clone2() override { return new CImageProvider(host(), mImage.get()); }
    /// Without an image or a bitmap nothing is written, and that is no failure.
    bool Write2(OrvaneXML::XIXMLWriteStream* stream, OrvaneXML::XIXMLData* node) override;

private:
    TZelComPtr<IZelImage> mImage;
};

} // namespace OvZel
