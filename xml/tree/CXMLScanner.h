#pragma once

#include "xml/tree/CXMLWindow.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace OrvaneXML {

/// Cuts a stream into tokens and checks what can be checked without a tree: nesting, one root
/// element, references, characters. Syntax errors are thrown as std::runtime_error with the line.
///
/// A token is decoded in place in the window, and its texts are valid until the next token. The
/// bytes of a CDATA section are handed out as they come and never collected here.
class CXMLScanner : private CXMLWindow {
public:
    enum class EToken { End, StartTag, EndTag, Text, Comment, Instruction, CData };

    explicit CXMLScanner(XIXMLReadStream& stream) : CXMLWindow(stream) {}

    EToken Next();

    /// The name of a start tag or the target of an instruction. All texts here are NUL-terminated.
    std::string_view Name() const { return View(mName); }
    /// A text, decoded, or what stands in a comment or instruction, as it is.
    std::string_view Text() const { return View(mText); }
    /// Whether a text has nothing but white space, none of it written as a reference.
    bool IsWhite() const { return mIsWhite; }
    std::size_t NbAttributes() const { return mAttributes.size(); }
    std::string_view AttributeName(std::size_t i) const { return View(mAttributes[i].name); }
    std::string_view AttributeValue(std::size_t i) const { return View(mAttributes[i].value); }

    /// Delivers bytes of the section behind a CData token; 0 is its end. What is left unread is
    /// skipped by Next.
    std::uint32_t ReadSection(void* buffer, std::uint32_t size);

private:
    /// A piece of the token, from its beginning, since the token may move while it is scanned.
    struct SPiece {
        std::size_t begin = 0, end = 0;
    };
    struct SAttribute {
        SPiece name, value;
        bool isPlain = true;
    };

    std::string_view View(SPiece piece) const
    {
        return {mBuffer.get() + mTokenBegin + piece.begin, piece.end - piece.begin};
    }
    EToken Markup();
    EToken AtEnd();
    EToken StartTag();
    EToken EndTag();
    EToken CloseElement();
    EToken ScanText();
    EToken Comment();
    EToken Instruction();
    EToken Section();
    void Doctype();
    SPiece UpTo(std::string_view mark);
    SPiece ScanName();
    void ScanAttribute();
    void ScanValue(SAttribute& attribute, char quote);
    void FinishTag();
    void OpenElement();
    void Decode(SPiece& piece, bool isValue);
    void Terminate(SPiece piece) { *At(piece.end) = 0; }
    std::size_t SectionBytes(std::size_t most);
    void SkipSection();
    SPiece mName;
    SPiece mText;
    std::vector<SAttribute> mAttributes;
    bool mIsWhite = false;
    bool mIsStarted = false;
    bool mIsRootSeen = false;
    bool mIsEmptyElement = false; // its end is the next token
    bool mIsInSection = false;
    char mOverwritten = 0; // what stands at mPosition when mIsOverwritten
    bool mIsOverwritten = false;

    std::string mOpenNames; // one behind the other
    std::vector<std::size_t> mOpenBegins;
};

} // namespace OrvaneXML
