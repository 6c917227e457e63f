#pragma once

#include "xml/tree/CXMLStore.h"

#include <zel/xml/XIXMLElement.h>

#include <cstddef>

namespace OrvaneXML {

/// One XML document in memory. It owns its root, all nodes and the providers of its sections.
///
/// The root stands above the document element: instructions and the document element are its
/// children. A tree serves one thread at a time.
class XCXMLTree {
public:
    /// A tree with an empty root.
    XCXMLTree();
    virtual ~XCXMLTree();
    XCXMLTree(const XCXMLTree&) = delete;
    XCXMLTree& operator=(const XCXMLTree&) = delete;

    const XIXMLElement* GetRoot() const;
    XIXMLElement* GetRoot();

    /// Writes the whole tree. False if a provider reported a section as incomplete; the rest is
    /// written all the same. Throws std::runtime_error before the first byte while a node has a
    /// name, a comment or an instruction that XML cannot hold, and later when the stream takes
    /// nothing. What a provider throws stops the write and passes through.
    bool Write(XIXMLWriteStream* stream) const;

    /// The memory that nodes, names and texts have taken from the heap.
    std::size_t GetPoolBytes() const { return mStore.pool.GetBytes(); }

private:
    CXMLStore mStore;
};

} // namespace OrvaneXML
