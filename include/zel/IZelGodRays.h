#pragma once

namespace OvZel {

/// The rays of the sun in the air, part of its owner and good as long as that. Values are stored
/// as they come.
///
/// The order of the virtual operations is a promise to compiled clients. Never insert, remove or
/// reorder one; what is new goes into a new interface.
class IZelGodRays {
public:
    /// False in a new one.
    virtual bool getUsed() const = 0;
    virtual void setUsed(bool used) = 0;
    /// 1.0 in a new one; the unit is the renderer's.
    virtual double getPower() const = 0;
    virtual void setPower(double power) = 0;

protected:
    ~IZelGodRays() = default;
};

} // namespace OvZel
