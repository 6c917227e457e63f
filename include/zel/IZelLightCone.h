#pragma once

namespace OvZel {

/// The visible cone of a light, part of its owner and good as long as that. Values are stored
/// as they come.
///
/// The order of the virtual operations is a promise to compiled clients. Never insert, remove or
/// reorder one; what is new goes into a new interface.
class IZelLightCone {
public:
    /// False in a new one.
    virtual bool getUsed() const = 0;
    virtual void setUsed(bool used) = 0;
    /// 0.0 in a new one; the unit is the renderer's.
    virtual double getPower() const = 0;
    virtual void setPower(double power) = 0;

protected:
    ~IZelLightCone() = default;
};

} // namespace OvZel
