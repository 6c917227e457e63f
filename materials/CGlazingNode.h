#pragma once

#include "materials/TTCENode.h"

#include <zel/IGlazingNode.h>

namespace OvZel {

/// Glass with water-like distortion.
class CGlazingNode : public TTCENode<IGlazingNode> {
public:
    /// Of a new node, and of a file whose animation is off.
    static constexpr double kSpeed = 2.0;

    explicit CGlazingNode(ITCENode* parent) : TTCENode(parent) {}
    CGlazingNode(ITCENode* parent, const CGlazingNode& source)
        : TTCENode(parent, source), mValues(source.mValues)
    {
    }

    eNodeType getNodeType() const override { return eGlazingNode; }
    IGlazingNode* asGlazingNode() override { return this; }

    void addTo(CZelXMLIO& io, const CZelXMLAdd& out) const override;
    void getFrom(CZelXMLIO& io, const CZelXMLGet& in) override;

    double getXScale() const override { return mValues.xScale; }
    void setXScale(double value) override { mValues.xScale = value; }
    double getYScale() const override { return mValues.yScale; }
    void setYScale(double value) override { mValues.yScale = value; }
    double getFlatness() const override { return mValues.flatness; }
    void setFlatness(double value) override { mValues.flatness = value; }
    bool getTiltDetect() const override { return mValues.tiltDetect; }
    void setTiltDetect(bool flag) override { mValues.tiltDetect = flag; }
    double getTiltFactor() const override { return mValues.tiltFactor; }
    void setTiltFactor(double value) override { mValues.tiltFactor = value; }
    bool getAnimation() const override { return mValues.animation; }
    void setAnimation(bool flag) override { mValues.animation = flag; }
    double getSpeed() const override { return mValues.speed; }
    void setSpeed(double value) override { mValues.speed = value; }
    double getPhase() const override { return mValues.phase; }
    void setPhase(double value) override { mValues.phase = value; }

private:
    /// What a copy takes over as it stands.
    struct CValues {
        double xScale = 50.0;
        double yScale = 50.0;
        double flatness = 0.5;
        bool tiltDetect = true;
        double tiltFactor = 0.5;
        bool animation = false;
        double speed = kSpeed;
        double phase = 0.0;
    };

    CValues mValues;
};

} // namespace OvZel
