#pragma once

#include <zel/CZelColor.h>
#include <zel/IZelBasic.h>

#include <cstdint>

namespace OvZel {

class IZelClouds;
class IZelFog;
class IZelGodRays;
class IZelLensFlare;
class IZelPlace;
class IZelSkylight;
class IZelTime;

/// One sun and sky set-up of the scene. A view names the one it uses by its name, which is
/// "Heliodon" in a new one.
///
/// The library keeps the values and computes no sun: date and place, theta and phi stand side by
/// side, and the placement kind says which of them the renderer takes. Numbers without a range are
/// stored as they come. With a placement kind or colour type for which no meaning is given the
/// document cannot be saved.
///
/// Parts are never null and good as long as the heliodon. Heliodons are made and owned by their
/// manager; AddRef and Release may come from any thread, everything else from one at a time.
///
/// The order of the virtual operations is a promise to compiled clients. Never insert, remove or
/// reorder one; what is new goes into a new interface.
class IZelHeliodon : public IZelBasic {
public:
    static constexpr CZelUUID sIID{"341D943027194BF7938ADC54ED8A391B"};

    /// True in a new heliodon.
    virtual bool getActive() const = 0;
    virtual void setActive(bool active) = 0;
    /// Now in a new heliodon; edit the object.
    virtual const IZelTime* getTime() const = 0;
    virtual IZelTime* getTime() = 0;
    /// All numbers 0 and no daylight time in a new heliodon; edit the object.
    virtual const IZelPlace* getPlace() const = 0;
    virtual IZelPlace* getPlace() = 0;
    /// 0.19 in a new heliodon.
    virtual double getSunshine() const = 0;
    virtual void setSunshine(double sunshine) = 0;
    /// Degrees, 0.0 in a new heliodon.
    virtual double getNorthAngle() const = 0;
    /// Up to 360.0, that included, an angle is stored as it is. A larger one loses its fraction and
    /// is reduced modulo 360. A negative one gets 360.0 added once and may stay negative. Values in
    /// a file are treated in the same way.
    virtual void setNorthAngle(double angle) = 0;
    /// True in a new heliodon.
    virtual bool getShadow() const = 0;
    virtual void setShadow(bool shadow) = 0;
    /// 0.8 in a new heliodon.
    virtual double getShadowPower() const = 0;
    virtual void setShadowPower(double power) = 0;
    /// 0 to 100, 0 in a new heliodon.
    virtual std::int32_t getShadowBlur() const = 0;
    /// Out of the range the limit is stored, with "IZelHeliodon::setShadowBlur: invalid blur
    /// level".
    virtual void setShadowBlur(std::int32_t level) = 0;
    /// False in a new heliodon.
    virtual bool getGlobalIllumination() const = 0;
    virtual void setGlobalIllumination(bool used) = 0;
    /// 0.5 in a new heliodon.
    virtual double getGlobalIlluminationPower() const = 0;
    virtual void setGlobalIlluminationPower(double power) = 0;
    /// 0 in a new heliodon.
    virtual std::int32_t getGlobalIlluminationQuality() const = 0;
    virtual void setGlobalIlluminationQuality(std::int32_t quality) = 0;
    /// Part of the heliodon, never null.
    virtual const IZelLensFlare* getLensFlare() const = 0;
    virtual IZelLensFlare* getLensFlare() = 0;
    /// Part of the heliodon, never null.
    virtual const IZelGodRays* getGodRays() const = 0;
    virtual IZelGodRays* getGodRays() = 0;
    /// False in a new heliodon.
    virtual bool getColored() const = 0;
    virtual void setColored(bool colored) = 0;
    /// The index is 0 to 4: (200, 182, 90), (230, 230, 225), (255, 255, 255), (222, 222, 130) and
    /// (212, 135, 80) in a new heliodon. Any other gives colour 0, with "IZelHeliodon::getColor:
    /// bad index".
    virtual CZelColor getColor(std::uint32_t index) const = 0;
    /// A bad index stores nothing, with "IZelHeliodon::setColor: bad index".
    virtual void setColor(std::uint32_t index, const CZelColor& color) = 0;
    /// False in a new heliodon.
    virtual bool getRadiosity() const = 0;
    virtual void setRadiosity(bool radiosity) = 0;
    /// Part of the heliodon, never null.
    virtual const IZelSkylight* getSkylight() const = 0;
    virtual IZelSkylight* getSkylight() = 0;
    /// 0 manual, 1 at 45 degrees, 2 by date and place; 0 in a new heliodon.
    virtual std::int32_t getPlacementKind() const = 0;
    virtual void setPlacementKind(std::int32_t kind) = 0;
    /// 0 automatic, 1 chosen by the user; 0 in a new heliodon.
    virtual std::int32_t getColorType() const = 0;
    virtual void setColorType(std::int32_t type) = 0;
    /// Colour 2 of getColor, into a place of the caller.
    virtual void getSunColor(CZelColor* color) const = 0;
    virtual void setSunColor(const CZelColor& color) = 0;
    /// 0.0 in a new heliodon.
    virtual double getTheta() const = 0;
    virtual void setTheta(double theta) = 0;
    /// 0.785398 in a new heliodon.
    virtual double getPhi() const = 0;
    virtual void setPhi(double phi) = 0;
    /// Part of the heliodon, never null.
    virtual const IZelClouds* getClouds() const = 0;
    virtual IZelClouds* getClouds() = 0;
    /// 0.5 in a new heliodon.
    virtual double getCloudCoverage() const = 0;
    virtual void setCloudCoverage(double coverage) = 0;
    /// False in a new heliodon.
    virtual bool getCloudMaskSun() const = 0;
    virtual void setCloudMaskSun(bool masks) = 0;
    /// Part of the heliodon, never null.
    virtual const IZelFog* getFog() const = 0;
    virtual IZelFog* getFog() = 0;
    /// False in a new heliodon.
    virtual bool getSunPowerFlag() const = 0;
    virtual void setSunPowerFlag(bool flag) = 0;
    /// 0.5 in a new heliodon.
    virtual double getSaturation() const = 0;
    virtual void setSaturation(double saturation) = 0;

protected:
    ~IZelHeliodon() override = default;
};

} // namespace OvZel
