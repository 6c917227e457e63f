#pragma once

#include <zel/CZelColor.h>
#include <zel/CZelPoint.h>
#include <zel/IZelMultiMaps.h>
#include <zel/TZelObjectMgr.h>

#include <cstdint>

namespace OvZel {

class ITCENode;

/// The node that lays out a set of Wang tiles. It has one child.
///
/// Part of its node, good as long as that. Values are stored as they are given unless told
/// otherwise; one thread at a time.
///
/// The order of the virtual operations is a promise to compiled clients. Never insert, remove or
/// reorder one; what is new goes into a new interface.
class IWangTilesNode {
public:
    /// The tree face of the same node.
    virtual const ITCENode* getTCENode() const = 0;
    virtual ITCENode* getTCENode() = 0;
    /// The tiles, none in a new node. The list belongs to the node.
    virtual const TZelObjectMgr<IZelMultiMaps>* getTiles() const = 0;
    virtual TZelObjectMgr<IZelMultiMaps>* getTiles() = 0;
    /// 0.0 in a new node.
    virtual double getRandomSeed() const = 0;
    virtual void setRandomSeed(double value) = 0;
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
    /// 1.0 in a new node.
    virtual double getTexturesWidth() const = 0;
    virtual void setTexturesWidth(double value) = 0;
    /// 1.0 in a new node.
    virtual double getTexturesHeight() const = 0;
    virtual void setTexturesHeight(double value) = 0;
    /// 0.0 in a new node.
    virtual double getAngle() const = 0;
    virtual void setAngle(double value) = 0;
    /// 1.0 in a new node. Not clipped.
    virtual double getGlossy() const = 0;
    virtual void setGlossy(double value) = 0;
    /// 0.0 in a new node.
    virtual double getAmbient() const = 0;
    virtual void setAmbient(double value) = 0;
    /// False in a new node.
    virtual bool getMixFlag() const = 0;
    virtual void setMixFlag(bool flag) = 0;
    /// Red, green and blue 127 in a new node.
    virtual CZelColor getMixColor() const = 0;
    virtual void setMixColor(const CZelColor& color) = 0;
    /// 0.0 in a new node; clipped to 0.0 to 1.0 in silence, a value that is not a number to 0.0.
    virtual double getMixValue() const = 0;
    virtual void setMixValue(double value) = 0;
    /// Black in a new node.
    virtual CZelColor getTransparent() const = 0;
    virtual void setTransparent(const CZelColor& color) = 0;
    /// Black in a new node.
    virtual CZelColor getReflection() const = 0;
    virtual void setReflection(const CZelColor& color) = 0;
    /// 0.0 in a new node.
    virtual double getReflectionLimit() const = 0;
    virtual void setReflectionLimit(double value) = 0;
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
    ~IWangTilesNode() = default;
};

} // namespace OvZel
