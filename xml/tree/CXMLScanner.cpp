#include "xml/tree/CXMLScanner.h"

#include "xml/tree/characters.h"
#include "xml/tree/decodeText.h"
#include "xml/tree/skipDoctype.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <limits>

namespace OrvaneXML {

namespace {

constexpr std::size_t kMaxDepth = 10'000;

enum : unsigned char { kEndsName = 1, kEndsText = 2, kEndsValue = 4 };

/// NUL stands behind the last byte of the window too, so that it ends every loop.
constexpr std::array<unsigned char, 256> makeClasses()
{
    std::array<unsigned char, 256> classes{};
    for (unsigned c = 0; c < 256; ++c)
        classes[c] = isNameEnd(static_cast<char>(c)) ? kEndsName : 0;
    for (char c : {'\0', '<', '&', '\r'})
        classes[static_cast<unsigned char>(c)] |= kEndsText;
    for (char c : {'\0', '"', '\'', '&', '\t', '\n', '\r'})
        classes[static_cast<unsigned char>(c)] |= kEndsValue;
    return classes;
}

constexpr auto kClasses = makeClasses();

bool is(char c, unsigned char what)
{
    return kClasses[static_cast<unsigned char>(c)] & what;
}

} // namespace

CXMLScanner::EToken CXMLScanner::Next()
{
    if (mIsInSection)
        SkipSection();
    if (mIsEmptyElement) {
        mIsEmptyElement = false;
        return CloseElement();
    }
    if (mIsOverwritten)
        mBuffer[mPosition] = mOverwritten;
    mIsOverwritten = false;
    if (!mIsStarted && StartsWith("\xEF\xBB\xBF"))
        mPosition += 3;
    mIsStarted = true;
    for (;;) {
        Release();
        if (!Need(1))
            return AtEnd();
        if (mBuffer[mPosition] == '<') {
            if (!StartsWith("<!DOCTYPE"))
                return Markup();
            Doctype();
        } else if (mOpenBegins.empty()) {
            SkipWhite();
            CountTokenLines();
            if (mPosition < mEnd && Peek() != '<')
                Fail("text outside the root element");
        } else {
            return ScanText();
        }
    }
}

CXMLScanner::EToken CXMLScanner::AtEnd()
{
    if (!mOpenBegins.empty())
        Fail("end tag missing");
    if (!mIsRootSeen)
        Fail("no root element");
    return EToken::End;
}

CXMLScanner::EToken CXMLScanner::Markup()
{
    ++mPosition;
    switch (Peek()) {
    case '/':
        return EndTag();
    case '?':
        return Instruction();
    case '!':
        if (StartsWith("!--"))
            return Comment();
        if (StartsWith("![CDATA["))
            return Section();
        Fail("unknown markup");
    default:
        return StartTag();
    }
}

/// What stands up to the mark, which is passed.
CXMLScanner::SPiece CXMLScanner::UpTo(std::string_view mark)
{
    const std::size_t begin = Here();
    const char last = mark.back();
    for (std::size_t from = begin + mark.size() - 1;;) {
        while (mTokenBegin + from >= mEnd)
            if (!More())
                Fail("unexpected end", mEnd);
        const char* p =
            static_cast<const char*>(std::memchr(At(from), last, mEnd - mTokenBegin - from));
        if (!p) {
            from = mEnd - mTokenBegin;
            continue;
        }
        from = static_cast<std::size_t>(p - At(0)) + 1;
        if (std::string_view(At(from) - mark.size(), mark.size()) != mark)
            continue;
        mPosition = mTokenBegin + from;
        const SPiece piece{begin, from - mark.size()};
        if (std::memchr(At(piece.begin), 0, piece.end - piece.begin))
            Fail("NUL byte");
        CountTokenLines();
        return piece;
    }
}

CXMLScanner::EToken CXMLScanner::Comment()
{
    mPosition += 3;
    mText = UpTo("-->");
    Terminate(mText);
    return EToken::Comment;
}

CXMLScanner::EToken CXMLScanner::Instruction()
{
    ++mPosition;
    const SPiece all = UpTo("?>");
    const char* begin = At(all.begin);
    const char* end = At(all.end);
    const char* nameEnd = std::find_if(begin, end, isNameEnd);
    if (nameEnd == begin || (nameEnd != end && !isWhite(*nameEnd)))
        Fail("bad instruction target", mTokenBegin);
    const char* content = std::find_if_not(nameEnd, end, isWhite);
    mName = {all.begin, all.begin + static_cast<std::size_t>(nameEnd - begin)};
    mText = {all.begin + static_cast<std::size_t>(content - begin), all.end};
    Terminate(mName);
    Terminate(mText);
    return EToken::Instruction;
}

CXMLScanner::SPiece CXMLScanner::ScanName()
{
    const std::size_t begin = Here();
    SkipWhile([](char c) { return !is(c, kEndsName); });
    Peek(); // a name is followed by something
    const auto c = static_cast<unsigned char>(mBuffer[mPosition]);
    if (Here() == begin || (c < ' ' && !isWhite(mBuffer[mPosition])))
        Fail("bad name");
    return {begin, Here()};
}

CXMLScanner::EToken CXMLScanner::StartTag()
{
    mAttributes.clear();
    mName = ScanName();
    for (;;) {
        SkipWhite();
        const char c = Peek();
        if (c == '>' || c == '/')
            break;
        ScanAttribute();
    }
    mIsEmptyElement = Get() == '/';
    if (mIsEmptyElement && Get() != '>')
        Fail("\">\" expected");
    FinishTag();
    OpenElement();
    return EToken::StartTag;
}

void CXMLScanner::ScanAttribute()
{
    SAttribute attribute;
    attribute.name = ScanName();
    SkipWhite();
    if (Get() != '=')
        Fail("\"=\" expected");
    SkipWhite();
    const char quote = Get();
    if (quote != '"' && quote != '\'')
        Fail("quote expected");
    ScanValue(attribute, quote);
    mAttributes.push_back(attribute);
}

void CXMLScanner::ScanValue(SAttribute& attribute, char quote)
{
    attribute.value.begin = Here();
    for (;;) {
        SkipWhile([](char c) { return !is(c, kEndsValue); });
        const char c = Get();
        if (c == quote)
            break;
        if (c != '"' && c != '\'')
            attribute.isPlain = false;
    }
    attribute.value.end = Here() - 1;
}

/// Decodes and terminates only now that the whole tag is there and its lines are counted.
void CXMLScanner::FinishTag()
{
    CountTokenLines();
    for (SAttribute& attribute : mAttributes) {
        if (!attribute.isPlain)
            Decode(attribute.value, true);
        Terminate(attribute.name);
        Terminate(attribute.value);
    }
    Terminate(mName);
}

void CXMLScanner::OpenElement()
{
    if (mOpenBegins.empty() && mIsRootSeen)
        Fail("more than one root element", mTokenBegin);
    if (mOpenBegins.size() == kMaxDepth)
        Fail("elements nested too deeply", mTokenBegin);
    mIsRootSeen = true;
    mOpenBegins.push_back(mOpenNames.size());
    mOpenNames += Name();
}

CXMLScanner::EToken CXMLScanner::CloseElement()
{
    mOpenNames.resize(mOpenBegins.back());
    mOpenBegins.pop_back();
    return EToken::EndTag;
}

CXMLScanner::EToken CXMLScanner::EndTag()
{
    ++mPosition;
    const std::string_view name = View(ScanName());
    if (mOpenBegins.empty() || name != std::string_view(mOpenNames).substr(mOpenBegins.back()))
        Fail("end tag does not match");
    SkipWhite();
    if (Get() != '>')
        Fail("\">\" expected");
    CountTokenLines();
    return CloseElement();
}

CXMLScanner::EToken CXMLScanner::ScanText()
{
    SkipWhite();
    mIsWhite = !Need(1) || mBuffer[mPosition] == '<';
    bool isPlain = !std::memchr(At(0), '\r', Here());
    for (;;) {
        SkipWhile([](char c) { return !is(c, kEndsText); });
        if (mPosition == mEnd || mBuffer[mPosition] == '<')
            break;
        Get(); // refuses NUL
        isPlain = false;
    }
    CountTokenLines();
    mText = {0, Here()};
    if (!isPlain)
        Decode(mText, false);
    mOverwritten = mBuffer[mPosition]; // the "<" of the next token
    mIsOverwritten = true;
    Terminate(mText);
    return EToken::Text;
}

void CXMLScanner::Decode(SPiece& piece, bool isValue)
{
    const SDecoded decoded = decodeText(At(piece.begin), At(piece.end), isValue);
    if (!decoded.isGood)
        Fail("unknown reference", static_cast<std::size_t>(decoded.end - mBuffer.get()));
    piece.end = static_cast<std::size_t>(decoded.end - At(0));
}

void CXMLScanner::Doctype()
{
    if (mIsRootSeen)
        Fail("document type declaration behind the root element");
    Skip(9);
    Release();
    skipDoctype(*this);
}

CXMLScanner::EToken CXMLScanner::Section()
{
    if (mOpenBegins.empty())
        Fail("text outside the root element");
    mPosition += 8;
    Release();
    mIsInSection = true;
    return EToken::CData;
}

/// How many bytes of the section stand ready at mPosition, up to `most`; 0 at its end, which is
/// passed.
std::size_t CXMLScanner::SectionBytes(std::size_t most)
{
    for (;;) {
        const char* p = mBuffer.get() + mPosition;
        // Looking only as far as needed keeps many small reads cheap.
        const std::size_t nb = std::min(mEnd - mPosition, most + 2);
        const char* const end = p + nb;
        const char* mark = p;
        while ((mark = static_cast<const char*>(
                    std::memchr(mark, ']', static_cast<std::size_t>(end - mark)))) &&
               end - mark > 2 && !(mark[1] == ']' && mark[2] == '>'))
            ++mark;
        // Without a mark in sight, brackets at the end may be the beginning of one.
        if (mark && end - mark == 2 && mark[1] != ']')
            mark = nullptr;
        const std::size_t ready = mark ? static_cast<std::size_t>(mark - p) : nb;
        if (ready > 0)
            return std::min(ready, most);
        if (mark && end - mark > 2) {
            mPosition += 3;
            mIsInSection = false;
            Release();
            return 0;
        }
        if (!More())
            Fail("end of a CDATA section missing");
    }
}

std::uint32_t CXMLScanner::ReadSection(void* buffer, std::uint32_t size)
{
    if (!mIsInSection || size == 0)
        return 0;
    const std::size_t nb = SectionBytes(size);
    std::memcpy(buffer, mBuffer.get() + mPosition, nb);
    mPosition += nb;
    CountTokenLines();
    Release();
    return static_cast<std::uint32_t>(nb);
}

void CXMLScanner::SkipSection()
{
    while (const std::size_t nb = SectionBytes(std::numeric_limits<std::size_t>::max() / 2)) {
        mPosition += nb;
        CountTokenLines();
        Release();
    }
}

} // namespace OrvaneXML
