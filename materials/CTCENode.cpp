#include "materials/CTCENode.h"

#include "core/CZelMgrRef.h"
#include "core/OvThrow.h"
#include "core/generateId.h"
#include "materials/CLoopGuard.h"
#include "materials/CZelTCE.h"

#include <new>
#include <unordered_set>
#include <utility>

namespace OvZel {

namespace {

using CChilds = std::vector<TZelComPtr<ITCENode>>;

/// Without memory for the queue the child goes at once.
void releaseLater(CChilds& queue, TZelComPtr<ITCENode>& child)
{
    try {
        queue.push_back(std::move(child));
    } catch (const std::bad_alloc&) {
        child.reset();
    }
}

/// Gives the references back one after the other, also those of the children of nodes that die of
/// it: a chain of nodes may be longer than the stack is deep.
void releaseInTurn(CChilds&& childs)
{
    thread_local CChilds* queue = nullptr;
    if (queue != nullptr) {
        for (TZelComPtr<ITCENode>& child : childs)
            releaseLater(*queue, child);
        return;
    }
    queue = &childs;
    while (!childs.empty()) {
        const TZelComPtr<ITCENode> last = std::move(childs.back());
        childs.pop_back();
    }
    queue = nullptr;
}

} // namespace

OrvaneXML::XIXMLElement* CTCENodeData::putInXML(OrvaneXML::XIXMLElement* element)
{
    return mNode->putNodeInXML(element);
}

bool CTCENodeData::initWithXML(OrvaneXML::XIXMLElement* element, bool)
{
    return mNode->initNodeWithXML(element);
}

const CZelUUID* CTCENodeData::getId() const
{
    return &mNode->getId();
}

void CTCENodeData::setId(const CZelUUID* id)
{
    mNode->setId(id != nullptr ? *id : CZelUUID());
}

CZelMgrRef* CTCENodeData::getWarningTarget() const
{
    return CZelMgrRef::from(mNode->getMgrRef());
}

CTCENode::CTCENode(ITCENode* parent) : mId(generateId()), mParent(parent) {}

CTCENode::CTCENode(ITCENode* parent, const CTCENode& source) : CTCENode(parent)
{
    mUIValue = source.mUIValue;
}

CTCENode::~CTCENode()
{
    releaseInTurn(std::move(mChilds));
}

IZelObjectLink* CTCENode::getOwnerLink() const
{
    ITCENode* parent = getParent();
    return parent != nullptr ? parent->getObjectLink() : nullptr;
}

IZelMgrRef* CTCENode::getMgrRef() const
{
    IZelObjectLink* owner = getOwnerLink();
    CLoopGuard guard;
    // The chain may be long, so the nodes above are not asked one through the other.
    while (const auto* node = dynamic_cast<const CTCENode*>(owner))
        owner = guard.isBack(node) ? nullptr : node->getOwnerLink();
    return owner != nullptr ? owner->getMgrRef() : nullptr;
}

ITCENode* CTCENode::childAt(std::int32_t index) const
{
    if (index < 0 || index >= getNbChilds())
        return nullptr;
    return mChilds[static_cast<std::size_t>(index)].get();
}

void CTCENode::setChild(std::int32_t index, ITCENode* child)
{
    if (index == getNbChilds())
        return addChild(child);
    if (index >= 0 && index < getNbChilds())
        mChilds[static_cast<std::size_t>(index)] = TZelComPtr<ITCENode>(child);
}

void CTCENode::removeChild(std::int32_t index)
{
    if (index < 0 || index >= getNbChilds())
        return;
    const auto place = mChilds.begin() + index;
    // The child dies behind the change: its end may run client code that looks here.
    const TZelComPtr<ITCENode> gone = std::move(*place);
    mChilds.erase(place);
}

ITCENode* CTCENode::findNode(const CZelUUID& id)
{
    return const_cast<ITCENode*>(std::as_const(*this).findNode(id));
}

const ITCENode* CTCENode::findNode(const CZelUUID& id) const
{
    std::vector<const ITCENode*> waiting{this};
    std::unordered_set<const ITCENode*> seen; // a client may hang a node below itself
    while (!waiting.empty()) {
        const ITCENode* node = waiting.back();
        waiting.pop_back();
        if (node == nullptr)
            node = TZelComPtr<ITCENode>().operator->(); // raises
        if (node->getId() == id)
            return node;
        if (!seen.insert(node).second)
            continue;
        for (std::int32_t i = 0; i < node->getNbChilds(); ++i)
            waiting.push_back(node->getChild(i));
    }
    return nullptr;
}

CZelMgrRef* CTCENode::getEnclosingMgr() const
{
    IZelMgrRef* mgrRef = getEnclosingTCE(this)->getMgrRef();
    OvThrow::IfNULL(mgrRef);
    return CZelMgrRef::from(mgrRef);
}

CZelTCE* getEnclosingTCE(const ITCENode* node)
{
    auto* place = const_cast<ITCENode*>(node);
    CLoopGuard guard;
    while (place != nullptr && place->asRootNode() == nullptr)
        place = guard.isBack(place) ? nullptr : place->getParent();
    auto* root = dynamic_cast<CZelTCE*>(place);
    OvThrow::IfNULL(root);
    return root;
}

} // namespace OvZel
