#pragma once

namespace OvZel {

class ITCENode;

/// The node of a surface that only shows shadows. It has one child.
///
/// Part of its node, good as long as that. One thread at a time.
///
/// The order of the virtual operations is a promise to compiled clients. Never insert, remove or
/// reorder one; what is new goes into a new interface.
class IMatteShadowNode {
public:
    /// The tree face of the same node.
    virtual const ITCENode* getTCENode() const = 0;
    virtual ITCENode* getTCENode() = 0;
    /// 0.0 in a new node; clipped to 0.0 to 1.0 in silence, a value that is not a number to 0.0.
    virtual double getTransparency() const = 0;
    virtual void setTransparency(double value) = 0;

protected:
    ~IMatteShadowNode() = default;
};

} // namespace OvZel
