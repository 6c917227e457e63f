#pragma once

#include "core/TZelComPtr.h"
#include "materials/CTCENode.h"
#include "xml/CZelXMLAdd.h"
#include "xml/CZelXMLGet.h"
#include "xml/CZelXMLIO.h"

namespace OvZel {

/// Fills the element that `out` wraps with the node and everything below it. A null node, the
/// root's or one below, raises the null-pointer failure, a node below itself
/// CNodePath::kBelowItself.
void addNode(CZelXMLIO& io, const CZelXMLAdd& out, const ITCENode* node);

/// Makes the node that the element describes, with everything below it and with this parent, whose
/// list of children does not change. Empty for an element of type "Root".
TZelComPtr<CTCENode> getNode(CZelXMLIO& io, const CZelXMLGet& in, ITCENode* parent);

} // namespace OvZel
