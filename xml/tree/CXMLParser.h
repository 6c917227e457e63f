#pragma once

#include <zel/xml/XIXMLReadStream.h>

namespace OrvaneXML {

class CXMLScanner;

/// Reads a document without a tree: a subclass overrides the hooks that it wants to know about.
///
/// What a hook throws ends the parse and passes through to its caller. Texts given to a hook are
/// NUL-terminated and valid during the call. The order of the virtual operations is fixed.
class CXMLParser {
public:
    virtual ~CXMLParser() = default;

    /// Reads to the end of the stream. False if Instruction stopped the parse; a syntax error
    /// throws std::runtime_error with its line. Reads ahead by up to 64 KiB.
    bool Parse(XIXMLReadStream* stream);
    /// The same, but CDATA sections are skipped without a call of CData, and a syntax error doesn't
    /// tell its line.
    bool FastParse(XIXMLReadStream* stream);
    /// Parse for what stands ahead of the root element. Of that StartElement gets the name, and
    /// nothing behind the name is read or checked.
    bool ParseHead(XIXMLReadStream* stream);

protected:
    CXMLParser() = default;
    CXMLParser(const CXMLParser&) = default;
    CXMLParser& operator=(const CXMLParser&) = default;

    /// Before anything is read.
    virtual void StartDocument() {}
    /// False stops the parse.
    virtual bool Instruction(const char*, const char*) { return true; }
    virtual void Comment(const char*) {}
    /// Gets the name; the result is handed to EndElement.
    virtual void* StartElement(const char*) { return nullptr; }
    /// Name and value, behind the start of the element and in file order.
    virtual void Attribute(const char*, const char*) {}
    /// A text that is not only white space.
    virtual void Text(const char*) {}
    /// The stream delivers the section's bytes and then its end. What is left unread is skipped.
    virtual void CData(XIXMLReadStream*) {}
    virtual void EndElement(void*) {}
    /// Nothing asks for it; it holds its place.
    virtual bool IsRecording() { return false; }

private:
    bool Run(XIXMLReadStream& stream, bool withCData);
    void* Start(const CXMLScanner& scanner);
};

} // namespace OrvaneXML
