#pragma once

#include <zel/xml/XIXMLReadStream.h>

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace OrvaneXML {

/// Cuts a stream into tokens and checks what can be checked without a tree: nesting, one root
/// element, references, characters. Syntax errors are thrown as std::runtime_error with the line.
///
/// The bytes stand in a window. A token lies in it as a whole, is decoded in place, and its texts
/// are valid until the next token; the window grows with a token as its bytes arrive. The bytes of
/// a CDATA section are handed out as they come and never collected here.
///
///     released | token  mTokenBegin .. mPosition | read ahead .. mEnd | free .. mCapacity
class CXMLScanner {
public:
    enum class EToken { End, StartTag, EndTag, Text, Comment, Instruction, CData };

    explicit CXMLScanner(XIXMLReadStream& stream);
    CXMLScanner(const CXMLScanner&) = delete;
    CXMLScanner& operator=(const CXMLScanner&) = delete;

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
    std::size_t Here() const { return mPosition - mTokenBegin; }
    char* At(std::size_t offset) { return mBuffer.get() + mTokenBegin + offset; }

    // The window
    bool More();
    void MakeRoom();
    bool Need(std::size_t nb);
    bool StartsWith(std::string_view text);
    char Peek();
    char Get();
    template <class TTest>
    void SkipWhile(TTest test);
    void SkipWhite();
    void Release();

    // Tokens
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
    void SkipThrough(std::string_view mark);
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
    void CountTokenLines();
    [[noreturn]] void Fail(const char* what, std::size_t upTo);
    [[noreturn]] void Fail(const char* what) { Fail(what, mPosition); }

    XIXMLReadStream& mStream;
    std::unique_ptr<char[]> mBuffer;
    std::size_t mCapacity;
    std::size_t mTokenBegin = 0;
    std::size_t mPosition = 0;
    std::size_t mEnd = 0;
    bool mIsAtEnd = false;

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
    std::size_t mLine = 1; // of mTokenBegin
    std::size_t mTokenLines = 0;
};

} // namespace OrvaneXML
