#include "xml/CImageProvider.h"

#include "core/OvThrow.h"
#include "xml/XCXMLImage.h"

namespace OvZel {

bool CImageProvider::Write2(OrvaneXML::XIXMLWriteStream* stream, OrvaneXML::XIXMLData*)
{
    if (!mImage)
        return true;
    std::uint32_t width = 0, height = 0;
    std::uint8_t* pixels = nullptr;
    mImage->getImage(&width, &height, &pixels);
    if (pixels == nullptr)
        return true;
    OvThrow::IfNULL(stream);
    XCXMLImage(width, height, pixels).WriteImage(*stream);
    return true;
}

} // namespace OvZel
