#pragma once

#include <zel/CZelColor.h>

#include <cstdint>

namespace OvZel {

class ITCENode;

/// The end of a material's chain: its plain surface values. It has no child.
///
/// Part of its node, good as long as that. One thread at a time.
///
/// The order of the virtual operations is a promise to compiled clients. Never insert, remove or
/// reorder one; what is new goes into a new interface.
class ILeafNode {
public:
    /// The tree side of this node; good as long as the node.
    virtual const ITCENode* getTCENode() const = 0;
    virtual ITCENode* getTCENode() = 0;

    /// 100, 100, 100 in a new node. Every other colour of a new leaf is black.
    virtual CZelColor getDiffuse() const = 0;
    virtual void setDiffuse(const CZelColor& color) = 0;
    /// Black in a new node.
    virtual CZelColor getTransparent() const = 0;
    virtual void setTransparent(const CZelColor& color) = 0;
    /// Black in a new node.
    virtual CZelColor getSpecular() const = 0;
    virtual void setSpecular(const CZelColor& color) = 0;
    /// Black in a new node.
    virtual CZelColor getReflection() const = 0;
    virtual void setReflection(const CZelColor& color) = 0;
    /// 0.0 in a new node; not limited.
    virtual double getReflectionLimit() const = 0;
    virtual void setReflectionLimit(double limit) = 0;
    /// Black in a new node.
    virtual CZelColor getNeonColor() const = 0;
    virtual void setNeonColor(const CZelColor& color) = 0;
    /// 0.0 in a new node. Below that 0.0 is stored; nothing warns here or at the two below.
    virtual double getNeonValue() const = 0;
    virtual void setNeonValue(double value) = 0;
    /// 1.0 in a new node; kept within 0.0 to 10.0.
    virtual double getRefraction() const = 0;
    virtual void setRefraction(double refraction) = 0;
    /// 1000.0 in a new node; kept within 0.0 to 1000.0.
    virtual double getGlossy() const = 0;
    virtual void setGlossy(double glossy) = 0;
    /// Black in a new node.
    virtual CZelColor getEmittingColor() const = 0;
    virtual void setEmittingColor(const CZelColor& color) = 0;
    /// 0.0 in a new node; not limited, like everything below.
    virtual double getEmittingPower() const = 0;
    virtual void setEmittingPower(double power) = 0;
    /// 0 Phong (a new node), 1 Cook and Torrance. Another number is stored, but cannot be saved.
    virtual std::int32_t getIlluminationModel() const = 0;
    virtual void setIlluminationModel(std::int32_t model) = 0;
    /// 1000 in a new node, like the other three numbers of glossiness.
    virtual std::int32_t getGlossyReflectionSampling() const = 0;
    virtual void setGlossyReflectionSampling(std::int32_t sampling) = 0;
    /// 1000 in a new node.
    virtual std::int32_t getGlossyRefractionSampling() const = 0;
    virtual void setGlossyRefractionSampling(std::int32_t sampling) = 0;
    /// 0.0 in a new node.
    virtual double getRoughness() const = 0;
    virtual void setRoughness(double roughness) = 0;
    /// 1.0 in a new node.
    virtual double getReflectance() const = 0;
    virtual void setReflectance(double reflectance) = 0;
    /// 1000 in a new node.
    virtual std::int32_t getGlossyReflectionShininess() const = 0;
    virtual void setGlossyReflectionShininess(std::int32_t shininess) = 0;
    /// 1000 in a new node.
    virtual std::int32_t getGlossyRefractionShininess() const = 0;
    virtual void setGlossyRefractionShininess(std::int32_t shininess) = 0;
    /// 0 general (a new node), 1 bulb, 2 plane. Another number is stored, but cannot be saved.
    virtual std::int32_t getShape() const = 0;
    virtual void setShape(std::int32_t shape) = 0;

protected:
    ~ILeafNode() = default;
};

} // namespace OvZel
