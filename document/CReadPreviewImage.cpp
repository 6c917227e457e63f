#include "document/CReadPreviewImage.h"

#include "core/OvThrow.h"

#include <string_view>

namespace OvZel {

namespace {

[[noreturn]] void noPreview()
{
    OvThrow::Signal("No Preview image availiable"); // (sic)
}

} // namespace

void* CReadPreviewImage::StartElement(const char* name)
{
    const std::string_view tag = name;
    if (tag != "Zel.File" && tag != "Preview.Image")
        noPreview();
    return nullptr;
}

void CReadPreviewImage::Attribute(const char*, const char*)
{
    noPreview();
}

void CReadPreviewImage::Text(const char*)
{
    noPreview();
}

void CReadPreviewImage::CData(OrvaneXML::XIXMLReadStream* stream)
{
    TZelComPtr<CZelImage> image(new CZelImage(nullptr));
    image->readImage(*stream);
    mImage = image;
}

void CReadPreviewImage::EndElement(void*)
{
    noPreview();
}

} // namespace OvZel
