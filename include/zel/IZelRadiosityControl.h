#pragma once

namespace OvZel {

/// Whether and how light between surfaces is computed. Part of the rendering options, whose own
/// operations on these values have limits; here nothing is clipped.
///
/// The order of the virtual operations is a promise to compiled clients. Never insert, remove or
/// reorder one; what is new goes into a new interface.
class IZelRadiosityControl {
public:
    /// False in a new object.
    virtual bool getOn() const = 0;
    virtual void setOn(bool on) = 0;
    /// 4.0 in a new object.
    virtual double getQuality() const = 0;
    virtual void setQuality(double quality) = 0;
    /// 1.0 in a new object.
    virtual double getFactor() const = 0;
    virtual void setFactor(double factor) = 0;

protected:
    ~IZelRadiosityControl() = default;
};

} // namespace OvZel
