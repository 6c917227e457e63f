#pragma once

#include "xml/tree/CXMLParser.h"

#include <zel/IZelString.h>

namespace OvZel {

/// Takes the name of the scene's definition out of a file.
class CReadMediaInfo : public OrvaneXML::CXMLParser {
public:
    explicit CReadMediaInfo(IZelString& name) : mName(name) {}

private:
    void* StartElement(const char* name) override;
    void Attribute(const char* name, const char* value) override;
    void EndElement(void* token) override;

    /// How far down the path "Zel.File", "Object.Definition", "Name" the open elements follow it.
    int mMatched = 0;
    int mDepth = 0;
    IZelString& mName;
};

} // namespace OvZel
