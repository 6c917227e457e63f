#pragma once

#include "xml/tree/CXMLStore.h"

#include <zel/xml/XIXMLElement.h>

#include <cstdint>

namespace OrvaneXML {

/// What all nodes of a child list share: the links, and the operations built on the others.
///
/// Nodes live in the pool of their tree and have no destructors; Release gives back what they hold.
/// The first child's previous node is the last child.
class CXMLNode : public XIXMLData {
public:
    enum class EKind { Element, Text, Comment, Instruction, CData };

    XIXMLData* GetNextNode() const final { return mNext; }
    XIXMLInstruction* AsInstruction() override { return nullptr; }
    int Scan(const char* format, ...) const final;
    int Print(const char* format, ...) final;
    XIXMLElement* GetParent() const final;
    XIXMLData* CloneInto(XIXMLElement* parent) const final;
    XIXMLComment* AsComment() override { return nullptr; }
    XIXMLElement* AsElement() override { return nullptr; }
    void Destroy() override;

    EKind Kind() const { return static_cast<EKind>(mParentAndKind & kKindBits); }
    /// The tree's shared part; the node is attached.
    virtual CXMLStore& Store() const;
    /// A detached copy without children in a tree, or null if a provider cannot be cloned.
    virtual CXMLNode* Copy(CXMLStore& store) const = 0;
    /// Gives this node's memory back. It is detached and has no children.
    virtual void Release(CXMLStore& store) = 0;

    CXMLElement* ParentElement() const
    {
        return reinterpret_cast<CXMLElement*>(mParentAndKind & ~kKindBits);
    }
    CXMLNode* Next() const { return mNext; }
    bool IsFirst() const;
    /// Null for the first child.
    CXMLNode* Previous() const { return IsFirst() ? nullptr : mPrevious; }

    /// Releases detached nodes: this one and all below it.
    void ReleaseAll(CXMLStore& store);

protected:
    explicit CXMLNode(EKind kind) : mParentAndKind(static_cast<std::uintptr_t>(kind)) {}
    ~CXMLNode() = default;

private:
    friend class CXMLElement;

    void SetParent(const CXMLElement* parent)
    {
        mParentAndKind = reinterpret_cast<std::uintptr_t>(parent) | (mParentAndKind & kKindBits);
    }
    void CopyChildrenTo(CXMLNode* copy, CXMLStore& store) const;

    static constexpr std::uintptr_t kKindBits = 7; // which no pointer to a node has

    std::uintptr_t mParentAndKind;
    CXMLNode* mNext = nullptr;
    CXMLNode* mPrevious = nullptr;
};

} // namespace OrvaneXML
