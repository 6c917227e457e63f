#pragma once

#include <zel/CZelColor.h>
#include <zel/IZelXML.h>

#include <cstdint>

namespace OvZel {

/// A light at the eye of a view: the camera light or the radiosity light. Part of a view
/// information. Every value is stored as it comes.
///
/// The order of the virtual operations is a promise to compiled clients. Never insert, remove or
/// reorder one; what is new goes into a new interface.
class IZelCameraLight : public IZelXML {
public:
    /// False in a new one.
    virtual bool getUsed() const = 0;
    virtual void setUsed(bool used) = 0;
    /// 0 for a camera light; any other number is a radiosity light, 1 in a new one. It decides the
    /// name under which the light is saved, and a load doesn't change it.
    virtual std::uint8_t getKind() const = 0;
    virtual void setKind(std::uint8_t kind) = 0;
    /// White in a new one.
    virtual CZelColor getColor() const = 0;
    virtual void setColor(const CZelColor& color) = 0;
    /// 1.0 in a new one; the unit is the renderer's.
    virtual double getPower() const = 0;
    virtual void setPower(double power) = 0;

protected:
    ~IZelCameraLight() = default;
};

} // namespace OvZel
