#pragma once

#include "xml/tree/CXMLParser.h"

#include <zel/CZelUUID.h>

namespace OvZel {

/// Reads the identifier at the head of a file.
class CReadDocumentUUID : public OrvaneXML::CXMLParser {
public:
    /// Null when the file has none.
    const CZelUUID& id() const { return mId; }
    /// The parse ended because the answer stands, whether or not there was an identifier.
    bool isDone() const { return mDone; }

private:
    void* StartElement(const char* name) override;
    void Attribute(const char* name, const char* value) override;

    bool mInFileInfo = false;
    bool mDone = false;
    CZelUUID mId;
};

} // namespace OvZel
