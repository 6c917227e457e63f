#pragma once

#include <zel/ITCENode.h>
#include <zel/IZelProperty.h>
#include <zel/IZelTCE.h>

#include <cstdint>
#include <utility>
#include <vector>

namespace tool {

/// Hands the nodes of a material to the operation, each ahead of its children, with its depth: 0
/// below the root. Trees are deep at times, so nothing here calls itself.
template <class Operation>
void forEachNode(OvZel::IZelProperty& property, Operation operation)
{
    std::vector<std::pair<OvZel::ITCENode*, int>> waiting = {
        {property.getTCE()->getRootNode(), -1}};
    while (!waiting.empty()) {
        const auto [node, depth] = waiting.back();
        waiting.pop_back();
        if (!node)
            continue;
        if (depth >= 0)
            operation(*node, depth);
        for (std::int32_t i = node->getNbChilds(); i > 0; --i)
            waiting.emplace_back(node->getChild(i - 1), depth + 1);
    }
}

} // namespace tool
