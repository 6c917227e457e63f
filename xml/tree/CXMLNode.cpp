#include "xml/tree/CXMLNode.h"

#include "xml/tree/CXMLElement.h"
#include "xml/tree/CXMLText.h"

#include <stdexcept>

namespace OrvaneXML {

namespace {

const CXMLElement* asElement(const CXMLNode* node)
{
    return node->Kind() == CXMLNode::EKind::Element ? static_cast<const CXMLElement*>(node)
                                                    : nullptr;
}

/// Releases a half-made copy when making it fails.
struct CCopyGuard {
    CXMLNode* copy;
    CXMLStore& store;

    ~CCopyGuard()
    {
        if (copy)
            copy->ReleaseAll(store);
    }
};

} // namespace

int CXMLNode::Scan(const char* format, ...) const
{
    std::va_list arguments;
    va_start(arguments, format);
    const int nbStored = scanText(GetText(), format, arguments);
    va_end(arguments);
    return nbStored;
}

int CXMLNode::Print(const char* format, ...)
{
    std::va_list arguments;
    va_start(arguments, format);
    const CXMLPrinted printed(format, arguments);
    va_end(arguments);
    SetText(printed.text());
    return printed.length();
}

XIXMLElement* CXMLNode::GetParent() const
{
    return ParentElement();
}

CXMLStore& CXMLNode::Store() const
{
    return ParentElement()->Store();
}

bool CXMLNode::IsFirst() const
{
    const CXMLElement* parent = ParentElement();
    return parent && parent->FirstNode() == this;
}

void CXMLNode::Destroy()
{
    CXMLStore& store = Store();
    ParentElement()->Unlink(this);
    ReleaseAll(store);
}

void CXMLNode::ReleaseAll(CXMLStore& store)
{
    CXMLNode* node = this;
    for (;;) {
        if (node->Kind() == EKind::Element) {
            if (CXMLNode* child = static_cast<CXMLElement*>(node)->TakeChildren()) {
                node = child;
                continue;
            }
        }
        CXMLNode* next = node == this ? nullptr : node->mNext;
        CXMLNode* parent = node == this ? nullptr : node->ParentElement();
        node->Release(store);
        if (!next && !parent)
            return;
        node = next ? next : parent;
    }
}

XIXMLData* CXMLNode::CloneInto(XIXMLElement* parent) const
{
    if (!parent || (!ParentElement() && Kind() == EKind::Element))
        throw std::runtime_error("Cannot clone into nothing, nor the root of a tree");
    auto* target = static_cast<CXMLElement*>(parent);
    target->CheckChild(Kind());
    CXMLStore& store = target->Store();
    CCopyGuard guard{Copy(store), store};
    CXMLNode* copy = guard.copy;
    if (!copy)
        return nullptr;
    CopyChildrenTo(copy, store);
    target->Append(copy);
    guard.copy = nullptr;
    return copy;
}

void CXMLNode::CopyChildrenTo(CXMLNode* copy, CXMLStore& store) const
{
    const CXMLElement* top = asElement(this);
    const CXMLNode* node = top ? top->FirstNode() : nullptr;
    auto* parent = static_cast<CXMLElement*>(top ? copy : nullptr);
    while (node) {
        CXMLNode* child = node->Copy(store);
        if (child)
            parent->Append(child);
        const CXMLElement* element = asElement(node);
        if (element && element->FirstNode()) {
            parent = static_cast<CXMLElement*>(child);
            node = element->FirstNode();
            continue;
        }
        while (!node->mNext) {
            node = node->ParentElement();
            if (node == this)
                return;
            parent = parent->ParentElement();
        }
        node = node->mNext;
    }
}

} // namespace OrvaneXML
