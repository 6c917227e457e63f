#pragma once

#include <zel/CZelColor.h>
#include <zel/CZelUUID.h>
#include <zel/TZelObjectMgr.h>

#include <cstdint>

namespace OvZel {

/// The settings of one render engine. Made and owned by the rendering options.
///
/// Numbers out of range are clipped without a warning.
///
/// The order of the virtual operations is a promise to compiled clients. Never insert, remove or
/// reorder one; what is new goes into a new interface.
class IZelEngineOptions {
public:
    static constexpr CZelUUID sIID{"4BD9B0CEF0484F579EF96C9BBD424321"};

    /// The engine; any text is good. "com.Orvane.Renderer.VendralisPhysicalEngine" in new options.
    /// Good until the next change.
    virtual const char* getIdentifier() const = 0;
    /// Null counts as the empty text.
    virtual void setIdentifier(const char* identifier) = 0;
    /// False in new options.
    virtual bool getAmbientOcclusion() const = 0;
    virtual void setAmbientOcclusion(bool on) = 0;
    /// 5 in new options.
    virtual std::int32_t getAmbientOcclusionSize() const = 0;
    /// Clipped to 1 to 100.
    virtual void setAmbientOcclusionSize(std::int32_t size) = 0;
    /// 0.1 in new options.
    virtual double getAmbientOcclusionIntensity() const = 0;
    /// Clipped to 0.0 to 1.0; not a number counts as below.
    virtual void setAmbientOcclusionIntensity(double intensity) = 0;
    /// 512 in new options.
    virtual std::int32_t getAutoSampling() const = 0;
    /// Clipped to 1 to 4096.
    virtual void setAutoSampling(std::int32_t sampling) = 0;
    /// 32 in new options.
    virtual std::int32_t getAutoSamplingMin() const = 0;
    /// Clipped to 1 to 96.
    virtual void setAutoSamplingMin(std::int32_t sampling) = 0;
    /// False in new options.
    virtual bool getDisplacement() const = 0;
    virtual void setDisplacement(bool on) = 0;
    /// False in new options.
    virtual bool getCaustic() const = 0;
    virtual void setCaustic(bool on) = 0;
    /// False in new options.
    virtual bool getPhysicalSky() const = 0;
    virtual void setPhysicalSky(bool on) = 0;
    /// False in new options.
    virtual bool getWhiteBalance() const = 0;
    virtual void setWhiteBalance(bool on) = 0;
    /// Unlike other colours red, green, blue and alpha are bytes 0 to 3. All 0 in new options. A
    /// file does not hold the alpha; reading gives 0.
    virtual CZelColor getWhiteBalanceColor() const = 0;
    virtual void setWhiteBalanceColor(const CZelColor& color) = 0;
    /// 1.0 in new options.
    virtual double getToneMappingExposure() const = 0;
    /// Clipped to 0.0 to 2.0; not a number counts as below.
    virtual void setToneMappingExposure(double exposure) = 0;
    /// Free values, none in new options. Reading adds those of the file behind them. The list
    /// carries no reference.
    virtual const TZelObjectMgr<double>* getDevValues() const = 0;
    virtual TZelObjectMgr<double>* getDevValues() = 0;
    /// 2 in new options.
    virtual std::int32_t getCachesPassCount() const = 0;
    /// Clipped to 1 to 5.
    virtual void setCachesPassCount(std::int32_t count) = 0;
    /// 2 in new options.
    virtual std::int32_t getCachesInterpCount() const = 0;
    /// Clipped to 1 to 5.
    virtual void setCachesInterpCount(std::int32_t count) = 0;
    /// 2 in new options.
    virtual std::int32_t getLightsSampling() const = 0;
    /// Clipped to 1 to 5.
    virtual void setLightsSampling(std::int32_t sampling) = 0;
    /// 2 in new options.
    virtual std::int32_t getMaterialsSampling() const = 0;
    /// Clipped to 1 to 5.
    virtual void setMaterialsSampling(std::int32_t sampling) = 0;
    /// 2 in new options.
    virtual std::int32_t getHemisphericSampling() const = 0;
    /// Clipped to 1 to 5.
    virtual void setHemisphericSampling(std::int32_t sampling) = 0;

protected:
    ~IZelEngineOptions() = default;
};

} // namespace OvZel
