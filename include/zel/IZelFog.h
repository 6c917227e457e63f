#pragma once

#include <zel/CZelColor.h>
#include <zel/IZelXML.h>

namespace OvZel {

/// A ground fog, part of a heliodon or an environment and good as long as that.
///
/// Values are stored as they come, and what they mean is the renderer's business. The file form is
/// the child "Fog"; in it the colour and all numbers are required.
///
/// The order of the virtual operations is a promise to compiled clients. Never insert, remove or
/// reorder one; what is new goes into a new interface.
class IZelFog : public IZelXML {
public:
    /// False in a new fog.
    virtual bool getActive() const = 0;
    virtual void setActive(bool active) = 0;
    /// 221, 221, 221 in a new fog.
    virtual CZelColor getColor() const = 0;
    virtual void setColor(const CZelColor& color) = 0;
    /// 0.5 in a new fog.
    virtual double getDensity() const = 0;
    virtual void setDensity(double density) = 0;
    /// 50.0 in a new fog.
    virtual double getStartDistance() const = 0;
    virtual void setStartDistance(double distance) = 0;
    /// 2500.0 in a new fog; may be below the start distance.
    virtual double getEndDistance() const = 0;
    virtual void setEndDistance(double distance) = 0;
    /// 300.0 in a new fog.
    virtual double getAltitude() const = 0;
    virtual void setAltitude(double altitude) = 0;

protected:
    ~IZelFog() = default;
};

} // namespace OvZel
