#pragma once

#include "core/TZelFrontier.h"
#include "materials/CTCENode.h"

namespace OvZel {

/// A node with the two faces that a client sees: the tree side and the parameters.
template <class I>
class TTCENode : public CTCENode, public TZelFrontier<I> {
public:
    const ITCENode* getTCENode() const override { return this; }
    ITCENode* getTCENode() override { return this; }

protected:
    using CTCENode::CTCENode;

    /// A part of the node. A function, since GCC 12 loses the memory of a new-expression that
    /// stands in the initialiser of a member when the constructor behind it throws.
    template <class T>
    TZelComPtr<T> made()
    {
        return TZelComPtr<T>(new T(this));
    }
};

} // namespace OvZel
