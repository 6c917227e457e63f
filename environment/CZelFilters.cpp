#include "environment/CZelFilters.h"

namespace OvZel {

CZelFilters::CZelFilters(IZelObjectLink* owner)
    : TZelXMLFrontierObjLink(owner), mImageSettingsFilter(new CZelImageSettingsFilter(this)),
      mGrainFilter(new CZelGrainFilter(this)), mVignettingFilter(new CZelVignettingFilter(this)),
      mExposureFilter(new CZelExposureFilter(this)), mHatchingFilter(new CZelHatchingFilter(this))
{
}

} // namespace OvZel
