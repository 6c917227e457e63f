#pragma once

#include "core/CRange.h"
#include "core/generateId.h"
#include "materials/CZelMultiMaps.h"
#include "materials/TTCENode.h"

#include <zel/IWangTilesNode.h>

namespace OvZel {

/// A set of Wang tiles over a surface.
class CWangTilesNode : public TTCENode<IWangTilesNode> {
public:
    using CTiles = CMultiMapsMgr;

    static constexpr CRange kMixValue{0.0, 1.0};

    explicit CWangTilesNode(ITCENode* parent) : TTCENode(parent) {}
    CWangTilesNode(ITCENode* parent, const CWangTilesNode& source);

    eNodeType getNodeType() const override { return eWangTilesNode; }
    IWangTilesNode* asWangTilesNode() override { return this; }

    void addTo(CZelXMLIO& io, const CZelXMLAdd& out) const override;
    void getFrom(CZelXMLIO& io, const CZelXMLGet& in) override;

    const CTiles* getTiles() const override { return mTiles.get(); }
    CTiles* getTiles() override { return mTiles.get(); }
    double getRandomSeed() const override { return mValues.randomSeed; }
    void setRandomSeed(double value) override { mValues.randomSeed = value; }
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
    double getTexturesWidth() const override { return mValues.texturesWidth; }
    void setTexturesWidth(double value) override { mValues.texturesWidth = value; }
    double getTexturesHeight() const override { return mValues.texturesHeight; }
    void setTexturesHeight(double value) override { mValues.texturesHeight = value; }
    double getAngle() const override { return mValues.angle; }
    void setAngle(double value) override { mValues.angle = value; }
    double getGlossy() const override { return mValues.glossy; }
    void setGlossy(double value) override { mValues.glossy = value; }
    double getAmbient() const override { return mValues.ambient; }
    void setAmbient(double value) override { mValues.ambient = value; }
    bool getMixFlag() const override { return mValues.mixFlag; }
    void setMixFlag(bool flag) override { mValues.mixFlag = flag; }
    CZelColor getMixColor() const override { return mValues.mixColor; }
    void setMixColor(const CZelColor& color) override { mValues.mixColor = color; }
    double getMixValue() const override { return mValues.mixValue; }
    void setMixValue(double value) override { mValues.mixValue = kMixValue.clip(value); }
    CZelColor getTransparent() const override { return mValues.transparent; }
    void setTransparent(const CZelColor& color) override { mValues.transparent = color; }
    CZelColor getReflection() const override { return mValues.reflection; }
    void setReflection(const CZelColor& color) override { mValues.reflection = color; }
    double getReflectionLimit() const override { return mValues.reflectionLimit; }
    void setReflectionLimit(double value) override { mValues.reflectionLimit = value; }
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
        double randomSeed = 0.0;
        CZelPoint origin;
        double xCenter = 0.0;
        double yCenter = 0.0;
        CZelPoint normal{0.0, 0.0, -1.0};
        CZelPoint xAxis{-1.0, 0.0, 0.0};
        CZelPoint yAxis{0.0, -1.0, 0.0};
        double texturesWidth = 1.0;
        double texturesHeight = 1.0;
        double angle = 0.0;
        double glossy = 1.0;
        double ambient = 0.0;
        bool mixFlag = false;
        CZelColor mixColor = CZelColor::rgb(127, 127, 127);
        double mixValue = 0.0;
        CZelColor transparent;
        CZelColor reflection;
        double reflectionLimit = 0.0;
        double bump = 0.0;
        double normalMap = 0.0;
        std::int32_t projection = 2;
    };

    CValues mValues;
    TZelComPtr<CTiles> mTiles = made<CTiles>();
    CZelUUID mSubPartsId = generateId();
};

} // namespace OvZel
