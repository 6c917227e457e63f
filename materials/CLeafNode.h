#pragma once

#include "core/CRange.h"
#include "materials/TTCENode.h"

#include <zel/ILeafNode.h>

#include <limits>

namespace OvZel {

/// The plain values of a leaf, which a copy takes as one.
struct CLeafValues {
    CZelColor diffuse = CZelColor::rgb(100, 100, 100);
    CZelColor transparent;
    CZelColor specular;
    CZelColor reflection;
    double reflectionLimit = 0.0;
    CZelColor neonColor;
    double neonValue = 0.0;
    double refraction = 1.0;
    double glossy = 1000.0;
    CZelColor emittingColor;
    double emittingPower = 0.0;
    std::int32_t illuminationModel = 0;
    std::int32_t glossyReflectionSampling = 1000;
    std::int32_t glossyRefractionSampling = 1000;
    double roughness = 0.0;
    double reflectance = 1.0;
    std::int32_t glossyReflectionShininess = 1000;
    std::int32_t glossyRefractionShininess = 1000;
    std::int32_t shape = 0;
};

/// The end of a material's chain.
class CLeafNode : public TTCENode<ILeafNode> {
public:
    static constexpr CRange kNeonValue{0.0, std::numeric_limits<double>::infinity()};
    static constexpr CRange kRefraction{0.0, 10.0};
    static constexpr CRange kGlossy{0.0, 1000.0};

    /// The parent may be null; its list of children does not change.
    explicit CLeafNode(ITCENode* parent) : TTCENode(parent) {}
    CLeafNode(ITCENode* parent, const CLeafNode& source)
        : TTCENode(parent, source), mValues(source.mValues)
    {
    }

    eNodeType getNodeType() const override { return eLeafNode; }
    ILeafNode* asLeafNode() override { return this; }

    CZelColor getDiffuse() const override { return mValues.diffuse; }
    void setDiffuse(const CZelColor& color) override { mValues.diffuse = color; }
    CZelColor getTransparent() const override { return mValues.transparent; }
    void setTransparent(const CZelColor& color) override { mValues.transparent = color; }
    CZelColor getSpecular() const override { return mValues.specular; }
    void setSpecular(const CZelColor& color) override { mValues.specular = color; }
    CZelColor getReflection() const override { return mValues.reflection; }
    void setReflection(const CZelColor& color) override { mValues.reflection = color; }
    double getReflectionLimit() const override { return mValues.reflectionLimit; }
    void setReflectionLimit(double limit) override { mValues.reflectionLimit = limit; }
    CZelColor getNeonColor() const override { return mValues.neonColor; }
    void setNeonColor(const CZelColor& color) override { mValues.neonColor = color; }
    double getNeonValue() const override { return mValues.neonValue; }
    void setNeonValue(double value) override { mValues.neonValue = kNeonValue.clip(value); }
    double getRefraction() const override { return mValues.refraction; }
    void setRefraction(double refraction) override
    {
        mValues.refraction = kRefraction.clip(refraction);
    }
    double getGlossy() const override { return mValues.glossy; }
    void setGlossy(double glossy) override { mValues.glossy = kGlossy.clip(glossy); }
    CZelColor getEmittingColor() const override { return mValues.emittingColor; }
    void setEmittingColor(const CZelColor& color) override { mValues.emittingColor = color; }
    double getEmittingPower() const override { return mValues.emittingPower; }
    void setEmittingPower(double power) override { mValues.emittingPower = power; }
    std::int32_t getIlluminationModel() const override { return mValues.illuminationModel; }
    void setIlluminationModel(std::int32_t model) override { mValues.illuminationModel = model; }
    std::int32_t getGlossyReflectionSampling() const override
    {
        return mValues.glossyReflectionSampling;
    }
    void setGlossyReflectionSampling(std::int32_t sampling) override
    {
        mValues.glossyReflectionSampling = sampling;
    }
    std::int32_t getGlossyRefractionSampling() const override
    {
        return mValues.glossyRefractionSampling;
    }
    void setGlossyRefractionSampling(std::int32_t sampling) override
    {
        mValues.glossyRefractionSampling = sampling;
    }
    double getRoughness() const override { return mValues.roughness; }
    void setRoughness(double roughness) override { mValues.roughness = roughness; }
    double getReflectance() const override { return mValues.reflectance; }
    void setReflectance(double reflectance) override { mValues.reflectance = reflectance; }
    std::int32_t getGlossyReflectionShininess() const override
    {
        return mValues.glossyReflectionShininess;
    }
    void setGlossyReflectionShininess(std::int32_t shininess) override
    {
        mValues.glossyReflectionShininess = shininess;
    }
    std::int32_t getGlossyRefractionShininess() const override
    {
        return mValues.glossyRefractionShininess;
    }
    void setGlossyRefractionShininess(std::int32_t shininess) override
    {
        mValues.glossyRefractionShininess = shininess;
    }
    std::int32_t getShape() const override { return mValues.shape; }
    void setShape(std::int32_t shape) override { mValues.shape = shape; }

    void addTo(CZelXMLIO& io, const CZelXMLAdd& out) const override;
    void getFrom(CZelXMLIO& io, const CZelXMLGet& in) override;
    XIXMLElement* addChildElement(const CZelXMLAdd&, std::int32_t) const override
    {
        return nullptr;
    }
    XIXMLElement* getChildElement(const CZelXMLGet&, XIXMLElement*) const override
    {
        return nullptr;
    }

private:
    void getIlluminationFrom(const CZelXMLGet& in);

    CLeafValues mValues;
};

} // namespace OvZel
