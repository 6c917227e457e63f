#pragma once

#include "core/CZelEmptyBasicData.h"
#include "core/TZelCOMBase.h"
#include "core/TZelComPtr.h"
#include "materials/CParentLink.h"

#include <zel/ITCENode.h>

#include <vector>

namespace OrvaneXML {
class XIXMLElement;
}

namespace OvZel {

class CTCENode;
class CZelMgrRef;
class CZelTCE;
class CZelXMLAdd;
class CZelXMLGet;
class CZelXMLIO;

/// The basic data of a node: its identity and its file form.
class CTCENodeData : public CZelEmptyBasicData {
public:
    explicit CTCENodeData(CTCENode* node) : mNode(node) {}

    OrvaneXML::XIXMLElement* putInXML(OrvaneXML::XIXMLElement* element) override;
    bool initWithXML(OrvaneXML::XIXMLElement* element, bool getUUID) override;
    const CZelUUID* getId() const override;
    void setId(const CZelUUID* id) override;
    CZelMgrRef* getWarningTarget() const override;

private:
    CTCENode* mNode;
};

/// What all nodes of a material share.
class CTCENode : public TZelCOMBase<ITCENode, &ITCENode::sIID> {
public:
    using XIXMLElement = OrvaneXML::XIXMLElement;

    ~CTCENode() override;

    IZelBasicData* getBasicData() override { return &mData; }
    IZelObjectLink* getOwnerLink() const override;
    IZelMgrRef* getMgrRef() const override;

    ITCENode* getParent() const override { return mParent.get(); }
    void setParent(ITCENode* parent) override { mParent.set(parent); }
    std::int32_t getNbChilds() const override { return static_cast<std::int32_t>(mChilds.size()); }
    ITCENode* getChild(std::int32_t index) override { return childAt(index); }
    const ITCENode* getChild(std::int32_t index) const override { return childAt(index); }
    void setChild(std::int32_t index, ITCENode* child) override;
    void addChild(ITCENode* child) override { mChilds.emplace_back(child); }
    void removeChild(std::int32_t index) override;
    const CZelUUID& getId() const override { return mId; }
    void setId(const CZelUUID& id) override { mId = id; }
    ITCENode* findNode(const CZelUUID& id) override;
    const ITCENode* findNode(const CZelUUID& id) const override;
    std::uint32_t getUIValue() const override { return mUIValue; }
    void setUIValue(std::uint32_t value) override { mUIValue = value; }
    IRootNode* asRootNode() override { return nullptr; }
    IChessNode* asChessNode() override { return nullptr; }
    IMappingNode* asMappingNode() override { return nullptr; }
    ITurbulenceNode* asTurbulenceNode() override { return nullptr; }
    ILeafNode* asLeafNode() override { return nullptr; }
    IFresnelNode* asFresnelNode() override { return nullptr; }
    IFresnelDiffuseNode* asFresnelDiffuseNode() override { return nullptr; }
    IGlazingNode* asGlazingNode() override { return nullptr; }
    ICustomNode* asCustomNode() override { return nullptr; }
    IAltitudeNode* asAltitudeNode() override { return nullptr; }
    IMultiTextureNode* asMultiTextureNode() override { return nullptr; }
    IWangTilesNode* asWangTilesNode() override { return nullptr; }
    IMatteShadowNode* asMatteShadowNode() override { return nullptr; }
    void* asReserved1() override { return nullptr; }
    void* asReserved2() override { return nullptr; }
    void* asReserved3() override { return nullptr; }
    void* asReserved4() override { return nullptr; }
    bool isShader() const override { return mShader; }
    void setShader(bool shader) override { mShader = shader; }

    /// The reference object of the document, through the root's property. Raises the null-pointer
    /// failure when there is no root above, or when the root has lost its property or document.
    CZelMgrRef* getEnclosingMgr() const;

    /// Writes the node alone, without its children, into a new child "Node"; null after a failure.
    XIXMLElement* putNodeInXML(XIXMLElement* element);
    /// Reads the node alone from the first child "Node"; false without one and after a failure.
    bool initNodeWithXML(XIXMLElement* element);

    // The file form of a class: its own values, without the frame of all nodes and the children.
    virtual void addTo(CZelXMLIO& io, const CZelXMLAdd& out) const = 0;
    virtual void getFrom(CZelXMLIO& io, const CZelXMLGet& in) = 0;
    /// Values that are read ahead of everything else.
    virtual void getFirst(CZelXMLIO&, const CZelXMLGet&) {}
    /// Whether the children are read between getFirst and getFrom instead of behind both.
    virtual bool readsChildrenFirst() const { return false; }
    /// Adds the element for the child at the index; null when the file form has no such child. The
    /// child may be missing from the node, which then fails.
    virtual XIXMLElement* addChildElement(const CZelXMLAdd& out, std::int32_t index) const;
    /// The element of the child behind `previous`, null for the first one; null behind the last.
    virtual XIXMLElement* getChildElement(const CZelXMLGet& in, XIXMLElement* previous) const;
    /// Raises when a node of this type cannot be read alone from an element of that type.
    virtual void checkSingleType(eNodeType) const {}

protected:
    /// The parent may be null; its list of children does not change.
    explicit CTCENode(ITCENode* parent);
    /// A copy of the values alone, with an identity of its own and no children.
    CTCENode(ITCENode* parent, const CTCENode& source);

private:
    ITCENode* childAt(std::int32_t index) const;

    CZelUUID mId;
    CParentLink mParent;
    std::vector<TZelComPtr<ITCENode>> mChilds;
    std::uint32_t mUIValue = 0;
    bool mShader = true;
    CTCENodeData mData{this};
};

/// The material below a node; raises as getEnclosingMgr does.
CZelTCE* getEnclosingTCE(const ITCENode* node);

} // namespace OvZel
