#pragma once

#include <zel/IZelXML.h>

namespace OvZel {

/// Exposure of the finished picture.
///
/// Nothing is clipped. Part of the filters of a view.
///
/// The order of the virtual operations is a promise to compiled clients. Never insert, remove or
/// reorder one; what is new goes into a new interface.
class IZelExposureFilter : public IZelXML {
public:
    /// False in a new filter.
    virtual bool getActive() const = 0;
    virtual void setActive(bool active) = 0;
    /// 0.5 in a new filter.
    virtual double getExposure() const = 0;
    virtual void setExposure(double exposure) = 0;
    /// 0.5 in a new filter.
    virtual double getSize() const = 0;
    virtual void setSize(double size) = 0;

protected:
    ~IZelExposureFilter() = default;
};

} // namespace OvZel
