#pragma once

#include "xml/tree/CXMLAttribute.h"
#include "xml/tree/CXMLNode.h"

#include <string_view>

namespace OrvaneXML {

/// An element, or the root, which alone has no parent while it can be reached.
class CXMLElement final : public CXMLNode, public XIXMLElement {
public:
    explicit CXMLElement(const SXMLName* name) : mName(name) {}

    // The node view
    const char* GetText() const override;
    void SetText(const char* text) override;
    XIXMLElement* AsElement() override { return this; }
    void Destroy() override;
    EKind Kind() const override { return EKind::Element; }
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
    XIXMLData* GetFirstNode() const override { return mFirst; }
    XIXMLElement* GetFirstElement() const override;
    XIXMLElement* GetNextElement() const override;
    XIXMLElement* FindElement(XCXMLKey key) const override;
    XIXMLElement* GetNextSame() const override;
    XIXMLAttribute* GetFirstAttribute() const override { return mFirstAttribute; }
    XIXMLAttribute* FindAttribute(XCXMLKey key) const override;
    XIXMLData* AddComment(const char* text) override;
    bool RemoveAttribute(XCXMLKey key) override;

    const SXMLName* Name() const { return mName; }
    bool IsRoot() const { return Store().root == this; }
    CXMLNode* FirstChild() const { return mFirst; }
    CXMLNode* LastChild() const { return mFirst ? mFirst->mPrevious : nullptr; }
    CXMLNode* FirstOf(EKind kind) const;
    CXMLAttribute* FirstAttribute() const { return mFirstAttribute; }

    /// Throws if this is the root and the root cannot hold such a child.
    void CheckChild(EKind kind) const;
    /// Links a detached node in front of `before`, or at the end.
    void Insert(CXMLNode* child, CXMLNode* before);
    void Append(CXMLNode* child) { Insert(child, nullptr); }
    void Unlink(CXMLNode* child);
    /// Detaches the child list as a whole, for release.
    CXMLNode* TakeChildren();

    CXMLElement* AppendElement(std::string_view name)
    {
        return AppendNamed(Store().names.Intern(name));
    }
    /// Links behind `last`, or as the only one, also when the name is there already.
    CXMLAttribute* AppendAttribute(CXMLAttribute* last, const SXMLName* name,
                                   std::string_view value);
    CXMLNode* InsertText(std::string_view text, CXMLNode* before);
    CXMLNode* AppendCData(XIXMLData::IXMLCData* provider);

private:
    CXMLElement* AppendNamed(const SXMLName* name);
    CXMLAttribute* LastAttribute() const;
    bool IsBelow(const CXMLNode* node) const;

    const SXMLName* mName;
    CXMLNode* mFirst = nullptr;
    CXMLAttribute* mFirstAttribute = nullptr;
};

} // namespace OrvaneXML
