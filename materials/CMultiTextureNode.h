#pragma once

#include "core/TObjectMgr.h"
#include "core/generateId.h"
#include "materials/CZelSubPart.h"
#include "materials/TTCENode.h"

#include <zel/IMultiTextureNode.h>

namespace OvZel {

/// Several image sets, mixed with thresholds and a random seed.
class CMultiTextureNode : public TTCENode<IMultiTextureNode> {
public:
    using CSubParts = TObjectMgr<CZelSubPart, IZelSubPart>;

    explicit CMultiTextureNode(ITCENode* parent) : TTCENode(parent) {}
    CMultiTextureNode(ITCENode* parent, const CMultiTextureNode& source);

    eNodeType getNodeType() const override { return eMultiTextureNode; }
    IMultiTextureNode* asMultiTextureNode() override { return this; }

    void addTo(CZelXMLIO& io, const CZelXMLAdd& out) const override;
    void getFrom(CZelXMLIO& io, const CZelXMLGet& in) override;
    bool readsChildrenFirst() const override { return true; }

    const CSubParts* getSubParts() const override { return mSubParts.get(); }
    CSubParts* getSubParts() override { return mSubParts.get(); }
    double getResolution() const override { return mValues.resolution; }
    void setResolution(double value) override { mValues.resolution = value; }
    double getTransition() const override { return mValues.transition; }
    void setTransition(double value) override { mValues.transition = value; }
    double getRandomSeed() const override { return mValues.randomSeed; }
    void setRandomSeed(double value) override { mValues.randomSeed = value; }
    double getThreshold1() const override { return mValues.threshold1; }
    void setThreshold1(double value) override { mValues.threshold1 = value; }
    double getThreshold2() const override { return mValues.threshold2; }
    void setThreshold2(double value) override { mValues.threshold2 = value; }
    const CZelPoint& getOrigin() const override { return mValues.origin; }
    void setOrigin(const CZelPoint& vector) override { mValues.origin = vector; }
    double getXCenter() const override { return mValues.xCenter; }
    void setXCenter(double value) override { mValues.xCenter = value; }
    double getYCenter() const override { return mValues.yCenter; }
    void setYCenter(double value) override { mValues.yCenter = value; }
    const CZelPoint& getNormal() const override { return mValues.normal; }
    void setNormal(const CZelPoint& vector) override { mValues.normal = vector; }
    const CZelPoint& getXAxis() const override { return mValues.xAxis; }
    void setXAxis(const CZelPoint& vector) override { mValues.xAxis = vector; }
    const CZelPoint& getYAxis() const override { return mValues.yAxis; }
    void setYAxis(const CZelPoint& vector) override { mValues.yAxis = vector; }
    double getAngle() const override { return mValues.angle; }
    void setAngle(double value) override { mValues.angle = value; }
    bool getMixFlag() const override { return mValues.mixFlag; }
    void setMixFlag(bool flag) override { mValues.mixFlag = flag; }
    CZelColor getMixColor() const override { return mValues.mixColor; }
    void setMixColor(const CZelColor& color) override { mValues.mixColor = color; }
    double getMixValue() const override { return mValues.mixValue; }
    void setMixValue(double value) override { mValues.mixValue = value; }
    CZelColor getReflection() const override { return mValues.reflection; }
    void setReflection(const CZelColor& color) override { mValues.reflection = color; }
    double getReflectionLimit() const override { return mValues.reflectionLimit; }
    void setReflectionLimit(double value) override { mValues.reflectionLimit = value; }
    double getGlossy() const override { return mValues.glossy; }
    void setGlossy(double value) override { mValues.glossy = value; }
    double getBump() const override { return mValues.bump; }
    void setBump(double value) override { mValues.bump = value; }
    double getNormalMap() const override { return mValues.normalMap; }
    void setNormalMap(double value) override { mValues.normalMap = value; }
    std::int32_t getProjection() const override { return mValues.projection; }
    void setProjection(std::int32_t value) override { mValues.projection = value; }
    const CZelUUID& getSubPartsId() const override { return mSubPartsId; }

private:
    /// What a copy takes over as it stands.
    struct CValues {
        double resolution = 512.0;
        double transition = 0.2;
        double randomSeed = 0.0;
        double threshold1 = 0.5;
        double threshold2 = 0.8;
        CZelPoint origin;
        double xCenter = 0.0;
        double yCenter = 0.0;
        CZelPoint normal{0.0, 0.0, -1.0};
        CZelPoint xAxis{-1.0, 0.0, 0.0};
        CZelPoint yAxis{0.0, -1.0, 0.0};
        double angle = 0.0;
        bool mixFlag = false;
        CZelColor mixColor = CZelColor::rgb(127, 127, 127);
        double mixValue = 0.0;
        CZelColor reflection;
        double reflectionLimit = 0.0;
        double glossy = 1000.0;
        double bump = 0.0;
        double normalMap = 0.0;
        std::int32_t projection = 2;
    };

    CValues mValues;
    TZelComPtr<CSubParts> mSubParts = made<CSubParts>();
    CZelUUID mSubPartsId = generateId();
};

} // namespace OvZel
