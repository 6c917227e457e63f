#pragma once

#include "xml/tree/CXMLParser.h"

namespace OvZel {

/// Reads the instructions ahead of a file's root element and nothing else.
class CHeadParser : public OrvaneXML::CXMLParser {
protected:
    CHeadParser() = default;

private:
    void* StartElement(const char* name) override;
    void Attribute(const char* name, const char* value) override;
    void Text(const char* text) override;
    void EndElement(void* token) override;
};

} // namespace OvZel
