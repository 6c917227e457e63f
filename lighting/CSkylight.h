#pragma once

#include "core/TZelFrontier.h"

#include <zel/IZelSkylight.h>

namespace OvZel {

class CZelXMLAdd;
class CZelXMLGet;
class CZelXMLIO;

/// The sky light of a heliodon.
class CSkylight : public TZelFrontier<IZelSkylight> {
public:
    virtual ~CSkylight() = default;

    bool getUsed() const override { return mUsed; }
    void setUsed(bool used) override { mUsed = used; }
    double getFactor() const override { return mFactor; }
    void setFactor(double factor) override { mFactor = factor; }
    CZelColor getColor() const override { return mColor; }
    void setColor(const CZelColor& color) override { mColor = color; }
    std::int32_t getSkyType() const override { return mSkyType; }
    void setSkyType(std::int32_t type) override { mSkyType = type; }
    bool getBackground() const override { return mBackground; }
    void setBackground(bool background) override { mBackground = background; }
    double getPollution() const override { return mPollution; }
    void setPollution(double pollution) override { mPollution = pollution; }
    bool getSkyMixColorFlag() const override { return mSkyMixColorFlag; }
    void setSkyMixColorFlag(bool flag) override { mSkyMixColorFlag = flag; }
    CZelColor getSkyMixColor() const override { return mSkyMixColor; }
    void setSkyMixColor(const CZelColor& color) override { mSkyMixColor = color; }
    bool getPowerFlag() const override { return mPowerFlag; }
    void setPowerFlag(bool flag) override { mPowerFlag = flag; }
    bool getSkyColorFlag() const override { return mSkyColorFlag; }
    void setSkyColorFlag(bool flag) override { mSkyColorFlag = flag; }
    double getSkySaturation() const override { return mSkySaturation; }
    void setSkySaturation(double saturation) override { mSkySaturation = saturation; }
    std::int32_t getSkyKind() const override { return mSkyKind; }
    void setSkyKind(std::int32_t kind) override { mSkyKind = kind; }
    double getSkyExposure() const override { return mSkyExposure; }
    void setSkyExposure(double exposure) override { mSkyExposure = exposure; }

    void addTo(CZelXMLIO& io, const CZelXMLAdd& out) const;
    void getFrom(CZelXMLIO& io, const CZelXMLGet& in);

private:
    bool mUsed = false;
    bool mBackground = false;
    bool mSkyMixColorFlag = false;
    bool mPowerFlag = false;
    bool mSkyColorFlag = false;
    CZelColor mColor = CZelColor::rgb(255, 255, 255);
    CZelColor mSkyMixColor = CZelColor::rgb(255, 255, 255);
    std::int32_t mSkyType = 0;
    std::int32_t mSkyKind = 0;
    double mFactor = 0.75;
    double mPollution = 0.2;
    double mSkySaturation = 0.5;
    double mSkyExposure = 0.0;
};

} // namespace OvZel
