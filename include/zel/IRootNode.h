#pragma once

namespace OvZel {

class ITCENode;

/// The parameters of a material's root.
///
/// Part of its node, good as long as that. One thread at a time.
///
/// The order of the virtual operations is a promise to compiled clients. Never insert, remove or
/// reorder one; what is new goes into a new interface.
class IRootNode {
public:
    /// The tree side of this node; good as long as the node.
    virtual const ITCENode* getTCENode() const = 0;
    virtual ITCENode* getTCENode() = 0;
    /// Sends a text to the feedback of the document. Nothing happens once the material or the
    /// document is gone. A null text counts as the empty one.
    virtual void reportWarning(const char* text) = 0;

protected:
    ~IRootNode() = default;
};

} // namespace OvZel
