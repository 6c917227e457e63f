#include "xml/tree/CXMLScanner.h"

#include "xml/tree/characters.h"
#include "xml/tree/decodeText.h"
#include "xml/tree/findStop.h"
#include "xml/tree/shortBytes.h"
#include "xml/tree/skipDoctype.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <limits>

namespace OrvaneXML {

namespace {

constexpr std::size_t kMaxDepth = 10'000;

/// NUL stands behind the last byte of the window too, so that it ends every loop.
constexpr std::array<bool, 256> makeNameEnds()
{
    std::array<bool, 256> ends{};
    for (unsigned c = 0; c < 256; ++c)
        ends[c] = isNameEnd(static_cast<char>(c));
    return ends;
}

constexpr auto kNameEnds = makeNameEnds();

/// Those that may stand behind a name.
constexpr std::array<bool, 256> makePlainNameEnds()
{
    std::array<bool, 256> ends = kNameEnds;
    for (unsigned c = 0; c < ' '; ++c)
        ends[c] = isWhite(static_cast<char>(c));
    return ends;
}

constexpr auto kPlainNameEnds = makePlainNameEnds();

bool endsName(char c)
{
    return kNameEnds[static_cast<unsigned char>(c)];
}

template <class TChar>
TChar* pastWhite(TChar* p)
{
    while (isWhite(*p))
        ++p;
    return p;
}

} // namespace

CXMLScanner::EToken CXMLScanner::Next()
{
    if (mIsInSection)
        SkipSection();
    if (mIsCovered) {
        mIsCovered = false;
        mBuffer[mPosition] = '<';
    }
    if (!mIsStarted && StartsWith("\xEF\xBB\xBF"))
        mPosition += 3;
    mIsStarted = true;
    for (;;) {
        Release();
        if (!Need(1))
            return AtEnd();
        if (mBuffer[mPosition] == '<') {
            if (const EToken token = Markup(); token != EToken::End)
                return token;
        } else if (mOpenBegins.empty()) {
            SkipWhite();
            if (mPosition < mEnd && Peek() != '<')
                Fail("text outside the root element");
        } else if (!PassWhite()) {
            return TextToken();
        }
    }
}

/// Passes white space that means nothing, since the element has child elements.
bool CXMLScanner::PassWhite()
{
    if (!mIsBehindTag)
        return false;
    const char* p = pastWhite(At(0));
    if (*p != '<' || !p[1] || p[1] == '!' || p[1] == '?')
        return false;
    if (!mIsBehindChild && p[1] == '/')
        return false;
    mPosition = PlaceOf(p);
    return true;
}

CXMLScanner::EToken CXMLScanner::AtEnd()
{
    if (!mOpenBegins.empty())
        Fail("end tag missing");
    if (!mIsRootSeen)
        Fail("no root element");
    return EToken::End;
}

/// End stands for a document type declaration, which is no token.
CXMLScanner::EToken CXMLScanner::Markup()
{
    Need(2);
    switch (*At(1)) {
    case '/':
        return EndTag();
    case '?':
        ++mPosition;
        return Instruction();
    case '!':
        if (StartsWith("<!DOCTYPE")) {
            Doctype();
            return EToken::End;
        }
        ++mPosition;
        if (StartsWith("!--"))
            return Comment();
        if (StartsWith("![CDATA["))
            return Section();
        Fail("unknown markup");
    default:
        return mStopsAtRoot ? RootName() : StartTag();
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
        const SPiece piece{At(begin), At(from - mark.size())};
        if (std::memchr(piece.begin, 0, piece.view().size()))
            Fail("NUL byte");
        return piece;
    }
}

CXMLScanner::EToken CXMLScanner::Comment()
{
    mIsBehindTag = false;
    mPosition += 3;
    mText = UpTo("-->");
    Terminate(mText);
    return EToken::Comment;
}

CXMLScanner::EToken CXMLScanner::Instruction()
{
    mIsBehindTag = false;
    ++mPosition;
    const SPiece all = UpTo("?>");
    char* nameEnd = std::find_if(all.begin, all.end, isNameEnd);
    if (nameEnd == all.begin || (nameEnd != all.end && !isWhite(*nameEnd)))
        Fail("bad instruction target", mTokenBegin);
    mName = {{all.begin, nameEnd}};
    mText = {std::find_if_not(nameEnd, all.end, isWhite), all.end};
    Terminate(mName);
    Terminate(mText);
    return EToken::Instruction;
}

/// Scans the token once more whenever the window ended in it.
template <char* (CXMLScanner::*Scan)()>
void CXMLScanner::Whole()
{
    char* end;
    while (!(end = (this->*Scan)()))
        if (!Widen())
            Fail("unexpected end", mEnd);
    mPosition = PlaceOf(end);
}

/// A NUL was met: the end of the window, or a byte that no document may have.
char* CXMLScanner::Cut(char* p)
{
    if (PlaceOf(p) != mEnd)
        Fail("NUL byte", PlaceOf(p));
    return nullptr;
}

char* CXMLScanner::ScanName(char* p, SName& name, const SXMLName* guess)
{
    name.begin = p;
    name.known = nullptr;
    if (guess && !guess->isBad && mEnd - PlaceOf(p) > guess->length &&
        isSame(p, guess->text(), guess->length) &&
        kPlainNameEnds[static_cast<unsigned char>(p[guess->length])]) {
        name.known = guess;
        return name.end = p + guess->length;
    }
    while (!endsName(*p))
        ++p;
    name.end = p;
    if (!*p)
        return Cut(p);
    if (p == name.begin || !kPlainNameEnds[static_cast<unsigned char>(*p)])
        Fail("bad name", PlaceOf(p));
    return p;
}

char* CXMLScanner::ScanStartTag()
{
    mAttributes.clear();
    mIsLeaf = false;
    char* p = ScanName(At(1), mName, mNames ? mNames->GuessElement() : nullptr);
    const SXMLName* last = mName.known;
    while (p) {
        p = pastWhite(p);
        if (*p == '>')
            return PastLeaf(p + 1);
        if (*p == '/') {
            if (!p[1])
                return Cut(p + 1);
            if (p[1] != '>')
                Fail("\">\" expected", PlaceOf(p + 1));
            mIsLeaf = true;
            mText = {p, p};
            return p + 2;
        }
        if (!*p)
            return Cut(p);
        p = ScanAttribute(p, last ? last->follower : nullptr);
        last = mAttributes.back().name.known;
    }
    return nullptr;
}

char* CXMLScanner::ScanRootName()
{
    return ScanName(At(1), mName, nullptr);
}

/// Behind the end tag if only a plain text stands in front of that, and it is here; else `p`.
char* CXMLScanner::PastLeaf(char* p)
{
    if (isWhite(*p))
        return p;
    char* const end = findTextStop(p);
    const std::size_t size = mName.view().size();
    if (end[0] != '<' || end[1] != '/' || mEnd - PlaceOf(end) < size + 3 || end[2 + size] != '>' ||
        !isSame(end + 2, mName.begin, size))
        return p;
    mIsLeaf = true;
    mText = {p, end};
    return end + size + 3;
}

char* CXMLScanner::ScanAttribute(char* p, const SXMLName* guess)
{
    SAttribute& attribute = mAttributes.emplace_back();
    p = ScanName(p, attribute.name, guess);
    if (!p)
        return nullptr;
    p = pastWhite(p);
    if (*p != '=')
        return *p ? (Fail("\"=\" expected", PlaceOf(p)), nullptr) : Cut(p);
    p = pastWhite(p + 1);
    const char quote = *p;
    if (quote != '"' && quote != '\'')
        return quote ? (Fail("quote expected", PlaceOf(p)), nullptr) : Cut(p);
    attribute.value.begin = ++p;
    p = ScanValue(p, quote, attribute.isPlain);
    attribute.value.end = p;
    return p ? p + 1 : nullptr;
}

/// The place of the quote that ends the value.
char* CXMLScanner::ScanValue(char* p, char quote, bool& isPlain)
{
    isPlain = true;
    for (;; ++p) {
        p = findValueStop(p, quote);
        if (*p == quote)
            return p;
        if (!*p)
            return Cut(p);
        isPlain = false;
    }
}

CXMLScanner::EToken CXMLScanner::StartTag()
{
    Whole<&CXMLScanner::ScanStartTag>();
    CheckElement();
    for (SAttribute& attribute : mAttributes) {
        if (!attribute.isPlain)
            Decode(attribute.value, true);
        Terminate(attribute.name);
        Terminate(attribute.value);
    }
    Terminate(mName);
    if (!mIsLeaf) {
        OpenElement();
        return EToken::StartTag;
    }
    Terminate(mText);
    BehindChild();
    return EToken::Leaf;
}

CXMLScanner::EToken CXMLScanner::RootName()
{
    Whole<&CXMLScanner::ScanRootName>();
    Terminate(mName);
    return EToken::StartTag;
}

void CXMLScanner::CheckElement()
{
    if (mOpenBegins.empty() && mIsRootSeen)
        Fail("more than one root element", mTokenBegin);
    if (mOpenBegins.size() == kMaxDepth)
        Fail("elements nested too deeply", mTokenBegin);
    mIsRootSeen = true;
}

void CXMLScanner::OpenElement()
{
    mIsBehindTag = true;
    mIsBehindChild = false;
    mOpenBegins.push_back(mOpenNames.size());
    mOpenNames += Name();
}

void CXMLScanner::BehindChild()
{
    mIsBehindTag = mIsBehindChild = true;
}

std::string_view CXMLScanner::OpenName() const
{
    return std::string_view(mOpenNames).substr(mOpenBegins.back());
}

/// Behind the name of the open element if that is what stands here, as nearly always; else null.
char* CXMLScanner::PastOpenName(char* p) const
{
    if (mOpenBegins.empty())
        return nullptr;
    const std::string_view name = OpenName();
    const bool isThere = mEnd - PlaceOf(p) > name.size() && isSame(p, name.data(), name.size()) &&
                         (p[name.size()] == '>' || isWhite(p[name.size()]));
    return isThere ? p + name.size() : nullptr;
}

char* CXMLScanner::ScanEndTag()
{
    char* p = PastOpenName(At(2));
    if (!p) {
        p = ScanName(At(2), mName, nullptr);
        if (!p)
            return nullptr;
        if (mOpenBegins.empty() || Name() != OpenName())
            Fail("end tag does not match", PlaceOf(p));
    }
    p = pastWhite(p);
    if (!*p)
        return Cut(p);
    if (*p != '>')
        Fail("\">\" expected", PlaceOf(p));
    return p + 1;
}

CXMLScanner::EToken CXMLScanner::EndTag()
{
    Whole<&CXMLScanner::ScanEndTag>();
    mOpenNames.resize(mOpenBegins.back());
    mOpenBegins.pop_back();
    BehindChild();
    return EToken::EndTag;
}

char* CXMLScanner::ScanText()
{
    char* const begin = At(0);
    char* p = begin;
    mIsPlain = true;
    for (; isWhite(*p); ++p)
        mIsPlain &= *p != '\r';
    mIsWhite = *p == '<';
    for (;; ++p) {
        p = findTextStop(p);
        if (*p == '<' || !*p)
            break;
        mIsPlain = false;
    }
    mText = {begin, p};
    return *p ? p : Cut(p);
}

CXMLScanner::EToken CXMLScanner::TextToken()
{
    while (!ScanText())
        if (!Widen())
            Fail("end tag missing", mEnd);
    mIsBehindTag = false;
    mPosition = PlaceOf(mText.end);
    mIsCovered = true;
    if (!mIsPlain)
        Decode(mText, false);
    Terminate(mText);
    return EToken::Text;
}

void CXMLScanner::Decode(SPiece& piece, bool isValue)
{
    const SDecoded decoded = decodeText(piece.begin, piece.end, isValue);
    if (decoded.bad)
        Fail("unknown reference", PlaceOf(decoded.bad));
    piece.end = decoded.end;
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
    mIsBehindTag = false;
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
    Release();
    return static_cast<std::uint32_t>(nb);
}

void CXMLScanner::SkipSection()
{
    while (const std::size_t nb = SectionBytes(std::numeric_limits<std::size_t>::max() / 2)) {
        mPosition += nb;
        Release();
    }
}

} // namespace OrvaneXML
