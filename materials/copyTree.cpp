#include "materials/copyTree.h"

#include "materials/CNodePath.h"
#include "materials/CZelTCE.h"
#include "materials/nodeTypes.h"

#include <stdexcept>
#include <vector>

namespace OvZel {

namespace {

struct CCopyStep {
    const ITCENode* original;
    CTCENode* clone;
    std::int32_t nextChild = 0;
};

TZelComPtr<CTCENode> cloneValues(ITCENode* parent, const ITCENode* source)
{
    if (source == nullptr)
        throw std::runtime_error("Node is NULL");
    TZelComPtr<CTCENode> clone = copyNode(parent, *source);
    clone->setShader(source->isShader());
    clone->setId(source->getId());
    return clone;
}

} // namespace

TZelComPtr<CTCENode> cloneNode(ITCENode* parent, const ITCENode* source)
{
    const TZelComPtr<CTCENode> top = cloneValues(parent, source);
    CNodePath path;
    path.enter(source);
    std::vector<CCopyStep> open{{source, top.get()}};
    while (!open.empty()) {
        CCopyStep& step = open.back();
        const std::int32_t index = step.nextChild++;
        if (index >= step.original->getNbChilds()) {
            path.leave(step.original);
            open.pop_back();
            continue;
        }
        const ITCENode* child = step.original->getChild(index);
        path.enter(child);
        const TZelComPtr<CTCENode> clone = cloneValues(step.clone, child);
        step.clone->addChild(clone.get());
        open.push_back({child, clone.get()});
    }
    return top;
}

void copyTree(CZelTCE& destination, const IZelTCE& source)
{
    const TZelComPtr<CTCENode> clone = cloneNode(&destination, source.getRootNode()->getChild(0));
    destination.setChild(0, clone.get());
    destination.setUrl(source.getUrl());
    destination.getName()->copyFrom(source.getName());
    destination.setShaderId(source.getId());
    destination.setEditorName(source.getEditorName());
}

} // namespace OvZel
