#pragma once

#include <zel/CZelPoint.h>

namespace OvZel {

class ITable;
class ITCENode;

/// The node of a turbulence pattern. It has one child.
///
/// Part of its node, good as long as that. Values are stored as they are given; one thread at a
/// time.
///
/// The order of the virtual operations is a promise to compiled clients. Never insert, remove or
/// reorder one; what is new goes into a new interface.
class ITurbulenceNode {
public:
    /// The tree face of the same node.
    virtual const ITCENode* getTCENode() const = 0;
    virtual ITCENode* getTCENode() = 0;
    /// 0, 0, 0 in a new node.
    virtual const CZelPoint& getOrigin() const = 0;
    virtual void setOrigin(const CZelPoint& vector) = 0;
    /// 0, 0, 0 in a new node.
    virtual const CZelPoint& getAmplitude() const = 0;
    virtual void setAmplitude(const CZelPoint& vector) = 0;
    /// 0, 0, 1 in a new node.
    virtual const CZelPoint& getDirection() const = 0;
    virtual void setDirection(const CZelPoint& vector) = 0;
    /// 0.0 in a new node.
    virtual double getSize() const = 0;
    virtual void setSize(double value) = 0;
    /// Empty in a new node. Part of the node: a pointer is good as long as the node unless a
    /// reference is kept.
    virtual const ITable* getTable() const = 0;
    virtual ITable* getTable() = 0;

protected:
    ~ITurbulenceNode() = default;
};

} // namespace OvZel
