#include "materials/CTCENodeXML.h"

#include "core/CZelMgrRef.h"
#include "core/OvThrow.h"
#include "materials/CNodePath.h"
#include "materials/nodeTypes.h"
#include "xml/inXMLFrame.h"

#include <utility>
#include <vector>

namespace OvZel {

namespace {

using OrvaneXML::XIXMLElement;

// Trees are walked with lists of our own: a chain of nodes may be longer than the stack is deep.

struct CWriteStep {
    const CTCENode* node;
    XIXMLElement* element;
    std::int32_t nextChild = 0;
};

struct CReadStep {
    TZelComPtr<CTCENode> node; // empty for "Root"
    XIXMLElement* element;
    XIXMLElement* lastChild = nullptr;
    bool hasMore = true;
};

void addValues(CZelXMLIO& io, const CZelXMLAdd& out, const CTCENode& node)
{
    if (!node.getId().isNull())
        out.AddUUID("Id", node.getId());
    if (node.getUIValue() != 0)
        out.AddInteger("UI.Value", static_cast<std::int32_t>(node.getUIValue()));
    out.AddBoolean("Shader", node.isShader());
    out.AddAttributeLabel("Type", kNodeTypes, node.getNodeType());
    node.addTo(io, out);
}

CWriteStep writeStep(CZelXMLIO& io, XIXMLElement* element, const ITCENode* node)
{
    const auto* known = dynamic_cast<const CTCENode*>(node);
    OvThrow::IfNULL(known);
    addValues(io, CZelXMLAdd(element), *known);
    return {known, element};
}

/// Makes the node and reads what stands ahead of its children.
CReadStep readStep(CZelXMLIO& io, XIXMLElement* element, ITCENode* parent)
{
    const CZelXMLGet in(element);
    const std::int32_t type = in.GetAttributeLabel("Type", kNodeTypes);
    TZelComPtr<CTCENode> node = makeNode(parent, type);
    if (node) {
        node->setShader(in.IsElement("Shader"));
        node->getFirst(io, in);
        if (!node->readsChildrenFirst())
            node->getFrom(io, in);
    }
    const bool hasMore = static_cast<bool>(node);
    return {std::move(node), element, nullptr, hasMore};
}

/// The next child to read, or null.
XIXMLElement* nextChild(CReadStep& step)
{
    if (!step.hasMore)
        return nullptr;
    step.lastChild = step.node->getChildElement(CZelXMLGet(step.element), step.lastChild);
    step.hasMore = step.lastChild != nullptr;
    return step.lastChild;
}

/// What stands behind the children. A "Root" with one of the two values raises, as there is no node
/// to take it.
void endRead(CZelXMLIO& io, const CReadStep& step)
{
    const CZelXMLGet in(step.element);
    if (step.node && step.node->readsChildrenFirst())
        step.node->getFrom(io, in);
    if (in.GetOptionalAttribute("Id") != nullptr)
        step.node->setId(in.GetUUID("Id"));
    if (in.IsElement("UI.Value"))
        step.node->setUIValue(static_cast<std::uint32_t>(in.GetInteger("UI.Value")));
}

/// The same for a node that is read alone.
void getValues(CZelXMLIO& io, const CZelXMLGet& in, CTCENode& node)
{
    if (in.GetOptionalAttribute("Id") != nullptr)
        node.setId(in.GetUUID("Id"));
    if (in.IsElement("UI.Value"))
        node.setUIValue(static_cast<std::uint32_t>(in.GetInteger("UI.Value")));
    if (in.IsElement("Shader"))
        node.setShader(true);
    node.checkSingleType(static_cast<eNodeType>(in.GetAttributeLabel("Type", kNodeTypes)));
    node.getFirst(io, in);
    node.getFrom(io, in);
}

} // namespace

void addNode(CZelXMLIO& io, const CZelXMLAdd& out, const ITCENode* node)
{
    CNodePath path;
    std::vector<CWriteStep> open;
    const auto begin = [&](XIXMLElement* element, const ITCENode* next) {
        path.enter(next);
        open.push_back(writeStep(io, element, next));
    };
    begin(out.element(), node);
    while (!open.empty()) {
        CWriteStep& step = open.back();
        const std::int32_t index = step.nextChild++;
        const CTCENode* parent = step.node;
        if (XIXMLElement* element = parent->addChildElement(CZelXMLAdd(step.element), index)) {
            begin(element, parent->getChild(index));
        } else {
            path.leave(parent);
            open.pop_back();
        }
    }
}

TZelComPtr<CTCENode> getNode(CZelXMLIO& io, const CZelXMLGet& in, ITCENode* parent)
{
    std::vector<CReadStep> open;
    open.push_back(readStep(io, in.element(), parent));
    for (;;) {
        CReadStep& step = open.back();
        if (XIXMLElement* child = nextChild(step)) {
            open.push_back(readStep(io, child, step.node.get()));
            continue;
        }
        endRead(io, step);
        const TZelComPtr<CTCENode> node = step.node;
        open.pop_back();
        if (open.empty())
            return node;
        open.back().node->addChild(node.get());
    }
}

XIXMLElement* CTCENode::addChildElement(const CZelXMLAdd& out, std::int32_t index) const
{
    return index == 0 ? out.AddElement("Node") : nullptr;
}

XIXMLElement* CTCENode::getChildElement(const CZelXMLGet& in, XIXMLElement* previous) const
{
    return previous == nullptr ? in.GetElement("Node") : nullptr;
}

XIXMLElement* CTCENode::putNodeInXML(XIXMLElement* element)
{
    return inXMLFrame(CZelMgrRef::from(getMgrRef()), "CTCENode::putInXML", element, false,
                      [&](CZelXMLIO& io) {
                          const CZelXMLAdd out(CZelXMLAdd(element).AddElement("Node"));
                          addValues(io, out, *this);
                          return out.element();
                      });
}

bool CTCENode::initNodeWithXML(XIXMLElement* element)
{
    return inXMLFrame(CZelMgrRef::from(getMgrRef()), "CTCENode::initWithXML", element, false,
                      [&](CZelXMLIO& io) {
                          XIXMLElement* node = CZelXMLGet(element).FindElement("Node");
                          if (node != nullptr)
                              getValues(io, CZelXMLGet(node), *this);
                          return node != nullptr;
                      });
}

} // namespace OvZel
