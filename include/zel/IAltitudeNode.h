#pragma once

#include <zel/CZelColor.h>
#include <zel/CZelPoint.h>
#include <zel/IZelSubPart.h>
#include <zel/TZelObjectMgr.h>

namespace OvZel {

class ITCENode;

/// The node of textures chosen by height and slope. It has one child.
///
/// Part of its node, good as long as that. Values are stored as they are given; one thread at a
/// time.
///
/// The order of the virtual operations is a promise to compiled clients. Never insert, remove or
/// reorder one; what is new goes into a new interface.
class IAltitudeNode {
public:
    /// The tree face of the same node.
    virtual const ITCENode* getTCENode() const = 0;
    virtual ITCENode* getTCENode() = 0;
    /// The image sets, none in a new node. The list belongs to the node.
    virtual const TZelObjectMgr<IZelSubPart>* getSubParts() const = 0;
    virtual TZelObjectMgr<IZelSubPart>* getSubParts() = 0;
    /// 0.0 in a new node.
    virtual double getAngle() const = 0;
    virtual void setAngle(double value) = 0;
    /// 0, 0, 0 in a new node.
    virtual const CZelPoint& getOrigin() const = 0;
    virtual void setOrigin(const CZelPoint& vector) = 0;
    /// 0.0 in a new node.
    virtual double getXCenter() const = 0;
    virtual void setXCenter(double value) = 0;
    /// 0.0 in a new node.
    virtual double getYCenter() const = 0;
    virtual void setYCenter(double value) = 0;
    /// False in a new node.
    virtual bool getMixFlag() const = 0;
    virtual void setMixFlag(bool flag) = 0;
    /// Red, green and blue 127 in a new node.
    virtual CZelColor getMixColor() const = 0;
    virtual void setMixColor(const CZelColor& color) = 0;
    /// 0.0 in a new node. Not clipped.
    virtual double getMixValue() const = 0;
    virtual void setMixValue(double value) = 0;
    /// 0.0 in a new node.
    virtual double getBump() const = 0;
    virtual void setBump(double value) = 0;
    /// 0.0 in a new node.
    virtual double getNormalMap() const = 0;
    virtual void setNormalMap(double value) = 0;
    /// 0.5 in a new node.
    virtual double getMedStartValue() const = 0;
    virtual void setMedStartValue(double value) = 0;
    /// 0.7 in a new node.
    virtual double getHighStartValue() const = 0;
    virtual void setHighStartValue(double value) = 0;
    /// 1.0 in a new node.
    virtual double getSmoothness() const = 0;
    virtual void setSmoothness(double value) = 0;
    /// 0.0 in a new node.
    virtual double getSlope() const = 0;
    virtual void setSlope(double value) = 0;
    /// 1.0 in a new node.
    virtual double getSlopeAmplify() const = 0;
    virtual void setSlopeAmplify(double value) = 0;
    /// 0.0 in a new node.
    virtual double getRandomSeed() const = 0;
    virtual void setRandomSeed(double value) = 0;
    /// 0.8 in a new node.
    virtual double getTransitionContrast() const = 0;
    virtual void setTransitionContrast(double value) = 0;
    /// The null identifier; not saved.
    virtual const CZelUUID& getSubPartsId() const = 0;

protected:
    ~IAltitudeNode() = default;
};

} // namespace OvZel
