#pragma once

#include <zel/IZelXML.h>

namespace OvZel {

/// The finished picture as a hatched drawing.
///
/// Nothing is clipped. Part of the filters of a view.
///
/// The order of the virtual operations is a promise to compiled clients. Never insert, remove or
/// reorder one; what is new goes into a new interface.
class IZelHatchingFilter : public IZelXML {
public:
    /// False in a new filter.
    virtual bool getActive() const = 0;
    virtual void setActive(bool active) = 0;
    /// 0.5 in a new filter.
    virtual double getIntensityThreshold() const = 0;
    virtual void setIntensityThreshold(double threshold) = 0;
    /// 0.5 in a new filter.
    virtual double getContourThreshold() const = 0;
    virtual void setContourThreshold(double threshold) = 0;
    /// Whether the transparency counts, true in a new filter.
    virtual bool getUseTransparency() const = 0;
    virtual void setUseTransparency(bool use) = 0;
    /// 1.0 in a new filter.
    virtual double getTransparency() const = 0;
    virtual void setTransparency(double transparency) = 0;

protected:
    ~IZelHatchingFilter() = default;
};

} // namespace OvZel
