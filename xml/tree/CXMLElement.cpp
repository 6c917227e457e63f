#include "xml/tree/CXMLElement.h"

#include "xml/tree/CXMLCDataNode.h"
#include "xml/tree/CXMLCommentNode.h"
#include "xml/tree/CXMLInstructionNode.h"
#include "xml/tree/CXMLTextNode.h"

#include <stdexcept>

namespace OrvaneXML {

namespace {

/// Null stands for any name.
bool isElement(const CXMLNode* node, const SXMLName* name)
{
    return node->Kind() == CXMLNode::EKind::Element &&
           (!name || static_cast<const CXMLElement*>(node)->Name() == name);
}

/// Nodes lie in memory mostly as they came, with their attributes, so what is looked at soon stands
/// behind this one and can be on its way from memory until then. A wrong guess costs nothing else.
void fetchAhead([[maybe_unused]] const CXMLNode* node)
{
#if defined(__GNUC__)
    __builtin_prefetch(
        reinterpret_cast<const void*>(reinterpret_cast<std::uintptr_t>(node) + 1024));
#endif
}

XIXMLElement* elementFrom(CXMLNode* node, const SXMLName* name)
{
    while (node && !isElement(node, name))
        node = node->Next();
    return static_cast<CXMLElement*>(node);
}

} // namespace

// ---- children

void CXMLElement::CheckChild(EKind kind) const
{
    if (IsRoot() && (kind == EKind::Text || kind == EKind::CData))
        throw std::runtime_error("The root of a tree cannot hold a text or a CDATA section");
}

void CXMLElement::Link(CXMLNode* child, CXMLNode* before)
{
    Store().indexed = nullptr;
    CXMLNode* first = FirstChild();
    child->SetParent(this);
    child->mNext = before;
    CXMLNode* neighbour = before ? before : first; // whose previous is the node in front
    child->mPrevious = neighbour ? neighbour->mPrevious : child;
    if (before == first)
        HoldNode(child);
    else
        child->mPrevious->mNext = child;
    if (neighbour)
        neighbour->mPrevious = child;
}

void CXMLElement::Insert(CXMLNode* child, CXMLNode* before)
{
    Link(child, before);
    if (child->Kind() == EKind::Text || child->Kind() == EKind::CData)
        mContent |= kMayHoldText;
}

void CXMLElement::Unlink(CXMLNode* child)
{
    Store().indexed = nullptr;
    CXMLNode* next = child->mNext;
    if (child == FirstNode())
        HoldNode(next);
    else
        child->mPrevious->mNext = next;
    if (next)
        next->mPrevious = child->mPrevious;
    else if (CXMLNode* first = FirstNode())
        first->mPrevious = child->mPrevious;
    child->SetParent(nullptr);
    child->mNext = child->mPrevious = nullptr;
}

CXMLNode* CXMLElement::TakeChildren()
{
    CXMLNode* first = FirstNode();
    if (first)
        HoldNode(nullptr);
    return first;
}

void CXMLElement::MakeTextNode()
{
    CXMLNode* node = Store().New<CXMLTextNode>(LoneText());
    HoldNode(nullptr);
    Append(node);
}

void CXMLElement::DropLoneText()
{
    if (const char* text = LoneText()) {
        HoldNode(nullptr);
        Store().FreeText(text);
    }
}

bool CXMLElement::IsBelow(const CXMLNode* node) const
{
    const CXMLNode* place = this;
    while (place && place != node)
        place = place->ParentElement();
    return place != nullptr;
}

void CXMLElement::InsertChild(XIXMLData* child, XIXMLData* before)
{
    auto* node = static_cast<CXMLNode*>(child);
    auto* place = static_cast<CXMLNode*>(before);
    if (!node || &node->Store() != &Store() || IsBelow(node))
        throw std::runtime_error("A child comes from the same tree and cannot hold its parent");
    if (place && place->ParentElement() != this)
        throw std::runtime_error("The node to insert before is not a child of the element");
    CheckChild(node->Kind());
    if (node == place)
        return;
    node->ParentElement()->Unlink(node);
    Insert(node, place);
}

CXMLNode* CXMLElement::FirstOf(EKind kind) const
{
    CXMLNode* node = kind == EKind::Text ? FirstChild() : FirstNode();
    while (node && node->Kind() != kind)
        node = node->Next();
    return node;
}

XIXMLElement* CXMLElement::GetFirstElement() const
{
    return elementFrom(FirstNode(), nullptr);
}

XIXMLElement* CXMLElement::GetNextElement() const
{
    return elementFrom(Next(), nullptr);
}

XIXMLElement* CXMLElement::GetNextSame() const
{
    return elementFrom(Next(), mName);
}

XIXMLElement* CXMLElement::FindElement(XCXMLKey key) const
{
    const SXMLName* name = Store().names.Find(key);
    return name ? FindChild(name) : nullptr;
}

CXMLElement* CXMLElement::FindChild(const SXMLName* name) const
{
    const CXMLStore& store = *name->store;
    if (store.indexed != this) {
        // A short way is walked. An element with many children is asked for most of them in turn.
        constexpr int kShortWay = 8;
        CXMLNode* node = FirstNode();
        for (int passed = 0; node && passed < kShortWay; ++passed, node = node->Next())
            if (isElement(node, name))
                return static_cast<CXMLElement*>(node);
        if (!node)
            return nullptr;
        IndexChildren();
    }
    return name->indexTime == store.indexTime ? name->child : nullptr;
}

/// Lets each name know the first child that has it.
void CXMLElement::IndexChildren() const
{
    CXMLStore& store = Store();
    ++store.indexTime;
    for (CXMLNode* node = FirstNode(); node; node = node->Next()) {
        fetchAhead(node);
        if (node->Kind() != EKind::Element)
            continue;
        auto* element = static_cast<CXMLElement*>(node);
        if (element->mName->indexTime == store.indexTime)
            continue;
        element->mName->indexTime = store.indexTime;
        element->mName->child = element;
    }
    store.indexed = this;
}

// ---- adding

CXMLElement* CXMLElement::AppendElement(const SXMLName* name)
{
    auto* element = Store().New<CXMLElement>(name);
    Store().nbBad += name->isBadElement();
    Link(element, nullptr);
    return element;
}

XIXMLElement* CXMLElement::AddElement(XCXMLKey key)
{
    return AppendElement(Store().names.Resolve(key));
}

CXMLNode* CXMLElement::InsertText(std::string_view text, CXMLNode* before)
{
    CheckChild(EKind::Text);
    CXMLStore& store = Store();
    auto* node = store.New<CXMLTextNode>(store.NewText(text));
    Insert(node, before);
    return node;
}

XIXMLData* CXMLElement::AddText(const char* text)
{
    return InsertText(textOrEmpty(text), nullptr);
}

XIXMLData* CXMLElement::AddComment(const char* text)
{
    CXMLNode* node = CXMLCommentNode::Make(Store(), textOrEmpty(text));
    Append(node);
    return node;
}

XIXMLData* CXMLElement::AddInstruction(const char* target, const char* content)
{
    CXMLStore& store = Store();
    CXMLNode* node = CXMLInstructionNode::Make(store, store.names.Intern(textOrEmpty(target)),
                                               textOrEmpty(content));
    Append(node);
    return node;
}

CXMLNode* CXMLElement::AppendCData(XIXMLData::IXMLCData* provider)
{
    CheckChild(EKind::CData);
    CXMLNode* node = CXMLCDataNode::Make(Store(), provider);
    Append(node);
    return node;
}

void CXMLElement::SetCData(XIXMLData::IXMLCData* provider)
{
    CXMLCDataNode* node = Store().knownSection;
    if (!node || node->ParentElement() != this)
        node = static_cast<CXMLCDataNode*>(FirstOf(EKind::CData));
    if (node && provider)
        node->SetProvider(provider);
    else if (node)
        node->Destroy();
    else if (provider)
        AppendOwnCData(provider);
}

void CXMLElement::AppendOwnCData(XIXMLData::IXMLCData* provider)
{
    try {
        AppendCData(provider);
    } catch (...) {
        provider->Destroy();
        throw;
    }
}

// ---- the element itself

XCXMLKey CXMLElement::MakeKey(const char* name) const
{
    return CXMLNames::KeyOf(Store().names.InternText(textOrEmpty(name)));
}

void CXMLElement::SetKey(XCXMLKey key)
{
    if (IsRoot())
        throw std::runtime_error("The root of a tree has no name");
    CXMLStore& store = Store();
    const SXMLName* name = store.names.Resolve(key);
    store.nbBad += name->isBadElement();
    store.nbBad -= mName->isBadElement();
    store.indexed = nullptr;
    mName = name;
}

const char* CXMLElement::GetText() const
{
    if (const char* lone = LoneText())
        return lone;
    const CXMLNode* text = FirstOf(EKind::Text);
    return text ? text->GetText() : "";
}

void CXMLElement::SetText(const char* text)
{
    const char* lone = LoneText();
    if (text && *text && (lone || IsEmpty()) && !IsRoot()) {
        SetLoneText(text); // first, since it may be a part of the old text
        if (lone)
            Store().FreeText(lone);
    } else if (CXMLNode* node = FirstOf(EKind::Text)) {
        node->SetText(text);
    } else {
        AddText(text);
    }
}

void CXMLElement::Destroy()
{
    if (!IsRoot())
        return CXMLNode::Destroy();
    while (CXMLNode* first = FirstNode())
        first->Destroy();
}

CXMLNode* CXMLElement::Copy(CXMLStore& store) const
{
    auto* copy = store.New<CXMLElement>(store.names.Resolve(GetKey()));
    store.nbBad += copy->mName->isBadElement();
    copy->mAttributes.Fill(store, mAttributes.Count(), [&](auto use) {
        mAttributes.ForEach([&](const SXMLName* name, const char* value) {
            use(store.names.Resolve(CXMLNames::KeyOf(name)), value);
        });
    });
    if (const char* text = LoneText())
        copy->SetLoneText(text);
    return copy;
}

void CXMLElement::Release(CXMLStore& store)
{
    DropLoneText();
    mAttributes.Release(store);
    store.nbBad -= mName->isBadElement();
    store.pool.Free(this, sizeof *this);
}

} // namespace OrvaneXML
