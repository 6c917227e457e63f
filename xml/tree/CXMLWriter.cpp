#include "xml/tree/CXMLWriter.h"

#include "xml/tree/CXMLCDataNode.h"
#include "xml/tree/CXMLElement.h"

#include <charconv>
#include <cstdint>
#include <cstring>

using namespace std::string_view_literals;

namespace OrvaneXML {

namespace {

/// Names lie in the pool of the tree, which can be read for so far.
SPaddedText padded(const SXMLName* name)
{
    return {name->view()};
}

bool isWhite(const char* text)
{
    return text[std::strspn(text, " \t\r\n")] == 0;
}

bool isText(const CXMLNode* node)
{
    return node && node->Kind() == CXMLNode::EKind::Text;
}

/// Neighbouring texts read back as one, so they count as one.
bool isWhiteRun(const CXMLNode* node)
{
    for (; isText(node); node = node->Next())
        if (!isWhite(node->GetText()))
            return false;
    return true;
}

struct SContent {
    bool isEmpty = true;
    bool hasElements = false;
    bool hasText = false;
};

SContent contentOf(const CXMLElement& element)
{
    SContent content;
    for (const CXMLNode* node = element.FirstNode(); node; node = node->Next()) {
        const CXMLNode::EKind kind = node->Kind();
        if (kind == CXMLNode::EKind::Text && !*node->GetText())
            continue; // nothing to be seen of it
        content.isEmpty = false;
        content.hasElements |= kind == CXMLNode::EKind::Element;
        content.hasText |= kind == CXMLNode::EKind::Text || kind == CXMLNode::EKind::CData;
        if (content.hasElements && (content.hasText || !element.MayHoldText()))
            break;
    }
    return content;
}

} // namespace

bool CXMLWriter::Write(const CXMLElement& root)
{
    CXMLNode* node = root.FirstNode();
    if (!node)
        return true;
    for (;;) {
        if (!isText(node)) // beside a text there are no lines, and an empty one is not seen
            NewLine();
        auto* element =
            static_cast<CXMLElement*>(node->Kind() == CXMLNode::EKind::Element ? node : nullptr);
        if (element ? Open(*element) : (Node(*node), false)) {
            node = element->FirstNode();
            continue;
        }
        while (!node->Next() && node->ParentElement() != &root) {
            node = node->ParentElement();
            Close(static_cast<CXMLElement&>(*node));
        }
        if (!node->Next())
            break;
        node = node->Next();
    }
    mOut.Put('\n');
    mOut.Flush();
    return mIsComplete;
}

void CXMLWriter::NewLine()
{
    if (mInlineDepth != kNowhere)
        return;
    if (!mIsStarted) {
        mIsStarted = true;
        return;
    }
    constexpr std::string_view kLine = "\n\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t";
    const std::size_t nb = mHasElements.size() + 1;
    mOut.PutAll(SPaddedText{kLine.substr(0, nb)});
    for (std::size_t done = kLine.size(); done < nb; ++done)
        mOut.Put('\t');
}

void CXMLWriter::Node(CXMLNode& node)
{
    switch (node.Kind()) {
    case CXMLNode::EKind::Text:
        return Text(node);
    case CXMLNode::EKind::Comment:
        return Comment(node.GetText());
    case CXMLNode::EKind::Instruction:
        return Instruction(node);
    case CXMLNode::EKind::CData:
        return Section(static_cast<CXMLCDataNode&>(node));
    case CXMLNode::EKind::Element:
        break; // has its own way, through Open and Close
    }
}

void CXMLWriter::Tag(const CXMLElement& element)
{
    mOut.PutAll("<"sv, padded(element.Name()));
    element.Attributes().ForEach([this](const SXMLName* name, const char* value) {
        mOut.PutAll(" "sv, padded(name), "=\""sv);
        Escaped(value, true);
        mOut.Put('"');
    });
}

void CXMLWriter::EndTag(const CXMLElement& element)
{
    mOut.PutAll("</"sv, padded(element.Name()), ">"sv);
}

/// True if the element is open now and its children come next.
bool CXMLWriter::Open(const CXMLElement& element)
{
    mKeepNext = false;
    Tag(element);
    if (const char* text = element.LoneText()) {
        mOut.Put('>');
        Escaped(text, false);
        EndTag(element);
        return false;
    }
    const SContent content = contentOf(element);
    if (content.isEmpty) {
        mOut.Put("/>");
        return false;
    }
    mOut.Put('>');
    if (mInlineDepth == kNowhere && (content.hasText || !content.hasElements))
        mInlineDepth = mHasElements.size();
    mHasElements.push_back(content.hasElements);
    return true;
}

void CXMLWriter::Close(const CXMLElement& element)
{
    mHasElements.pop_back();
    NewLine();
    if (mInlineDepth == mHasElements.size())
        mInlineDepth = kNowhere;
    EndTag(element);
}

void CXMLWriter::Text(const CXMLNode& node)
{
    if (!isText(node.Previous()))
        mKeepNext = mHasElements.back() && isWhiteRun(&node);
    Escaped(node.GetText(), false);
}

void CXMLWriter::Comment(std::string_view text)
{
    mOut.Put("<!--");
    mOut.Put(text);
    mOut.Put(!text.empty() && text.back() == '-' ? " -->" : "-->");
}

void CXMLWriter::Instruction(CXMLNode& node)
{
    const XIXMLInstruction& view = *node.AsInstruction();
    mOut.Put("<?");
    mOut.Put(view.GetTarget());
    if (*view.GetContent())
        mOut.Put(' ');
    mOut.Put(view.GetContent());
    mOut.Put("?>");
}

void CXMLWriter::Section(CXMLCDataNode& node)
{
    mOut.Put("<![CDATA[");
    if (!node.Provider()->Write(&mOut, nullptr, &node))
        mIsComplete = false;
    mOut.Put("]]>");
}

/// The text is one of the tree's own.
void CXMLWriter::Escaped(const char* text, bool isValue)
{
    if (mKeepNext) {
        if (!*text)
            return;
        mKeepNext = false;
        Reference(*text++);
    }
    while (*(text = mOut.PutPlain(text)))
        NotPlain(*text++, isValue);
}

/// A tab or a line end can stand in a text as it is; reading would make blanks of them in a value.
void CXMLWriter::NotPlain(char c, bool isValue)
{
    if (!isValue && (c == '\t' || c == '\n'))
        mOut.Put(c);
    else
        Reference(c);
}

void CXMLWriter::Reference(char c)
{
    switch (c) {
    case '&':
        return mOut.Put("&amp;");
    case '<':
        return mOut.Put("&lt;");
    case '>':
        return mOut.Put("&gt;");
    case '"':
        return mOut.Put("&quot;");
    default:
        break;
    }
    char digits[4];
    const char* end =
        std::to_chars(digits, digits + sizeof digits, static_cast<unsigned char>(c)).ptr;
    mOut.Put("&#");
    for (const char* digit = digits; digit != end; ++digit)
        mOut.Put(*digit);
    mOut.Put(';');
}

} // namespace OrvaneXML
