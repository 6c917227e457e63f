#pragma once

#include <zel/xml/XIXMLElement.h>

#include <memory>

namespace OvZel {

/// An element with all that is below it, in one piece of memory.
///
/// A tree of its own takes two kilobytes, however little is in it; packed, the data of most
/// instances take a hundred bytes. What was packed comes back node for node.
class CPackedElement {
public:
    using XIXMLElement = OrvaneXML::XIXMLElement;

    bool isEmpty() const { return !mBytes; }
    /// False, and nothing changes, if a CDATA section is there: only its provider has its bytes.
    bool pack(const XIXMLElement& element);
    /// A copy as the last child of that element; there is something packed.
    XIXMLElement* unpackInto(XIXMLElement& parent) const;

private:
    // Each node is a letter with its texts behind it, all NUL-terminated, or the number of a name
    // that is known; a capital one is followed by children up to the end mark.
    std::unique_ptr<char[]> mBytes;
};

} // namespace OvZel
