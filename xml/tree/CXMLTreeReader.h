#pragma once

#include "xml/tree/IXMLCDataReader.h"
#include "xml/tree/XCXMLTree.h"

#include <zel/xml/XIXMLReadStream.h>

namespace OrvaneXML {

/// Reads documents into trees.
///
/// White space between elements is no node; in an element without child elements it is text.
/// Comments and instructions are kept as they are wherever they stand. A document type declaration
/// is skipped unread, and a reference to anything but a character or one of the five predefined
/// entities is a syntax error, as are elements nested deeper than 10,000.
class CXMLTreeReader {
public:
    /// With a null `reader` the tree keeps all sections as they are.
    explicit CXMLTreeReader(IXMLCDataReader* reader) : mReader(reader) {}

    /// Reads the stream to its end. The caller owns the tree. Syntax errors throw
    /// std::runtime_error with their line; nothing is left of the tree then.
    XCXMLTree* ReadTree(XIXMLReadStream* stream);

private:
    IXMLCDataReader* mReader;
};

} // namespace OrvaneXML
