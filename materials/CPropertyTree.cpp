#include "materials/CProperty.h"

#include "materials/CLeafNode.h"
#include "materials/CLoopGuard.h"
#include "materials/CMappingNode.h"
#include "materials/CNodePath.h"

#include <stdexcept>

// What the facade looks up stands on the chain of first children: the second branch of a node that
// has two is invisible to it.

namespace OvZel {

namespace {

/// Puts the mapping node into the first place of the parent and what stood there below it. A
/// mapping node is never left without a child: if nothing stood there it gets a leaf.
void splice(ITCENode& parent, CMappingNode& mapping)
{
    TZelComPtr<ITCENode> below(parent.getChild(0));
    if (!below)
        below = TZelComPtr<ITCENode>(new CLeafNode(&mapping));
    mapping.addChild(below.get());
    parent.setChild(0, &mapping);
    below->setParent(&mapping);
}

} // namespace

ILeafNode* CProperty::findLeaf() const
{
    CLoopGuard guard;
    for (ITCENode* node = root().getChild(0); node != nullptr && !guard.isBack(node);
         node = node->getChild(0))
        if (ILeafNode* leaf = node->asLeafNode())
            return leaf;
    return nullptr;
}

ILeafNode& CProperty::needLeaf()
{
    if (ILeafNode* leaf = findLeaf())
        return *leaf;
    CLoopGuard guard;
    ITCENode* last = &root();
    while (ITCENode* next = last->getChild(0)) {
        if (guard.isBack(next))
            throw std::runtime_error(CNodePath::kBelowItself);
        last = next;
    }
    const TZelComPtr<CLeafNode> made(new CLeafNode(&root()));
    last->setChild(0, made.get());
    return *made;
}

CProperty::CPlace CProperty::findMapping(std::int32_t index) const
{
    CLoopGuard guard;
    ITCENode* parent = &root();
    while (ITCENode* node = index >= 0 ? parent->getChild(0) : nullptr) {
        if (guard.isBack(node))
            break;
        IMappingNode* mapping = node->asMappingNode();
        if (mapping != nullptr && !node->isShader() && index-- == 0)
            return {parent, mapping};
        parent = node;
    }
    return {};
}

IMappingNode& CProperty::needMapping()
{
    if (IMappingNode* mapping = findMapping())
        return *mapping;
    const TZelComPtr<CMappingNode> made(new CMappingNode(&root()));
    made->setShader(false);
    splice(root(), *made);
    return *made;
}

const IMappingNode* CProperty::getMappingNode(std::int32_t index) const
{
    return findMapping(index).mapping;
}

IMappingNode* CProperty::getMappingNode(std::int32_t index)
{
    return findMapping(index).mapping;
}

IMappingNode* CProperty::insertMappingNode(std::int32_t index)
{
    ITCENode* parent = &root();
    if (index != 0) {
        IMappingNode* above = index > 0 ? getMappingNode(index - 1) : nullptr;
        if (above == nullptr)
            return nullptr;
        parent = above->getTCENode();
    }
    const TZelComPtr<CMappingNode> made(new CMappingNode(parent));
    splice(*parent, *made);
    return made.get();
}

bool CProperty::removeMappingNode(std::int32_t index)
{
    const CPlace place = findMapping(index);
    if (place.mapping == nullptr)
        return false;
    const TZelComPtr<ITCENode> child(place.mapping->getTCENode()->getChild(0));
    if (child) {
        place.parent->setChild(0, child.get());
        child->setParent(place.parent);
    } else {
        place.parent->removeChild(0);
    }
    return true;
}

} // namespace OvZel
