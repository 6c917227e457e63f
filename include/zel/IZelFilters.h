#pragma once

#include <zel/IZelExposureFilter.h>
#include <zel/IZelGrainFilter.h>
#include <zel/IZelHatchingFilter.h>
#include <zel/IZelImageSettingsFilter.h>
#include <zel/IZelVignettingFilter.h>
#include <zel/IZelXML.h>

namespace OvZel {

/// The filters of a view, one of each kind. In a new object only the image settings are active.
/// Part of its owner: pointers to it are good as long as the owner lives.
///
/// The order of the virtual operations is a promise to compiled clients. Never insert, remove or
/// reorder one; what is new goes into a new interface.
class IZelFilters : public IZelXML {
public:
    /// Never null, as the other filters.
    virtual const IZelImageSettingsFilter* getImageSettingsFilter() const = 0;
    virtual IZelImageSettingsFilter* getImageSettingsFilter() = 0;
    /// As getImageSettingsFilter.
    virtual const IZelGrainFilter* getGrainFilter() const = 0;
    virtual IZelGrainFilter* getGrainFilter() = 0;
    /// As getImageSettingsFilter.
    virtual const IZelVignettingFilter* getVignettingFilter() const = 0;
    virtual IZelVignettingFilter* getVignettingFilter() = 0;
    /// As getImageSettingsFilter.
    virtual const IZelExposureFilter* getExposureFilter() const = 0;
    virtual IZelExposureFilter* getExposureFilter() = 0;
    /// As getImageSettingsFilter.
    virtual const IZelHatchingFilter* getHatchingFilter() const = 0;
    virtual IZelHatchingFilter* getHatchingFilter() = 0;

protected:
    ~IZelFilters() = default;
};

} // namespace OvZel
