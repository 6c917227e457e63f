#pragma once

#include "core/CRange.h"
#include "core/TSimpleMgr.h"
#include "core/TZelComPtr.h"
#include "core/TZelFrontierObjLink.h"
#include "render/CIntegerRange.h"

#include <zel/IZelEngineOptions.h>

#include <string>

namespace OvZel {

class CZelXMLAdd;
class CZelXMLGet;
class CZelXMLIO;

/// The settings of one render engine; the element "Engine.Options".
class CZelEngineOptions : public TZelFrontierObjLink<IZelEngineOptions> {
public:
    static constexpr CIntegerRange kAmbientOcclusionSize{1, 100};
    static constexpr CRange kAmbientOcclusionIntensity{0.0, 1.0};
    static constexpr CIntegerRange kAutoSampling{1, 4096};
    static constexpr CIntegerRange kAutoSamplingMin{1, 96};
    static constexpr CRange kToneMappingExposure{0.0, 2.0};
    static constexpr CIntegerRange kCachesPassCount{1, 5};
    static constexpr CIntegerRange kCachesInterpCount{1, 5};
    static constexpr CIntegerRange kLightsSampling{1, 5};
    static constexpr CIntegerRange kMaterialsSampling{1, 5};
    static constexpr CIntegerRange kHemisphericSampling{1, 5};

    /// The owner may be null.
    explicit CZelEngineOptions(IZelObjectLink* owner);

    const char* getIdentifier() const override { return mIdentifier.c_str(); }
    void setIdentifier(const char* identifier) override
    {
        mIdentifier = identifier != nullptr ? identifier : "";
    }
    bool getAmbientOcclusion() const override { return mAmbientOcclusion; }
    void setAmbientOcclusion(bool on) override { mAmbientOcclusion = on; }
    std::int32_t getAmbientOcclusionSize() const override { return mAmbientOcclusionSize; }
    void setAmbientOcclusionSize(std::int32_t size) override
    {
        mAmbientOcclusionSize = kAmbientOcclusionSize.clip(size);
    }
    double getAmbientOcclusionIntensity() const override { return mAmbientOcclusionIntensity; }
    void setAmbientOcclusionIntensity(double intensity) override
    {
        mAmbientOcclusionIntensity = kAmbientOcclusionIntensity.clip(intensity);
    }
    std::int32_t getAutoSampling() const override { return mAutoSampling; }
    void setAutoSampling(std::int32_t sampling) override
    {
        mAutoSampling = kAutoSampling.clip(sampling);
    }
    std::int32_t getAutoSamplingMin() const override { return mAutoSamplingMin; }
    void setAutoSamplingMin(std::int32_t sampling) override
    {
        mAutoSamplingMin = kAutoSamplingMin.clip(sampling);
    }
    bool getDisplacement() const override { return mDisplacement; }
    void setDisplacement(bool on) override { mDisplacement = on; }
    bool getCaustic() const override { return mCaustic; }
    void setCaustic(bool on) override { mCaustic = on; }
    bool getPhysicalSky() const override { return mPhysicalSky; }
    void setPhysicalSky(bool on) override { mPhysicalSky = on; }
    bool getWhiteBalance() const override { return mWhiteBalance; }
    void setWhiteBalance(bool on) override { mWhiteBalance = on; }
    CZelColor getWhiteBalanceColor() const override { return mWhiteBalanceColor; }
    void setWhiteBalanceColor(const CZelColor& color) override { mWhiteBalanceColor = color; }
    double getToneMappingExposure() const override { return mToneMappingExposure; }
    void setToneMappingExposure(double exposure) override
    {
        mToneMappingExposure = kToneMappingExposure.clip(exposure);
    }
    const TZelObjectMgr<double>* getDevValues() const override { return mDevValues.get(); }
    TZelObjectMgr<double>* getDevValues() override { return mDevValues.get(); }
    std::int32_t getCachesPassCount() const override { return mCachesPassCount; }
    void setCachesPassCount(std::int32_t count) override
    {
        mCachesPassCount = kCachesPassCount.clip(count);
    }
    std::int32_t getCachesInterpCount() const override { return mCachesInterpCount; }
    void setCachesInterpCount(std::int32_t count) override
    {
        mCachesInterpCount = kCachesInterpCount.clip(count);
    }
    std::int32_t getLightsSampling() const override { return mLightsSampling; }
    void setLightsSampling(std::int32_t sampling) override
    {
        mLightsSampling = kLightsSampling.clip(sampling);
    }
    std::int32_t getMaterialsSampling() const override { return mMaterialsSampling; }
    void setMaterialsSampling(std::int32_t sampling) override
    {
        mMaterialsSampling = kMaterialsSampling.clip(sampling);
    }
    std::int32_t getHemisphericSampling() const override { return mHemisphericSampling; }
    void setHemisphericSampling(std::int32_t sampling) override
    {
        mHemisphericSampling = kHemisphericSampling.clip(sampling);
    }

    void addTo(CZelXMLIO& io, const CZelXMLAdd& out) const;
    void getFrom(CZelXMLIO& io, const CZelXMLGet& in);
    /// All but the identifier: older files have one set of values, directly in "Rendering".
    void getValuesFrom(CZelXMLIO& io, const CZelXMLGet& in);

private:
    void addDevValues(const CZelXMLAdd& out) const;
    void getDevValuesFrom(const CZelXMLGet& in);

    std::string mIdentifier = "com.Orvane.Renderer.VendralisPhysicalEngine";
    bool mAmbientOcclusion = false;
    std::int32_t mAmbientOcclusionSize = 5;
    double mAmbientOcclusionIntensity = 0.1;
    std::int32_t mAutoSampling = 512;
    std::int32_t mAutoSamplingMin = 32;
    bool mDisplacement = false;
    bool mCaustic = false;
    bool mPhysicalSky = false;
    bool mWhiteBalance = false;
    CZelColor mWhiteBalanceColor;
    double mToneMappingExposure = 1.0;
    std::int32_t mCachesPassCount = 2;
    std::int32_t mCachesInterpCount = 2;
    std::int32_t mLightsSampling = 2;
    std::int32_t mMaterialsSampling = 2;
    std::int32_t mHemisphericSampling = 2;
    TZelComPtr<TSimpleMgr<double>> mDevValues;
};

} // namespace OvZel
