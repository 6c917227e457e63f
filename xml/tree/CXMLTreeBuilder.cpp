#include "xml/tree/CXMLTreeBuilder.h"

#include "xml/tree/CXMLCDataNode.h"
#include "xml/tree/CXMLCommentNode.h"
#include "xml/tree/CXMLInstructionNode.h"
#include "xml/tree/CXMLOpaqueCData.h"
#include "xml/tree/CXMLSectionStream.h"

#include <memory>
#include <utility>

namespace OrvaneXML {

void CXMLTreeBuilder::Run()
{
    using EToken = CXMLScanner::EToken;
    for (;;) {
        switch (mScanner.Next()) {
        case EToken::End:
            return;
        case EToken::StartTag:
            Start();
            break;
        case EToken::EndTag:
            End();
            break;
        case EToken::Leaf:
            Leaf();
            break;
        case EToken::Text:
            AddText();
            break;
        case EToken::Comment:
            FlushText(nullptr);
            mCurrent->Append(CXMLCommentNode::Make(mCurrent->Store(), mScanner.Text()));
            break;
        case EToken::Instruction:
            FlushText(nullptr);
            mCurrent->Append(CXMLInstructionNode::Make(
                mCurrent->Store(), mCurrent->Store().names.Intern(mScanner.Name()),
                mScanner.Text()));
            break;
        case EToken::CData:
            Section();
            break;
        }
    }
}

/// The element whose start was read, without a content.
CXMLElement& CXMLTreeBuilder::AddElement()
{
    if (!mOpen.empty() && !mOpen.back().hasElements)
        DropWhite();
    FlushText(nullptr);
    CXMLNames& names = mCurrent->Store().names;
    const SXMLName* known = mScanner.KnownName();
    CXMLElement& element = *mCurrent->AppendElement(known ? names.TakeElement(known)
                                                          : names.InternElement(mScanner.Name()));
    const std::size_t nb = mScanner.NbAttributes();
    element.FillAttributes(nb, [&](auto use) {
        for (std::size_t i = 0; i < nb; ++i) {
            const SXMLName* name = mScanner.KnownAttribute(i);
            use(name ? names.Take(name) : names.Intern(mScanner.AttributeName(i)),
                mScanner.AttributeValue(i));
        }
    });
    return element;
}

void CXMLTreeBuilder::Start()
{
    mCurrent = &AddElement();
    mOpen.push_back({mWhite.size()});
}

void CXMLTreeBuilder::Leaf()
{
    CXMLElement& element = AddElement();
    if (!mScanner.Text().empty())
        element.SetLoneText(mScanner.Text());
}

void CXMLTreeBuilder::End()
{
    FlushText(nullptr);
    mWhite.resize(mOpen.back().nbWhite);
    mOpen.pop_back();
    mCurrent = mCurrent->ParentElement();
}

/// The first child element makes the white space in front of it meaningless.
void CXMLTreeBuilder::DropWhite()
{
    SOpen& open = mOpen.back();
    open.hasElements = true;
    for (; mWhite.size() > open.nbWhite; mWhite.pop_back())
        mWhite.back()->Destroy();
}

/// Most texts are all that their element holds and go there at once.
void CXMLTreeBuilder::AddText()
{
    if (!mScanner.IsWhite() && mText.empty() && mCurrent->IsEmpty()) {
        mCurrent->SetLoneText(mScanner.Text());
        mIsStored = true;
        return;
    }
    mText += mScanner.Text();
    mIsWhite = mIsWhite && mScanner.IsWhite();
}

/// A section follows, which may leave no gap between this text and the next.
void CXMLTreeBuilder::TakeTextBack()
{
    if (!mIsStored)
        return;
    mText = mCurrent->LoneText();
    mCurrent->DropLoneText();
    mIsWhite = mIsStored = false;
}

void CXMLTreeBuilder::FlushText(CXMLNode* before)
{
    mIsStored = false;
    if (mText.empty())
        return;
    if (!mIsWhite || !mOpen.back().hasElements) {
        CXMLNode* node = mCurrent->InsertText(mText, before);
        if (mIsWhite)
            mWhite.push_back(node);
    }
    mText.clear();
    mIsWhite = true;
}

void CXMLTreeBuilder::Section()
{
    TakeTextBack();
    if (!mReader)
        return KeepSection();
    CXMLSectionStream stream(mScanner);
    if (!Offer(stream) && !stream.IsTouched())
        KeepSection();
}

/// Gives the section to the callback, with the text in front of it put ahead of what that adds.
bool CXMLTreeBuilder::Offer(CXMLSectionStream& stream)
{
    CXMLNode* last = mCurrent->LastChild();
    CXMLStore& store = mCurrent->Store();
    store.knownSection = mOpen.back().section;
    const bool isTaken = mReader->ReadCData(mCurrent, &stream);
    store.knownSection = nullptr;
    if (CXMLNode* added = last ? last->Next() : mCurrent->FirstChild()) {
        FlushText(added);
        NoteSection(added);
    }
    return isTaken;
}

/// Remembers the first section at or behind a new child.
void CXMLTreeBuilder::NoteSection(CXMLNode* node)
{
    while (node && node->Kind() != CXMLNode::EKind::CData)
        node = node->Next();
    if (!mOpen.back().section)
        mOpen.back().section = static_cast<CXMLCDataNode*>(node);
}

void CXMLTreeBuilder::KeepSection()
{
    FlushText(nullptr);
    std::string bytes;
    char piece[16 * 1024];
    while (const std::uint32_t nb = mScanner.ReadSection(piece, sizeof piece))
        bytes.append(piece, nb);
    auto provider = std::make_unique<CXMLOpaqueCData>(std::move(bytes));
    NoteSection(mCurrent->AppendCData(provider.get()));
    provider.release();
}

} // namespace OrvaneXML
