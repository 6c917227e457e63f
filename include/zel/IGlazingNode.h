#pragma once

namespace OvZel {

class ITCENode;

/// The node of glass with water-like distortion. It has one child.
///
/// Part of its node, good as long as that. Values are stored as they are given; one thread at a
/// time.
///
/// The order of the virtual operations is a promise to compiled clients. Never insert, remove or
/// reorder one; what is new goes into a new interface.
class IGlazingNode {
public:
    /// The tree face of the same node.
    virtual const ITCENode* getTCENode() const = 0;
    virtual ITCENode* getTCENode() = 0;
    /// 50.0 in a new node.
    virtual double getXScale() const = 0;
    virtual void setXScale(double value) = 0;
    /// 50.0 in a new node.
    virtual double getYScale() const = 0;
    virtual void setYScale(double value) = 0;
    /// 0.5 in a new node.
    virtual double getFlatness() const = 0;
    virtual void setFlatness(double value) = 0;
    /// True in a new node.
    virtual bool getTiltDetect() const = 0;
    virtual void setTiltDetect(bool flag) = 0;
    /// 0.5 in a new node.
    virtual double getTiltFactor() const = 0;
    virtual void setTiltFactor(double value) = 0;
    /// False in a new node.
    virtual bool getAnimation() const = 0;
    virtual void setAnimation(bool flag) = 0;
    /// 2.0 in a new node. With the animation off a file gives 2.0 back, whatever was saved.
    virtual double getSpeed() const = 0;
    virtual void setSpeed(double value) = 0;
    /// 0.0 in a new node; not saved. Here the setter comes first.
    virtual void setPhase(double value) = 0;
    virtual double getPhase() const = 0;

protected:
    ~IGlazingNode() = default;
};

} // namespace OvZel
