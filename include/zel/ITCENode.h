#pragma once

#include <zel/IZelBasic.h>

namespace OvZel {

class IAltitudeNode;
class IChessNode;
class ICustomNode;
class IFresnelDiffuseNode;
class IFresnelNode;
class IGlazingNode;
class ILeafNode;
class IMappingNode;
class IMatteShadowNode;
class IMultiTextureNode;
class IRootNode;
class ITurbulenceNode;
class IWangTilesNode;

/// What a node of a material is: the operation of ITCENode that isn't null, and the number of
/// children that it has when the material is saved.
enum eNodeType : std::int32_t {
    eRootNode = 0,           ///< asRootNode; one child
    eChessNode = 1,          ///< asChessNode; two children
    eMappingNode = 2,        ///< asMappingNode; one child
    eTurbulenceNode = 3,     ///< asTurbulenceNode; one child
    eLeafNode = 4,           ///< asLeafNode; none
    eFresnelNode = 5,        ///< asFresnelNode; one child
    eFresnelDiffuseNode = 6, ///< asFresnelDiffuseNode; one child
    eGlazingNode = 7,        ///< asGlazingNode; one child
    eAltitudeNode = 8,       ///< asAltitudeNode; one child
    eMultiTextureNode = 9,   ///< asMultiTextureNode; one child
    eWangTilesNode = 10,     ///< asWangTilesNode; one child
    eCustomNode = 11,        ///< asCustomNode; any number
    eMatteShadowNode = 12    ///< asMatteShadowNode; one child
};

/// The tree side of a material's node.
///
/// A material is a root with one chain of nodes under it; each node that blends or changes carries
/// its input as a child, and a leaf ends the chain. Nodes hold their children by counted references
/// and know their parent without keeping it. Being in a parent's list and knowing that parent are
/// two things: whoever moves a node does both. Nodes that a client gets from here carry no
/// reference for it.
///
/// AddRef and Release may come from any thread, everything else from one at a time.
///
/// The order of the virtual operations is a promise to compiled clients.
class ITCENode : public IZelBasic {
public:
    static constexpr CZelUUID sIID{"6B753864231F4F20906BB06145D838BC"};

    /// Null for a root, and once the parent is gone.
    virtual ITCENode* getParent() const = 0;
    /// Touches no list of children. Null is allowed.
    virtual void setParent(ITCENode* parent) = 0;
    /// How many children the node holds, 0 in a new one.
    virtual std::int32_t getNbChilds() const = 0;
    /// Null outside the list, which is reported nowhere, and for an empty place.
    virtual ITCENode* getChild(std::int32_t index) = 0;
    virtual const ITCENode* getChild(std::int32_t index) const = 0;
    /// Replaces the child, or appends it when the index is the number of children. Any other index
    /// changes nothing. The node keeps a reference on the child and leaves its parent as it is.
    virtual void setChild(std::int32_t index, ITCENode* child) = 0;
    /// A node that comes to stand below itself is never freed, and a save or a copy of its material
    /// fails with "A node of the material stands below itself". A node may stand in two places.
    virtual void addChild(ITCENode* child) = 0;
    /// Children behind it move down; a bad index changes nothing.
    virtual void removeChild(std::int32_t index) = 0;
    /// The node's identity, random in a new node; good as long as the node.
    virtual const CZelUUID& getId() const = 0;
    virtual void setId(const CZelUUID& id) = 0;
    /// The first node with this identity, this one or one below it, last children first; null if
    /// there is none. Throws "TZelComPtr::operator->() - Dereferencing NULL" when the search meets
    /// an empty place.
    virtual ITCENode* findNode(const CZelUUID& id) = 0;
    virtual const ITCENode* findNode(const CZelUUID& id) const = 0;
    /// A number for the user interface, 0 in a new node.
    virtual std::uint32_t getUIValue() const = 0;
    virtual void setUIValue(std::uint32_t value) = 0;
    /// The class of the node; it never changes.
    virtual eNodeType getNodeType() const = 0;
    /// The parameters of a node. Each of these is null except in the one class of that name.
    virtual IRootNode* asRootNode() = 0;
    /// As asRootNode.
    virtual IChessNode* asChessNode() = 0;
    /// As asRootNode.
    virtual IMappingNode* asMappingNode() = 0;
    /// As asRootNode.
    virtual ITurbulenceNode* asTurbulenceNode() = 0;
    /// As asRootNode.
    virtual ILeafNode* asLeafNode() = 0;
    /// As asRootNode.
    virtual IFresnelNode* asFresnelNode() = 0;
    /// As asRootNode.
    virtual IFresnelDiffuseNode* asFresnelDiffuseNode() = 0;
    /// As asRootNode.
    virtual IGlazingNode* asGlazingNode() = 0;
    /// As asRootNode.
    virtual ICustomNode* asCustomNode() = 0;
    /// As asRootNode.
    virtual IAltitudeNode* asAltitudeNode() = 0;
    /// As asRootNode.
    virtual IMultiTextureNode* asMultiTextureNode() = 0;
    /// As asRootNode.
    virtual IWangTilesNode* asWangTilesNode() = 0;
    /// As asRootNode.
    virtual IMatteShadowNode* asMatteShadowNode() = 0;
    /// Four that are always null and keep the places behind them.
    virtual void* asReserved1() = 0;
    /// Always null.
    virtual void* asReserved2() = 0;
    /// Always null.
    virtual void* asReserved3() = 0;
    /// Always null.
    virtual void* asReserved4() = 0;
    /// Whether the node came with a shader document; true in a new node, and false in one read from
    /// a file that does not say so.
    virtual bool isShader() const = 0;
    virtual void setShader(bool shader) = 0;

protected:
    ~ITCENode() override = default;
};

} // namespace OvZel
