#pragma once

#include "core/CRange.h"
#include "core/CZelUUIDX.h"
#include "core/TObjectMgr.h"
#include "lighting/CZelLensFlare.h"
#include "lighting/CZelLightCone.h"
#include "xml/TZelXMLCOMObjLinkRef.h"

#include <zel/IZelLight.h>

#include <string>

namespace OvZel {

class CZelXMLAdd;
class CZelXMLGet;

/// An artificial light.
class CLight : public TZelXMLCOMObjLinkRef<IZelLight> {
public:
    static constexpr CRange kPower{1.0, 1'000'000.0};
    static constexpr CRange kConeAngle{0.0, 360.0};
    static constexpr CRange kSharpness{0.0, 1.0};
    static constexpr CRange kShadowPower{0.0, 1.0};
    static constexpr CRange kBias{0.0, 1.0};
    static constexpr std::int32_t kMapSizeMost = 13;
    static constexpr std::uint32_t kTargetTypeMost = 1;

    /// The owner may be null.
    explicit CLight(IZelObjectLinkRef* owner);

    std::int32_t getType() const override { return mType; }
    void setType(std::int32_t type) override { mType = type; }
    bool getActive() const override { return mActive; }
    void setActive(bool active) override { mActive = active; }
    CZelColor getColor() const override { return mColor; }
    void setColor(const CZelColor& color) override { mColor = color; }
    double getPower() const override { return mPower; }
    void setPower(double power) override { mPower = kPower.clip(power); }
    double getDistanceNear() const override { return mDistanceNear; }
    void setDistanceNear(double distance) override { mDistanceNear = distance; }
    double getDistanceFar() const override { return mDistanceFar; }
    void setDistanceFar(double distance) override { mDistanceFar = distance; }
    const CZelPoint& getPosition() const override { return mPosition; }
    void setPosition(const CZelPoint& position) override { mPosition = position; }
    const CZelPoint& getTarget() const override { return mTarget; }
    void setTarget(const CZelPoint& target) override { mTarget = target; }
    double getConeAngle() const override { return mConeAngle; }
    void setConeAngle(double angle) override { mConeAngle = kConeAngle.clip(angle); }
    double getSharpness() const override { return mSharpness; }
    void setSharpness(double sharpness) override { mSharpness = kSharpness.clip(sharpness); }
    std::int32_t getShadowType() const override { return mShadowType; }
    void setShadowType(std::int32_t type) override { mShadowType = type; }
    double getShadowPower() const override { return mShadowPower; }
    void setShadowPower(double power) override { mShadowPower = kShadowPower.clip(power); }
    std::int32_t getMapSize() const override { return mMapSize; }
    void setMapSize(std::int32_t size) override;
    double getBias() const override { return mBias; }
    void setBias(double bias) override { mBias = kBias.clip(bias); }
    bool getGlobalIllumination() const override { return mGlobalIllumination; }
    void setGlobalIllumination(bool used) override { mGlobalIllumination = used; }
    double getGlobalIlluminationPower() const override { return mGlobalIlluminationPower; }
    void setGlobalIlluminationPower(double power) override { mGlobalIlluminationPower = power; }
    std::int32_t getGlobalIlluminationQuality() const override
    {
        return mGlobalIlluminationQuality;
    }
    void setGlobalIlluminationQuality(std::int32_t quality) override
    {
        mGlobalIlluminationQuality = quality;
    }
    bool getLocked() const override { return mLocked; }
    void setLocked(bool locked) override { mLocked = locked; }
    const TZelObjectMgr<CZelUUID>* getLightsGroups() const override { return mLightsGroups.get(); }
    TZelObjectMgr<CZelUUID>* getLightsGroups() override { return mLightsGroups.get(); }
    const IZelLensFlare* getLensFlare() const override { return &mLensFlare; }
    IZelLensFlare* getLensFlare() override { return &mLensFlare; }
    const IZelLightCone* getLightCone() const override { return &mLightCone; }
    IZelLightCone* getLightCone() override { return &mLightCone; }
    bool getRadiosity() const override { return mRadiosity; }
    void setRadiosity(bool radiosity) override { mRadiosity = radiosity; }
    std::int32_t getTargetType() const override { return mTargetType; }
    void setTargetType(std::int32_t type) override;
    const CZelUUID& getObjectId() const override { return mObjectId; }
    void setObjectId(const CZelUUID& id) override { mObjectId = id; }
    CZelUUID getIES() const override { return mIES; }
    void setIES(CZelUUID id) override { mIES = id; }
    const char* getIESUrl() const override { return mIESUrl.c_str(); }
    void setIESUrl(const char* url) override { mIESUrl = url != nullptr ? url : ""; }

    OrvaneXML::XIXMLElement* addXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) override;
    bool getXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) override;
    void addTo(CZelXMLIO& io, const CZelXMLAdd& out) const;
    void getFrom(CZelXMLIO& io, const CZelXMLGet& in);

private:
    using CLightsGroups = TObjectMgr<CZelUUIDX, CZelUUID>;

    void getAttributes(CZelXMLIO& io, const CZelXMLGet& in);

    std::int32_t mType = 0;
    bool mActive = true;
    bool mGlobalIllumination = false;
    bool mLocked = false;
    bool mRadiosity = true;
    CZelColor mColor = CZelColor::rgb(255, 255, 255);
    double mPower = 1200.0;
    double mDistanceNear = 0.0;
    double mDistanceFar = 0.0;
    CZelPoint mPosition{200.0, 200.0, -200.0};
    CZelPoint mTarget;
    double mConeAngle = 20.0;
    double mSharpness = 0.5;
    std::int32_t mShadowType = 1;
    double mShadowPower = 0.1;
    std::int32_t mMapSize = 0;
    double mBias = 0.3;
    double mGlobalIlluminationPower = 0.5;
    std::int32_t mGlobalIlluminationQuality = 0;
    TZelComPtr<CLightsGroups> mLightsGroups;
    CZelLensFlare mLensFlare;
    CZelLightCone mLightCone;
    std::int32_t mTargetType = 0;
    CZelUUID mObjectId;
    CZelUUID mIES;
    std::string mIESUrl;
};

} // namespace OvZel
