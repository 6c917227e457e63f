#pragma once

namespace OvZel {

class ITCENode;

/// The node of a reflection that grows with the viewing angle. It has one child.
///
/// Part of its node, good as long as that. One thread at a time.
///
/// The order of the virtual operations is a promise to compiled clients. Never insert, remove or
/// reorder one; what is new goes into a new interface.
class IFresnelNode {
public:
    /// The tree face of the same node.
    virtual const ITCENode* getTCENode() const = 0;
    virtual ITCENode* getTCENode() = 0;
    /// 0.05 in a new node; 0.0 to 1.0.
    virtual double getMinReflection() const = 0;
    /// Beyond the range, or not a number, the nearer limit is stored and then reported:
    /// "IFresnelNode::setMinReflection - Value is lower than 0" or
    /// "IFresnelNode::setMinReflection - Value is higer than 1" (sic). Outside a tree the report
    /// raises the null-pointer failure, with the value stored.
    virtual void setMinReflection(double value) = 0;
    /// 5.0 in a new node; any value.
    virtual double getPowerFactor() const = 0;
    virtual void setPowerFactor(double value) = 0;

protected:
    ~IFresnelNode() = default;
};

} // namespace OvZel
