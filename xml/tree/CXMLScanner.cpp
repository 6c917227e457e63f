#include "xml/tree/CXMLScanner.h"

#include "xml/tree/CXMLNames.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <limits>
#include <stdexcept>

namespace OrvaneXML {

namespace {

constexpr std::size_t kWindow = 64 * 1024;
constexpr std::size_t kMaxDepth = 10'000;

bool isWhite(char c)
{
    return c == ' ' || c == '\n' || c == '\t' || c == '\r';
}

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

std::size_t countLines(const char* begin, const char* end)
{
    return static_cast<std::size_t>(std::count(begin, end, '\n'));
}

char* putUtf8(char* out, unsigned code)
{
    const auto put = [&](unsigned byte) { *out++ = static_cast<char>(byte); };
    if (code < 0x80) {
        put(code);
    } else if (code < 0x800) {
        put(0xC0 | code >> 6);
        put(0x80 | (code & 0x3F));
    } else if (code < 0x10000) {
        put(0xE0 | code >> 12);
        put(0x80 | (code >> 6 & 0x3F));
        put(0x80 | (code & 0x3F));
    } else {
        put(0xF0 | code >> 18);
        put(0x80 | (code >> 12 & 0x3F));
        put(0x80 | (code >> 6 & 0x3F));
        put(0x80 | (code & 0x3F));
    }
    return out;
}

int digitOf(char c, unsigned base)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    const char lower = static_cast<char>(c | 0x20);
    return base == 16 && lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
}

/// The code point of "#123" or "#x7B"; 0 if it is none that a text can hold.
unsigned numericCode(std::string_view name)
{
    const bool isHex = name.size() > 1 && name[1] == 'x';
    const std::string_view digits = name.substr(isHex ? 2 : 1);
    const unsigned base = isHex ? 16 : 10;
    unsigned code = 0;
    for (char c : digits) {
        const int digit = digitOf(c, base);
        if (digit < 0)
            return 0;
        code = code * base + static_cast<unsigned>(digit);
        if (code > 0x10FFFF)
            return 0;
    }
    return code >= 0xD800 && code <= 0xDFFF ? 0 : code;
}

/// The code point of a reference, without "&" and ";"; 0 if it is unknown.
unsigned referenceCode(std::string_view name)
{
    if (!name.empty() && name[0] == '#')
        return numericCode(name);
    constexpr struct {
        std::string_view name;
        char c;
    } kEntities[] = {{"amp", '&'}, {"lt", '<'}, {"gt", '>'}, {"quot", '"'}, {"apos", '\''}};
    for (const auto& entity : kEntities)
        if (entity.name == name)
            return static_cast<unsigned char>(entity.c);
    return 0;
}

} // namespace

// ---- the window

CXMLScanner::CXMLScanner(XIXMLReadStream& stream)
    : mStream(stream), mBuffer(std::make_unique_for_overwrite<char[]>(kWindow + 1)),
      mCapacity(kWindow)
{
    mBuffer[0] = 0;
}

void CXMLScanner::MakeRoom()
{
    if (mEnd < mCapacity && mCapacity - mEnd >= mCapacity / 4)
        return;
    const std::size_t nb = mEnd - mTokenBegin;
    if (nb > mCapacity / 2) {
        auto wider = std::make_unique_for_overwrite<char[]>(mCapacity * 2 + 1);
        std::memcpy(wider.get(), mBuffer.get() + mTokenBegin, nb);
        mBuffer = std::move(wider);
        mCapacity *= 2;
    } else {
        std::memmove(mBuffer.get(), mBuffer.get() + mTokenBegin, nb);
    }
    mPosition -= mTokenBegin;
    mEnd = nb;
    mTokenBegin = 0;
}

/// Adds bytes to the window. Places in it change; offsets from the token's beginning do not.
bool CXMLScanner::More()
{
    if (mIsAtEnd)
        return false;
    MakeRoom();
    const std::size_t room = std::min<std::size_t>(mCapacity - mEnd, 1 << 30);
    const std::size_t nb = mStream.Read(mBuffer.get() + mEnd, static_cast<std::uint32_t>(room));
    if (nb > room)
        throw std::runtime_error("The stream of an XML document delivered more than was asked for");
    mEnd += nb;
    mBuffer[mEnd] = 0;
    mIsAtEnd = nb == 0;
    return nb > 0;
}

bool CXMLScanner::Need(std::size_t nb)
{
    while (mEnd - mPosition < nb)
        if (!More())
            return false;
    return true;
}

bool CXMLScanner::StartsWith(std::string_view text)
{
    // One byte after the other, so that no byte behind a difference is waited for.
    for (std::size_t i = 0; i < text.size(); ++i)
        if (!Need(i + 1) || mBuffer[mPosition + i] != text[i])
            return false;
    return true;
}

char CXMLScanner::Peek()
{
    if (!Need(1))
        Fail("unexpected end");
    if (!mBuffer[mPosition])
        Fail("NUL byte");
    return mBuffer[mPosition];
}

char CXMLScanner::Get()
{
    const char c = Peek();
    ++mPosition;
    return c;
}

/// `test` is false for NUL.
template <class TTest>
void CXMLScanner::SkipWhile(TTest test)
{
    do {
        const char* p = mBuffer.get() + mPosition;
        while (test(*p))
            ++p;
        mPosition = static_cast<std::size_t>(p - mBuffer.get());
    } while (mPosition == mEnd && More());
}

void CXMLScanner::SkipWhite()
{
    SkipWhile(isWhite);
}

void CXMLScanner::CountTokenLines()
{
    mTokenLines = countLines(mBuffer.get() + mTokenBegin, mBuffer.get() + mPosition);
}

/// Gives up the token; the next one begins here.
void CXMLScanner::Release()
{
    mLine += mTokenLines;
    mTokenLines = 0;
    mTokenBegin = mPosition;
}

void CXMLScanner::Fail(const char* what, std::size_t upTo)
{
    const char* buffer = mBuffer.get();
    const std::size_t line = mLine + countLines(buffer + mTokenBegin, buffer + upTo);
    throw std::runtime_error("XML syntax error in line " + std::to_string(line) + ": " + what);
}

// ---- tokens

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

/// References become characters and line ends LF; in a value white space becomes blanks. The result
/// is never longer than the source.
void CXMLScanner::Decode(SPiece& piece, bool isValue)
{
    const char* in = At(piece.begin);
    const char* end = At(piece.end);
    char* out = At(piece.begin);
    const auto offset = [&](const char* p) { return static_cast<std::size_t>(p - mBuffer.get()); };
    while (in != end) {
        const char c = *in++;
        if (c == '&') {
            const auto* stop =
                static_cast<const char*>(std::memchr(in, ';', static_cast<std::size_t>(end - in)));
            const unsigned code =
                stop ? referenceCode({in, static_cast<std::size_t>(stop - in)}) : 0;
            if (!code)
                Fail("unknown reference", offset(out));
            out = putUtf8(out, code);
            in = stop + 1;
        } else if (c == '\r') {
            in += in != end && *in == '\n';
            *out++ = isValue ? ' ' : '\n';
        } else {
            *out++ = isValue && isWhite(c) ? ' ' : c;
        }
    }
    piece.end = piece.begin + static_cast<std::size_t>(out - At(piece.begin));
}

// ---- document type declarations

void CXMLScanner::SkipThrough(std::string_view mark)
{
    for (std::size_t nb = 0; nb < mark.size();) {
        const char c = Get();
        if (c == '\n')
            ++mLine;
        mTokenBegin = mPosition; // nothing of it is kept
        if (c == mark[nb])
            ++nb;
        else if (!(nb == 2 && c == mark[1])) // "--->" ends a comment too, "??>" an instruction
            nb = c == mark[0] ? 1 : 0;
    }
}

/// Skips the declaration unread. Declarations in it nest by their brackets; quotes, comments and
/// instructions may hold unpaired ones.
void CXMLScanner::Doctype()
{
    if (mIsRootSeen)
        Fail("document type declaration behind the root element");
    mPosition += 9;
    mTokenBegin = mPosition;
    for (std::size_t depth = 1; depth > 0;) {
        const char c = Get();
        if (c == '\n')
            ++mLine;
        mTokenBegin = mPosition;
        if (c == '"' || c == '\'')
            SkipThrough({&c, 1});
        else if (c == '<' && StartsWith("!--"))
            mPosition += 3, SkipThrough("-->");
        else if (c == '<' && StartsWith("?"))
            SkipThrough("?>");
        else if (c == '<')
            ++depth;
        else if (c == '>')
            --depth;
    }
}

// ---- CDATA

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
