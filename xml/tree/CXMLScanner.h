#pragma once

#include "xml/tree/CXMLNames.h"
#include "xml/tree/CXMLWindow.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace OrvaneXML {

/// Cuts a stream into tokens and checks what can be checked without a tree: nesting, one root
/// element, references, characters. Syntax errors are thrown as std::runtime_error, with the line
/// unless TellNoLines was called.
///
/// A token is decoded in place in the window, and its texts are valid until the next token. White
/// space between two tags of which one begins or ends a child element is no token. The bytes of a
/// CDATA section are handed out as they come and never collected here.
class CXMLScanner : private CXMLWindow {
public:
    /// A leaf is an element from its start to its end, with a text at most: most elements are, and
    /// one token for all of it is worth having. Some leaves come in pieces all the same.
    enum class EToken { End, StartTag, EndTag, Leaf, Text, Comment, Instruction, CData };

    /// With the names of a tree the scanner knows most names of elements and attributes without
    /// scanning them.
    explicit CXMLScanner(XIXMLReadStream& stream, const CXMLNames* names = nullptr)
        : CXMLWindow(stream), mNames(names)
    {
    }

    using CXMLWindow::TellNoLines;
    /// From here on the start tag of the root element has its name alone, and is the last token:
    /// what stands behind the name is not looked at.
    void StopAtRoot() { mStopsAtRoot = true; }
    EToken Next();

    /// The name of a start tag or leaf, or the target of an instruction. All texts here are
    /// NUL-terminated.
    std::string_view Name() const { return mName.view(); }
    /// The same of a start tag or leaf among the names of the tree, or null if it was not guessed.
    const SXMLName* KnownName() const { return mName.known; }
    /// A text, decoded, that of a leaf, which may be empty but is not white, or what stands in a
    /// comment or instruction, as it is.
    std::string_view Text() const { return mText.view(); }
    /// Whether a text has nothing but white space, none of it written as a reference.
    bool IsWhite() const { return mIsWhite; }
    std::size_t NbAttributes() const { return mAttributes.size(); }
    std::string_view AttributeName(std::size_t i) const { return mAttributes[i].name.view(); }
    const SXMLName* KnownAttribute(std::size_t i) const { return mAttributes[i].name.known; }
    std::string_view AttributeValue(std::size_t i) const { return mAttributes[i].value.view(); }

    /// Delivers bytes of the section behind a CData token; 0 is its end. What is left unread is
    /// skipped by Next.
    std::uint32_t ReadSection(void* buffer, std::uint32_t size);

private:
    /// A piece of the token.
    struct SPiece {
        char* begin = nullptr;
        char* end = nullptr;

        std::string_view view() const { return {begin, static_cast<std::size_t>(end - begin)}; }
    };
    struct SName : SPiece {
        const SXMLName* known = nullptr;
    };
    struct SAttribute {
        SName name;
        SPiece value;
        bool isPlain;
    };

    EToken Markup();
    EToken AtEnd();
    EToken StartTag();
    EToken RootName();
    EToken EndTag();
    EToken TextToken();
    EToken Comment();
    EToken Instruction();
    EToken Section();
    void Doctype();
    SPiece UpTo(std::string_view mark);

    // These scan from the beginning of the token and change nothing in the window. Null says that
    // it ends in the middle of the token, anything else is the place behind.
    template <char* (CXMLScanner::*Scan)()>
    void Whole();
    char* ScanStartTag();
    char* ScanRootName();
    char* PastLeaf(char* p);
    char* ScanAttribute(char* p, const SXMLName* guess);
    char* ScanValue(char* p, char quote, bool& isPlain);
    char* ScanEndTag();
    std::string_view OpenName() const;
    char* PastOpenName(char* p) const;
    char* ScanText();
    char* ScanName(char* p, SName& name, const SXMLName* guess);
    char* Cut(char* p);

    bool PassWhite();
    void CheckElement();
    void OpenElement();
    void BehindChild();
    void Decode(SPiece& piece, bool isValue);
    static void Terminate(SPiece piece) { *piece.end = 0; }
    std::size_t SectionBytes(std::size_t most);
    void SkipSection();

    const CXMLNames* mNames;
    SName mName;
    SPiece mText;
    std::vector<SAttribute> mAttributes;
    bool mIsWhite = false;
    bool mIsPlain = false; // a text without references and carriage returns
    bool mIsStarted = false;
    bool mIsBehindTag = false;   // nothing followed the last tag so far
    bool mIsBehindChild = false; // and that was an end tag
    bool mIsRootSeen = false;
    bool mStopsAtRoot = false;
    bool mIsLeaf = false; // the start tag and all up to the end tag
    bool mIsInSection = false;
    bool mIsCovered = false; // the "<" at mPosition, by the NUL of the text in front of it

    std::string mOpenNames; // one behind the other
    std::vector<std::size_t> mOpenBegins;
};

} // namespace OrvaneXML
