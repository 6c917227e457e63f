#pragma once

#include <zel/CZelUUID.h>

#include <cstdint>

namespace OvZel {

class ITCENode;
class IZelString;

/// A material's tree as a whole: where its shader came from, and its nodes.
///
/// It belongs to one property; AddRef and Release of getRootNode keep it longer. Returned texts are
/// good until the next change of the same value. One thread at a time.
///
/// The order of the virtual operations is a promise to compiled clients. Never insert, remove or
/// reorder one; what is new goes into a new interface.
class IZelTCE {
public:
    /// The address of the shader document from which the material came, "" in a new one.
    virtual const char* getUrl() const = 0;
    /// "file:///", "file://", "file:///noshader" and "file://noshader" count as the empty text.
    virtual void setUrl(const char* url) = 0;
    /// The identity of the shader, not that of the root node; null in a new one.
    virtual const CZelUUID& getId() const = 0;
    virtual void setId(const CZelUUID& id) = 0;
    /// The shader's names by language.
    virtual const IZelString* getName() const = 0;
    virtual IZelString* getName() = 0;
    /// A number for the user interface, 0 in a new one; that of the root node.
    virtual std::uint32_t getUIValue() const = 0;
    virtual void setUIValue(std::uint32_t value) = 0;
    /// Never null, and without children in a new tree: the material hangs in its first place. A
    /// tree with a chain that has no leaf at its end, a new one too, cannot be saved.
    virtual const ITCENode* getRootNode() const = 0;
    virtual ITCENode* getRootNode() = 0;
    /// A new node of a type from 1 to 12 (eNodeType), with the root as its parent but in no list of
    /// children. The caller gets a reference of its own and has to Release it. Null with a warning
    /// "CZelTCE::createNode - eRootNode node cannot be created" for 0 and
    /// "CZelTCE::createNode - Unknown node type" for any other number.
    virtual ITCENode* createNode(std::int32_t type) = 0;
    /// The program that the material was last edited with, "" in a new one.
    virtual const char* getEditorName() const = 0;
    virtual void setEditorName(const char* name) = 0;

protected:
    ~IZelTCE() = default;
};

} // namespace OvZel
