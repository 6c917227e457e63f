#pragma once

#include "core/TObjectMgr.h"
#include "materials/CZelSubPart.h"
#include "materials/TTCENode.h"

#include <zel/IAltitudeNode.h>

namespace OvZel {

/// Textures chosen by height and slope.
class CAltitudeNode : public TTCENode<IAltitudeNode> {
public:
    using CSubParts = TObjectMgr<CZelSubPart, IZelSubPart>;

    explicit CAltitudeNode(ITCENode* parent) : TTCENode(parent) {}
    CAltitudeNode(ITCENode* parent, const CAltitudeNode& source);

    eNodeType getNodeType() const override { return eAltitudeNode; }
    IAltitudeNode* asAltitudeNode() override { return this; }

    void addTo(CZelXMLIO& io, const CZelXMLAdd& out) const override;
    void getFrom(CZelXMLIO& io, const CZelXMLGet& in) override;
    void getFirst(CZelXMLIO& io, const CZelXMLGet& in) override;
    bool readsChildrenFirst() const override { return true; }

    const CSubParts* getSubParts() const override { return mSubParts.get(); }
    CSubParts* getSubParts() override { return mSubParts.get(); }
    double getAngle() const override { return mValues.angle; }
    void setAngle(double value) override { mValues.angle = value; }
    const CZelPoint& getOrigin() const override { return mValues.origin; }
    void setOrigin(const CZelPoint& vector) override { mValues.origin = vector; }
    double getXCenter() const override { return mValues.xCenter; }
    void setXCenter(double value) override { mValues.xCenter = value; }
    double getYCenter() const override { return mValues.yCenter; }
    void setYCenter(double value) override { mValues.yCenter = value; }
    bool getMixFlag() const override { return mValues.mixFlag; }
    void setMixFlag(bool flag) override { mValues.mixFlag = flag; }
    CZelColor getMixColor() const override { return mValues.mixColor; }
    void setMixColor(const CZelColor& color) override { mValues.mixColor = color; }
    double getMixValue() const override { return mValues.mixValue; }
    void setMixValue(double value) override { mValues.mixValue = value; }
    double getBump() const override { return mValues.bump; }
    void setBump(double value) override { mValues.bump = value; }
    double getNormalMap() const override { return mValues.normalMap; }
    void setNormalMap(double value) override { mValues.normalMap = value; }
    double getMedStartValue() const override { return mValues.medStartValue; }
    void setMedStartValue(double value) override { mValues.medStartValue = value; }
    double getHighStartValue() const override { return mValues.highStartValue; }
    void setHighStartValue(double value) override { mValues.highStartValue = value; }
    double getSmoothness() const override { return mValues.smoothness; }
    void setSmoothness(double value) override { mValues.smoothness = value; }
    double getSlope() const override { return mValues.slope; }
    void setSlope(double value) override { mValues.slope = value; }
    double getSlopeAmplify() const override { return mValues.slopeAmplify; }
    void setSlopeAmplify(double value) override { mValues.slopeAmplify = value; }
    double getRandomSeed() const override { return mValues.randomSeed; }
    void setRandomSeed(double value) override { mValues.randomSeed = value; }
    double getTransitionContrast() const override { return mValues.transitionContrast; }
    void setTransitionContrast(double value) override { mValues.transitionContrast = value; }
    const CZelUUID& getSubPartsId() const override { return mSubPartsId; }

private:
    /// What a copy takes over as it stands.
    struct CValues {
        double angle = 0.0;
        CZelPoint origin;
        double xCenter = 0.0;
        double yCenter = 0.0;
        bool mixFlag = false;
        CZelColor mixColor = CZelColor::rgb(127, 127, 127);
        double mixValue = 0.0;
        double bump = 0.0;
        double normalMap = 0.0;
        double medStartValue = 0.5;
        double highStartValue = 0.7;
        double smoothness = 1.0;
        double slope = 0.0;
        double slopeAmplify = 1.0;
        double randomSeed = 0.0;
        double transitionContrast = 0.8;
    };

    CValues mValues;
    TZelComPtr<CSubParts> mSubParts = made<CSubParts>();
    CZelUUID mSubPartsId;
};

} // namespace OvZel
