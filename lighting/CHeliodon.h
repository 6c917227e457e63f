#pragma once

#include "core/CPlace.h"
#include "core/CTime.h"
#include "core/TZelStrongPtr.h"
#include "environment/CZelClouds.h"
#include "environment/CZelFog.h"
#include "lighting/CSkylight.h"
#include "lighting/CZelGodRays.h"
#include "lighting/CZelLensFlare.h"
#include "xml/TZelXMLCOMObjLinkRef.h"

#include <zel/IZelHeliodon.h>

#include <array>

namespace OvZel {

class CZelXMLAdd;
class CZelXMLGet;

/// A sun and sky set-up.
class CHeliodon : public TZelXMLCOMObjLinkRef<IZelHeliodon> {
public:
    static constexpr std::int32_t kShadowBlurMost = 100;
    static constexpr std::size_t kSunColor = 2;

    /// The owner may be null.
    explicit CHeliodon(IZelObjectLinkRef* owner);

    bool getActive() const override { return mActive; }
    void setActive(bool active) override { mActive = active; }
    const IZelTime* getTime() const override { return &mTime; }
    IZelTime* getTime() override { return &mTime; }
    const IZelPlace* getPlace() const override { return &mPlace; }
    IZelPlace* getPlace() override { return &mPlace; }
    double getSunshine() const override { return mSunshine; }
    void setSunshine(double sunshine) override { mSunshine = sunshine; }
    double getNorthAngle() const override { return mNorthAngle; }
    void setNorthAngle(double angle) override;
    bool getShadow() const override { return mShadow; }
    void setShadow(bool shadow) override { mShadow = shadow; }
    double getShadowPower() const override { return mShadowPower; }
    void setShadowPower(double power) override { mShadowPower = power; }
    std::int32_t getShadowBlur() const override { return mShadowBlur; }
    void setShadowBlur(std::int32_t level) override;
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
    const IZelLensFlare* getLensFlare() const override { return &mLensFlare; }
    IZelLensFlare* getLensFlare() override { return &mLensFlare; }
    const IZelGodRays* getGodRays() const override { return &mGodRays; }
    IZelGodRays* getGodRays() override { return &mGodRays; }
    bool getColored() const override { return mColored; }
    void setColored(bool colored) override { mColored = colored; }
    CZelColor getColor(std::uint32_t index) const override;
    void setColor(std::uint32_t index, const CZelColor& color) override;
    bool getRadiosity() const override { return mRadiosity; }
    void setRadiosity(bool radiosity) override { mRadiosity = radiosity; }
    const IZelSkylight* getSkylight() const override { return &mSkylight; }
    IZelSkylight* getSkylight() override { return &mSkylight; }
    std::int32_t getPlacementKind() const override { return mPlacementKind; }
    void setPlacementKind(std::int32_t kind) override { mPlacementKind = kind; }
    std::int32_t getColorType() const override { return mColorType; }
    void setColorType(std::int32_t type) override { mColorType = type; }
    void getSunColor(CZelColor* color) const override { *color = mColors[kSunColor]; }
    void setSunColor(const CZelColor& color) override { mColors[kSunColor] = color; }
    double getTheta() const override { return mTheta; }
    void setTheta(double theta) override { mTheta = theta; }
    double getPhi() const override { return mPhi; }
    void setPhi(double phi) override { mPhi = phi; }
    const IZelClouds* getClouds() const override { return mClouds.getPtr(); }
    IZelClouds* getClouds() override { return mClouds.getPtr(); }
    double getCloudCoverage() const override { return mCloudCoverage; }
    void setCloudCoverage(double coverage) override { mCloudCoverage = coverage; }
    bool getCloudMaskSun() const override { return mCloudMaskSun; }
    void setCloudMaskSun(bool masks) override { mCloudMaskSun = masks; }
    const IZelFog* getFog() const override { return mFog.getPtr(); }
    IZelFog* getFog() override { return mFog.getPtr(); }
    bool getSunPowerFlag() const override { return mSunPowerFlag; }
    void setSunPowerFlag(bool flag) override { mSunPowerFlag = flag; }
    double getSaturation() const override { return mSaturation; }
    void setSaturation(double saturation) override { mSaturation = saturation; }

    OrvaneXML::XIXMLElement* addXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) override;
    bool getXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) override;
    void addTo(CZelXMLIO& io, const CZelXMLAdd& out) const;
    void getFrom(CZelXMLIO& io, const CZelXMLGet& in);

private:
    void addColors(const CZelXMLAdd& out) const;
    void getColors(const CZelXMLGet& in);
    void getNamed(CZelXMLIO& io, const CZelXMLGet& in);
    void getSky(CZelXMLIO& io, const CZelXMLGet& in);
    void getAttributes(CZelXMLIO& io, const CZelXMLGet& in);

    CTime mTime;
    CPlace mPlace;
    bool mActive = true;
    bool mShadow = true;
    bool mGlobalIllumination = false;
    bool mColored = false;
    bool mRadiosity = false;
    bool mCloudMaskSun = false;
    bool mSunPowerFlag = false;
    double mSunshine = 0.19;
    double mNorthAngle = 0.0;
    double mTheta = 0.0;
    double mPhi = 0.785398;
    double mShadowPower = 0.8;
    std::int32_t mShadowBlur = 0;
    double mGlobalIlluminationPower = 0.5;
    std::int32_t mGlobalIlluminationQuality = 0;
    CZelLensFlare mLensFlare;
    CZelGodRays mGodRays;
    std::array<CZelColor, 5> mColors = {
        CZelColor::rgb(200, 182, 90), CZelColor::rgb(230, 230, 225), CZelColor::rgb(255, 255, 255),
        CZelColor::rgb(222, 222, 130), CZelColor::rgb(212, 135, 80)};
    CSkylight mSkylight;
    std::int32_t mPlacementKind = 0;
    std::int32_t mColorType = 0;
    TZelStrongPtr<CZelClouds> mClouds;
    double mCloudCoverage = 0.5;
    TZelStrongPtr<CZelFog> mFog;
    double mSaturation = 0.5;
};

} // namespace OvZel
