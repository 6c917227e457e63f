#pragma once

#include <zel/CZelColor.h>
#include <zel/CZelPoint.h>
#include <zel/IZelSubPart.h>
#include <zel/TZelObjectMgr.h>

#include <cstdint>

namespace OvZel {

class ITCENode;

/// The node that mixes several image sets with thresholds and a random seed. It has one child.
///
/// Part of its node, good as long as that. Values are stored as they are given; one thread at a
/// time.
///
/// The order of the virtual operations is a promise to compiled clients. Never insert, remove or
/// reorder one; what is new goes into a new interface.
class IMultiTextureNode {
public:
    /// The tree face of the same node.
    virtual const ITCENode* getTCENode() const = 0;
    virtual ITCENode* getTCENode() = 0;
    /// The image sets, none in a new node. The list belongs to the node.
    virtual const TZelObjectMgr<IZelSubPart>* getSubParts() const = 0;
    virtual TZelObjectMgr<IZelSubPart>* getSubParts() = 0;
    /// 512.0 in a new node.
    virtual double getResolution() const = 0;
    virtual void setResolution(double value) = 0;
    /// 0.2 in a new node.
    virtual double getTransition() const = 0;
    virtual void setTransition(double value) = 0;
    /// 0.0 in a new node.
    virtual double getRandomSeed() const = 0;
    virtual void setRandomSeed(double value) = 0;
    /// 0.5 in a new node.
    virtual double getThreshold1() const = 0;
    virtual void setThreshold1(double value) = 0;
    /// 0.8 in a new node.
    virtual double getThreshold2() const = 0;
    virtual void setThreshold2(double value) = 0;
    /// 0, 0, 0 in a new node.
    virtual const CZelPoint& getOrigin() const = 0;
    virtual void setOrigin(const CZelPoint& vector) = 0;
    /// 0.0 in a new node.
    virtual double getXCenter() const = 0;
    virtual void setXCenter(double value) = 0;
    /// 0.0 in a new node.
    virtual double getYCenter() const = 0;
    virtual void setYCenter(double value) = 0;
    /// 0, 0, -1 in a new node.
    virtual const CZelPoint& getNormal() const = 0;
    virtual void setNormal(const CZelPoint& vector) = 0;
    /// -1, 0, 0 in a new node. The two setters stand crossed; each does what its name says.
    virtual const CZelPoint& getXAxis() const = 0;
    /// Stored as it comes.
    virtual void setYAxis(const CZelPoint& vector) = 0;
    /// 0, -1, 0 in a new node.
    virtual const CZelPoint& getYAxis() const = 0;
    /// Stored as it comes.
    virtual void setXAxis(const CZelPoint& vector) = 0;
    /// 0.0 in a new node.
    virtual double getAngle() const = 0;
    virtual void setAngle(double value) = 0;
    /// False in a new node.
    virtual bool getMixFlag() const = 0;
    virtual void setMixFlag(bool flag) = 0;
    /// Red, green and blue 127 in a new node.
    virtual CZelColor getMixColor() const = 0;
    virtual void setMixColor(const CZelColor& color) = 0;
    /// 0.0 in a new node. Not clipped.
    virtual double getMixValue() const = 0;
    virtual void setMixValue(double value) = 0;
    /// Black in a new node.
    virtual CZelColor getReflection() const = 0;
    virtual void setReflection(const CZelColor& color) = 0;
    /// 0.0 in a new node.
    virtual double getReflectionLimit() const = 0;
    virtual void setReflectionLimit(double value) = 0;
    /// 1000.0 in a new node. Not clipped.
    virtual double getGlossy() const = 0;
    virtual void setGlossy(double value) = 0;
    /// 0.0 in a new node.
    virtual double getBump() const = 0;
    virtual void setBump(double value) = 0;
    /// 0.0 in a new node.
    virtual double getNormalMap() const = 0;
    virtual void setNormalMap(double value) = 0;
    /// 0 planetary, 1 orthogonal, 2 vertical, 3 spherical, 4 cylindrical in Y, 5 cylindrical in X,
    /// 6 mapping by UV, 7 horizontal, 8 planar; 2 in a new node. Any number is stored, but one
    /// without a label fails the save.
    virtual std::int32_t getProjection() const = 0;
    virtual void setProjection(std::int32_t value) = 0;
    /// Random in a new node; not saved.
    virtual const CZelUUID& getSubPartsId() const = 0;

protected:
    ~IMultiTextureNode() = default;
};

} // namespace OvZel
