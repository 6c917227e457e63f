#pragma once

namespace OrvaneXML {

class XIXMLElement;
class XIXMLReadStream;

/// The client's way to the CDATA sections of a document that is being read.
class IXMLCDataReader {
public:
    /// Called when a section starts, also an empty one, with the element that holds it. `stream`
    /// delivers the section's bytes and then its end; whatever is left unread is skipped. The
    /// callback may call SetCData on the element, but must not remove a node. On true nothing is
    /// kept of the section but what SetCData was given. On false it is skipped, unless the stream
    /// was never read from: then the tree keeps the bytes and writes them unchanged. What is thrown
    /// here passes through ReadTree.
    virtual bool ReadCData(XIXMLElement* element, XIXMLReadStream* stream) = 0;

protected:
    ~IXMLCDataReader() = default;
};

} // namespace OrvaneXML
