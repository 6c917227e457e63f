#pragma once

#include "xml/tree/CXMLWriteBuffer.h"

#include <cstddef>
#include <string_view>
#include <vector>

namespace OrvaneXML {

class CXMLCDataNode;
class CXMLElement;
class CXMLNode;

/// Writes a tree, without recursion.
///
/// Lines end with LF, a level is one TAB. White space is added only inside elements that have child
/// elements and neither text nor CDATA, nor stand in one that has, since there reading drops it.
/// A text that is only white space between elements goes out with its first character as a
/// reference, which keeps it.
class CXMLWriter {
public:
    explicit CXMLWriter(XIXMLWriteStream& stream) : mOut(stream) {}

    /// False if a section is incomplete.
    bool Write(const CXMLElement& root);

private:
    void NewLine();
    void Node(CXMLNode& node);
    void Tag(const CXMLElement& element);
    void EndTag(const CXMLElement& element);
    bool Open(const CXMLElement& element);
    void Close(const CXMLElement& element);
    void Text(const CXMLNode& node);
    void Comment(std::string_view text);
    void Instruction(CXMLNode& node);
    void Section(CXMLCDataNode& node);
    void Escaped(const char* text, bool isValue);
    void NotPlain(char c, bool isValue);
    void Reference(char c);

    static constexpr std::size_t kNowhere = static_cast<std::size_t>(-1);

    CXMLWriteBuffer mOut;
    bool mIsComplete = true;
    bool mIsStarted = false;
    bool mKeepNext = false;              // the next character of a text goes out as a reference
    std::size_t mInlineDepth = kNowhere; // the outermost open element without added white space
    std::vector<char> mHasElements;      // of the open elements
};

} // namespace OrvaneXML
