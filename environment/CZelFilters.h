#pragma once

#include "core/TZelStrongPtr.h"
#include "environment/CZelExposureFilter.h"
#include "environment/CZelGrainFilter.h"
#include "environment/CZelHatchingFilter.h"
#include "environment/CZelImageSettingsFilter.h"
#include "environment/CZelVignettingFilter.h"
#include "xml/TZelXMLFrontierObjLink.h"

#include <zel/IZelFilters.h>

namespace OvZel {

class CZelXMLAdd;
class CZelXMLGet;

/// The five filters of a view; the element "Filters".
class CZelFilters : public TZelXMLFrontierObjLink<IZelFilters> {
public:
    explicit CZelFilters(IZelObjectLink* owner);

    const IZelImageSettingsFilter* getImageSettingsFilter() const override
    {
        return mImageSettingsFilter.getPtr();
    }
    IZelImageSettingsFilter* getImageSettingsFilter() override
    {
        return mImageSettingsFilter.getPtr();
    }
    const IZelGrainFilter* getGrainFilter() const override { return mGrainFilter.getPtr(); }
    IZelGrainFilter* getGrainFilter() override { return mGrainFilter.getPtr(); }
    const IZelVignettingFilter* getVignettingFilter() const override
    {
        return mVignettingFilter.getPtr();
    }
    IZelVignettingFilter* getVignettingFilter() override { return mVignettingFilter.getPtr(); }
    const IZelExposureFilter* getExposureFilter() const override
    {
        return mExposureFilter.getPtr();
    }
    IZelExposureFilter* getExposureFilter() override { return mExposureFilter.getPtr(); }
    const IZelHatchingFilter* getHatchingFilter() const override
    {
        return mHatchingFilter.getPtr();
    }
    IZelHatchingFilter* getHatchingFilter() override { return mHatchingFilter.getPtr(); }

    OrvaneXML::XIXMLElement* addXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) override;
    bool getXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) override;
    void addTo(CZelXMLIO& io, const CZelXMLAdd& out) const;
    void getFrom(CZelXMLIO& io, const CZelXMLGet& in);

private:
    TZelStrongPtr<CZelImageSettingsFilter> mImageSettingsFilter;
    TZelStrongPtr<CZelGrainFilter> mGrainFilter;
    TZelStrongPtr<CZelVignettingFilter> mVignettingFilter;
    TZelStrongPtr<CZelExposureFilter> mExposureFilter;
    TZelStrongPtr<CZelHatchingFilter> mHatchingFilter;
};

} // namespace OvZel
