#pragma once

#include "core/TZelComPtr.h"
#include "materials/CTCENode.h"

namespace OvZel {

class CZelTCE;
class IZelTCE;

/// A copy of the node and everything below it, with the identities of the originals. The parent's
/// list of children does not change. Raises "Node is NULL", "Node is unknown" and
/// CNodePath::kBelowItself.
TZelComPtr<CTCENode> cloneNode(ITCENode* parent, const ITCENode* source);

/// Makes the first child of `destination` a copy of that of `source`, and copies address, names,
/// identity of the shader and editor. Raises as cloneNode does; nothing is copied then.
void copyTree(CZelTCE& destination, const IZelTCE& source);

} // namespace OvZel
