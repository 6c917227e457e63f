#pragma once

#include "xml/tree/CXMLAttributes.h"
#include "xml/tree/CXMLNode.h"

#include <cstdint>
#include <string_view>

namespace OrvaneXML {

/// An element, or the root, which alone has no parent while it can be reached.
///
/// A text that is all that an element holds needs no node: it hangs on the element itself until
/// somebody asks for the children, and becomes a node then.
class CXMLElement final : public CXMLNode, public XIXMLElement {
public:
    explicit CXMLElement(const SXMLName* name) : CXMLNode(EKind::Element), mName(name) {}

    // The node view
    const char* GetText() const override;
    void SetText(const char* text) override;
    XIXMLElement* AsElement() override { return this; }
    void Destroy() override;
    CXMLStore& Store() const override { return *mName->store; }
    CXMLNode* Copy(CXMLStore& store) const override;
    void Release(CXMLStore& store) override;

    // The element view
    XIXMLData* GetNode() override { return this; }
    const XIXMLData* GetNode() const override { return this; }
    XCXMLKey MakeKey(const char* name) const override;
    void InsertChild(XIXMLData* child, XIXMLData* before) override;
    XIXMLAttribute* AddAttribute(XCXMLKey key, const char* value) override;
    XIXMLData* AddInstruction(const char* target, const char* content) override;
    void SetCData(XIXMLData::IXMLCData* provider) override;
    XIXMLData* AddText(const char* text) override;
    XIXMLElement* AddElement(XCXMLKey key) override;
    XCXMLKey GetKey() const override { return CXMLNames::KeyOf(mName); }
    void SetKey(XCXMLKey key) override;
    XIXMLData* GetFirstText() override { return FirstOf(EKind::Text); }
    const XIXMLData* GetFirstText() const override { return FirstOf(EKind::Text); }
    XIXMLData* GetFirstNode() const override { return FirstChild(); }
    XIXMLElement* GetFirstElement() const override;
    XIXMLElement* GetNextElement() const override;
    XIXMLElement* FindElement(XCXMLKey key) const override;
    XIXMLElement* GetNextSame() const override;
    XIXMLAttribute* GetFirstAttribute() const override { return mAttributes.First(Store()); }
    XIXMLAttribute* FindAttribute(XCXMLKey key) const override;
    XIXMLData* AddComment(const char* text) override;
    bool RemoveAttribute(XCXMLKey key) override;

    const SXMLName* Name() const { return mName; }
    bool IsRoot() const { return Store().root == this; }
    bool IsEmpty() const { return mContent == 0; }
    /// The text that is all the content and has no node, or null. It is never empty.
    const char* LoneText() const
    {
        return mContent & kIsText ? reinterpret_cast<const char*>(mContent & ~kIsText) : nullptr;
    }
    /// The first of the nodes that are there, which a lone text is not.
    CXMLNode* FirstNode() const
    {
        return mContent & kIsText ? nullptr : reinterpret_cast<CXMLNode*>(mContent & ~kMayHoldText);
    }
    /// False only if no text and no section is among the nodes.
    bool MayHoldText() const { return !(mContent & kIsText) && mContent & kMayHoldText; }
    /// The first child; makes the node of a lone text.
    CXMLNode* FirstChild() const
    {
        if (mContent & kIsText)
            const_cast<CXMLElement*>(this)->MakeTextNode(); // nobody can see the difference
        return FirstNode();
    }
    CXMLNode* LastChild() const { return FirstChild() ? FirstChild()->mPrevious : nullptr; }
    CXMLNode* FirstOf(EKind kind) const;
    const CXMLAttributes& Attributes() const { return mAttributes; }
    /// The first child element of a name of this tree, or null.
    CXMLElement* FindChild(const SXMLName* name) const;
    const SXMLName* NameOf(CXMLTag tag) const { return Store().names.InternTag(tag); }

    /// Throws if this is the root and the root cannot hold such a child.
    void CheckChild(EKind kind) const;
    /// Links a detached node in front of `before`, or at the end.
    void Insert(CXMLNode* child, CXMLNode* before);
    void Append(CXMLNode* child) { Insert(child, nullptr); }
    void Unlink(CXMLNode* child);
    /// Detaches the child list as a whole, for release.
    CXMLNode* TakeChildren();

    CXMLElement* AppendElement(const SXMLName* name);
    CXMLElement* AppendElement(std::string_view name)
    {
        return AppendElement(Store().names.InternElement(name));
    }
    /// All attributes of a new element; see CXMLAttributes::Fill.
    template <class TForEach>
    void FillAttributes(std::size_t nb, TForEach forEach)
    {
        mAttributes.Fill(Store(), nb, forEach);
    }
    /// Removes all and fills anew; what is used may be of those that go.
    template <class TForEach>
    void ReplaceAttributes(std::size_t nb, TForEach forEach)
    {
        CXMLAttributes fresh;
        fresh.Fill(Store(), nb, forEach);
        mAttributes.Release(Store());
        mAttributes = fresh;
    }
    /// As AddAttribute, which makes objects of all.
    void SetAttribute(const SXMLName* name, std::string_view value);
    CXMLNode* InsertText(std::string_view text, CXMLNode* before);
    /// The element has no nodes and is not the root; the text is not empty.
    void SetLoneText(std::string_view text) { HoldText(Store().NewText(text)); }
    void DropLoneText();
    /// Owns the provider from the moment that it returns.
    CXMLNode* AppendCData(XIXMLData::IXMLCData* provider);

private:
    /// Destroys the provider when this throws.
    void AppendOwnCData(XIXMLData::IXMLCData* provider);
    bool IsBelow(const CXMLNode* node) const;

    void HoldNode(CXMLNode* first)
    {
        mContent = first ? reinterpret_cast<std::uintptr_t>(first) | (mContent & kMayHoldText) : 0;
    }
    void HoldText(const char* text) { mContent = reinterpret_cast<std::uintptr_t>(text) | kIsText; }
    void MakeTextNode();
    void IndexChildren() const;
    void Link(CXMLNode* child, CXMLNode* before);

    // Bits that no pointer has: nodes are aligned to 8 and texts to 2.
    static constexpr std::uintptr_t kIsText = 1;
    static constexpr std::uintptr_t kMayHoldText = 2; // beside nodes only

    const SXMLName* mName;
    std::uintptr_t mContent = 0;        // the first child or the lone text
    mutable CXMLAttributes mAttributes; // become objects when somebody looks
};

} // namespace OrvaneXML
