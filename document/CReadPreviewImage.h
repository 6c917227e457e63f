#pragma once

#include "core/TZelComPtr.h"
#include "xml/CZelImage.h"
#include "xml/tree/CXMLParser.h"

namespace OvZel {

/// Reads the preview picture at the head of a file. The parse always ends in an exception; the
/// picture read up to there is the answer.
class CReadPreviewImage : public OrvaneXML::CXMLParser {
public:
    /// Empty when there is none.
    const TZelComPtr<CZelImage>& image() const { return mImage; }

private:
    void* StartElement(const char* name) override;
    void Attribute(const char* name, const char* value) override;
    void Text(const char* text) override;
    void CData(OrvaneXML::XIXMLReadStream* stream) override;
    void EndElement(void* token) override;

    TZelComPtr<CZelImage> mImage;
};

} // namespace OvZel
