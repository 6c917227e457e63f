#pragma once

#include "core/TZelComPtr.h"
#include "materials/CTCENode.h"
#include "xml/CZelLabel.h"

namespace OvZel {

/// The types of nodes as the file names them.
extern const CZelLabel kNodeTypes[];

/// A new node with this parent; an empty pointer for a root and for a number that is no type.
TZelComPtr<CTCENode> makeNode(ITCENode* parent, std::int32_t type);

/// The values of a node, without its children and with an identity of its own. Raises
/// "Node is unknown" for a root and for a node that this library did not make.
TZelComPtr<CTCENode> copyNode(ITCENode* parent, const ITCENode& source);

} // namespace OvZel
