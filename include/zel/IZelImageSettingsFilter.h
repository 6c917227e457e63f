#pragma once

#include <zel/CZelColor.h>
#include <zel/IZelXML.h>

namespace OvZel {

/// Brightness, contrast and colour of the finished picture.
///
/// Nothing is clipped. Part of the filters of a view.
///
/// The order of the virtual operations is a promise to compiled clients. Never insert, remove or
/// reorder one; what is new goes into a new interface.
class IZelImageSettingsFilter : public IZelXML {
public:
    /// True in a new filter.
    virtual bool getActive() const = 0;
    virtual void setActive(bool active) = 0;
    /// 0.5 in a new filter.
    virtual double getBrightness() const = 0;
    virtual void setBrightness(double brightness) = 0;
    /// 0.5 in a new filter.
    virtual double getContrast() const = 0;
    virtual void setContrast(double contrast) = 0;
    /// 0.5 in a new filter.
    virtual double getSaturation() const = 0;
    virtual void setSaturation(double saturation) = 0;
    /// Whether the mix colour counts, false in a new filter.
    virtual bool getUseMixColor() const = 0;
    virtual void setUseMixColor(bool use) = 0;
    /// White in a new filter.
    virtual CZelColor getMixColor() const = 0;
    virtual void setMixColor(const CZelColor& color) = 0;

protected:
    ~IZelImageSettingsFilter() = default;
};

} // namespace OvZel
