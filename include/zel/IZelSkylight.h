#pragma once

#include <zel/CZelColor.h>

#include <cstdint>

namespace OvZel {

/// The light of the sky, part of a heliodon and good as long as that.
///
/// Values are stored as they come, and what they mean is the renderer's business. With a type or
/// kind other than those named the document cannot be saved.
///
/// The order of the virtual operations is a promise to compiled clients. Never insert, remove or
/// reorder one; what is new goes into a new interface.
class IZelSkylight {
public:
    /// False in a new sky, as all flags here.
    virtual bool getUsed() const = 0;
    virtual void setUsed(bool used) = 0;
    /// 0.75 in a new sky.
    virtual double getFactor() const = 0;
    virtual void setFactor(double factor) = 0;
    /// 255, 255, 255 in a new sky.
    virtual CZelColor getColor() const = 0;
    virtual void setColor(const CZelColor& color) = 0;
    /// 0 automatic, 1 chosen by the user; 0 in a new sky.
    virtual std::int32_t getSkyType() const = 0;
    virtual void setSkyType(std::int32_t type) = 0;
    /// False in a new sky.
    virtual bool getBackground() const = 0;
    virtual void setBackground(bool background) = 0;
    /// 0.2 in a new sky.
    virtual double getPollution() const = 0;
    virtual void setPollution(double pollution) = 0;
    /// False in a new sky.
    virtual bool getSkyMixColorFlag() const = 0;
    virtual void setSkyMixColorFlag(bool flag) = 0;
    /// 255, 255, 255 in a new sky.
    virtual CZelColor getSkyMixColor() const = 0;
    virtual void setSkyMixColor(const CZelColor& color) = 0;
    /// False in a new sky.
    virtual bool getPowerFlag() const = 0;
    virtual void setPowerFlag(bool flag) = 0;
    /// False in a new sky.
    virtual bool getSkyColorFlag() const = 0;
    virtual void setSkyColorFlag(bool flag) = 0;
    /// 0.5 in a new sky.
    virtual double getSkySaturation() const = 0;
    virtual void setSkySaturation(double saturation) = 0;
    /// 0 physical, 1 "Vendralis5Sky"; 0 in a new sky.
    virtual std::int32_t getSkyKind() const = 0;
    virtual void setSkyKind(std::int32_t kind) = 0;
    /// 0.0 in a new sky.
    virtual double getSkyExposure() const = 0;
    virtual void setSkyExposure(double exposure) = 0;

protected:
    ~IZelSkylight() = default;
};

} // namespace OvZel
