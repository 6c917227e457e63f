#pragma once

#include "core/CRange.h"
#include "core/TObject2Mgr.h"
#include "core/TZelFrontierObjLink.h"
#include "render/CRadiosityControl.h"
#include "render/CZelEngineOptions.h"
#include "xml/tree/XCXMLTree.h"

#include <zel/IZelRenderingOpt.h>

#include <limits>
#include <memory>
#include <string>

namespace OvZel {

class CZelXMLAdd;
class CZelXMLGet;
class CZelXMLIO;

/// How a view is rendered; the element "Rendering".
class CRenderingOpt : public TZelFrontierObjLink<IZelRenderingOpt> {
public:
    using CEngines = TObject2Mgr<CZelEngineOptions, IZelEngineOptions>;

    static constexpr CRange kRadiosityFactor{0.0, std::numeric_limits<double>::infinity()};
    static constexpr CRange kRadiosityQuality{0.0, 2147483647.0};
    static constexpr CRange kContrast{0.0, std::numeric_limits<double>::infinity()};
    static constexpr CRange kLuminosity{-1.0, 1.0};

    /// The owner may be null.
    explicit CRenderingOpt(IZelObjectLink* owner);

    bool getRaytracing() const override { return mRaytracing; }
    void setRaytracing(bool on) override { mRaytracing = on; }
    bool getShadow() const override { return mShadow; }
    void setShadow(bool on) override { mShadow = on; }
    bool getTransparency() const override { return mTransparency; }
    void setTransparency(bool on) override { mTransparency = on; }
    bool getAlpha() const override { return mAlpha; }
    void setAlpha(bool on) override { mAlpha = on; }
    std::int32_t getNbReflection() const override { return mNbReflection; }
    void setNbReflection(std::int32_t nb) override;
    std::int32_t getNbRefraction() const override { return mNbRefraction; }
    void setNbRefraction(std::int32_t nb) override;
    std::int32_t getHeight() const override { return mHeight; }
    void setHeight(std::int32_t height) override;
    std::int32_t getWidth() const override { return mWidth; }
    void setWidth(std::int32_t width) override;
    std::int32_t getCropX() const override { return mCropX; }
    void setCropX(std::int32_t x) override { mCropX = x; }
    std::int32_t getCropY() const override { return mCropY; }
    void setCropY(std::int32_t y) override { mCropY = y; }
    std::int32_t getCropWidth() const override { return mCropWidth; }
    void setCropWidth(std::int32_t width) override { mCropWidth = width; }
    std::int32_t getCropHeight() const override { return mCropHeight; }
    void setCropHeight(std::int32_t height) override { mCropHeight = height; }
    const char* getURL() const override { return mURL.c_str(); }
    void setURL(const char* url) override { mURL = url != nullptr ? url : ""; }
    std::int32_t getOutputType() const override { return mOutputType; }
    void setOutputType(std::int32_t type) override { mOutputType = type; }
    std::int32_t getAntialias() const override { return mAntialias; }
    void setAntialias(std::int32_t antialias) override { mAntialias = antialias; }
    bool getRenderAll() const override { return mRenderAll; }
    void setRenderAll(bool on) override { mRenderAll = on; }
    std::int32_t getRenderFirst() const override { return mRenderFirst; }
    void setRenderFirst(std::int32_t index) override;
    std::int32_t getRenderLast() const override { return mRenderLast; }
    void setRenderLast(std::int32_t index) override;
    const IZelRadiosityControl* getRadiosityControl() const override { return &mRadiosity; }
    IZelRadiosityControl* getRadiosityControl() override { return &mRadiosity; }
    bool getUseViewOptions() const override { return mUseViewOptions; }
    void setUseViewOptions(bool on) override { mUseViewOptions = on; }
    bool getPreviewAntialias() const override { return mPreviewAntialias; }
    void setPreviewAntialias(bool on) override { mPreviewAntialias = on; }
    bool getHeightWidthLinked() const override { return mHeightWidthLinked; }
    void setHeightWidthLinked(bool on) override { mHeightWidthLinked = on; }
    bool getScaleOn() const override { return mScaleOn; }
    void setScaleOn(bool on) override { mScaleOn = on; }
    std::int32_t getParallelScale() const override { return mParallelScale; }
    void setParallelScale(std::int32_t scale) override;
    std::int32_t getImageResolution() const override { return mImageResolution; }
    void setImageResolution(std::int32_t resolution) override;
    std::int32_t getPanoramaResolution() const override { return mPanoramaResolution; }
    void setPanoramaResolution(std::int32_t resolution) override;
    bool getRadiosity() const override { return mRadiosity.getOn(); }
    void setRadiosity(bool on) override { mRadiosity.setOn(on); }
    double getRadiosityFactor() const override { return mRadiosity.getFactor(); }
    void setRadiosityFactor(double factor) override;
    double getRadiosityQuality() const override { return mRadiosity.getQuality(); }
    void setRadiosityQuality(double quality) override;
    double getContrast() const override { return mContrast; }
    void setContrast(double contrast) override;
    double getLuminosity() const override { return mLuminosity; }
    void setLuminosity(double luminosity) override;
    double getLongRange() const override { return mLongRange; }
    void setLongRange(double range) override { mLongRange = range; }
    double getShortRange() const override { return mShortRange; }
    void setShortRange(double range) override { mShortRange = range; }
    double getFirstBounce() const override { return mFirstBounce; }
    void setFirstBounce(double bounce) override { mFirstBounce = bounce; }
    double getNextBounces() const override { return mNextBounces; }
    void setNextBounces(double bounces) override { mNextBounces = bounces; }
    double getAttenuation() const override { return mAttenuation; }
    void setAttenuation(double attenuation) override { mAttenuation = attenuation; }
    double getColorBleeding() const override { return mColorBleeding; }
    void setColorBleeding(double bleeding) override { mColorBleeding = bleeding; }
    const char* getRendererIdentifier() const override { return mRendererIdentifier.c_str(); }
    void setRendererIdentifier(const char* identifier) override
    {
        mRendererIdentifier = identifier != nullptr ? identifier : "";
    }
    const OrvaneXML::XIXMLElement* getExtendedData() const override { return extendedData(); }
    OrvaneXML::XIXMLElement* getExtendedData() override { return extendedData(); }
    std::int32_t getISO() const override { return mISO; }
    void setISO(std::int32_t iso) override { mISO = iso; }
    std::int32_t getShutterSpeed() const override { return mShutterSpeed; }
    void setShutterSpeed(std::int32_t speed) override { mShutterSpeed = speed; }
    std::int32_t getColorBehavior() const override { return mColorBehavior; }
    void setColorBehavior(std::int32_t behavior) override { mColorBehavior = behavior; }
    const TZelObjectMgr<IZelEngineOptions>* getEnginesOptions() const override
    {
        return mEnginesOptions.get();
    }
    TZelObjectMgr<IZelEngineOptions>* getEnginesOptions() override { return mEnginesOptions.get(); }
    const IZelEngineOptions* getEngineOptions() const override { return engineOptions(); }
    IZelEngineOptions* getEngineOptions() override { return engineOptions(); }

    void addTo(CZelXMLIO& io, const CZelXMLAdd& out) const;
    void getFrom(CZelXMLIO& io, const CZelXMLGet& in);

private:
    /// The limit is stored before it is reported.
    void storeNotNegative(std::int32_t& field, std::int32_t value, const char* warning);
    void warnIf(bool clipped, const char* warning) const;
    CZelEngineOptions* engineOptions() const;
    /// Made anew when a client has destroyed it.
    OrvaneXML::XIXMLElement* extendedData() const;
    void addValues(const CZelXMLAdd& out) const;
    void getValues(const CZelXMLGet& in);
    void getEngines(CZelXMLIO& io, const CZelXMLGet& in);
    void getExtendedDataFrom(const CZelXMLGet& in);

    bool mRaytracing = true;
    bool mShadow = true;
    bool mTransparency = true;
    bool mAlpha = false;
    std::int32_t mNbReflection = 2;
    std::int32_t mNbRefraction = 6;
    std::int32_t mHeight = 240;
    std::int32_t mWidth = 320;
    std::int32_t mCropX = 0;
    std::int32_t mCropY = 0;
    std::int32_t mCropWidth = 0;
    std::int32_t mCropHeight = 0;
    std::string mURL;
    std::int32_t mOutputType = 2;
    std::int32_t mAntialias = 0;
    bool mRenderAll = true;
    std::int32_t mRenderFirst = 0;
    std::int32_t mRenderLast = 0;
    bool mUseViewOptions = false;
    bool mPreviewAntialias = false;
    bool mHeightWidthLinked = false;
    bool mScaleOn = true;
    std::int32_t mParallelScale = 100;
    std::int32_t mImageResolution = 72;
    std::int32_t mPanoramaResolution = 1;
    double mContrast = 1.0;
    double mLuminosity = 0.0;
    double mLongRange = 96.0;
    double mShortRange = 4.0;
    double mFirstBounce = 4.0;
    double mNextBounces = 1.0;
    double mAttenuation = 0.3;
    double mColorBleeding = 1.0;
    std::string mRendererIdentifier = "com.Orvane.Renderer.VendralisPhysicalEngine";
    std::int32_t mISO = 200;
    std::int32_t mShutterSpeed = 500;
    std::int32_t mColorBehavior = 1;
    CRadiosityControl mRadiosity;
    TZelComPtr<CEngines> mEnginesOptions;
    std::unique_ptr<OrvaneXML::XCXMLTree> mExtendedData;
};

} // namespace OvZel
