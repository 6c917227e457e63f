#pragma once

#include "xml/tree/CXMLParser.h"

namespace OvZel {

/// Reads the origin at the head of a file.
class CReadOrigin : public OrvaneXML::CXMLParser {
public:
    /// Three doubles, 0 where the file has none.
    const double* origin() const { return mOrigin; }
    /// The parse ended because the answer stands, whether or not there was an origin.
    bool isDone() const { return mDone; }

private:
    void* StartElement(const char* name) override;
    void Attribute(const char* name, const char* value) override;

    bool mInOrigin = false;
    bool mDone = false;
    double mOrigin[3] = {0.0, 0.0, 0.0};
};

} // namespace OvZel
