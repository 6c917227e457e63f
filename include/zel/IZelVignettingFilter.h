#pragma once

#include <zel/IZelXML.h>

namespace OvZel {

/// Darker corners of the finished picture.
///
/// Nothing is clipped. Part of the filters of a view.
///
/// The order of the virtual operations is a promise to compiled clients. Never insert, remove or
/// reorder one; what is new goes into a new interface.
class IZelVignettingFilter : public IZelXML {
public:
    /// False in a new filter.
    virtual bool getActive() const = 0;
    virtual void setActive(bool active) = 0;
    /// 1.0 in a new filter.
    virtual double getValue() const = 0;
    virtual void setValue(double value) = 0;

protected:
    ~IZelVignettingFilter() = default;
};

} // namespace OvZel
