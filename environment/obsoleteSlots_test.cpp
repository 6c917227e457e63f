#include "environment/CAtmosphere.h"
#include "environment/CBackground.h"
#include "environment/CZelEnvironment.h"
#include "environment/CZelFilters.h"
#include "environment/CZelToneSettings.h"
#include "tests/support/slots.h"

using namespace OvZel;
using ZelTest::expectMargin;

TEST(EnvironmentSlots, EveryInterfaceEndsWithItsMargin)
{
    expectMargin<CAtmosphere>(AT(IZelAtmosphere::setUseDefault));
    expectMargin<CZelFog>(AT(IZelFog::setAltitude));
    expectMargin<CZelClouds>(AT(IZelClouds::setWindOffset));
    expectMargin<CBackground>(AT(IZelBackground::setDirectionAngle));
    expectMargin<CZelBackgroundPicture>(AT(IZelBackgroundPicture::setKeepProportions));
    expectMargin<CZelForeground>(AT(IZelForeground::setKeepProportions));
    expectMargin<CZelToneSettings>(AT(IZelToneSettings::setDarkTones));
    expectMargin<CZelEnvironment>(OTHER_AT(IZelForeground*, IZelEnvironment::getForeground));
    expectMargin<CZelFilters>(OTHER_AT(IZelHatchingFilter*, IZelFilters::getHatchingFilter));
    expectMargin<CZelImageSettingsFilter>(AT(IZelImageSettingsFilter::setMixColor));
    expectMargin<CZelGrainFilter>(AT(IZelGrainFilter::setSize));
    expectMargin<CZelVignettingFilter>(AT(IZelVignettingFilter::setValue));
    expectMargin<CZelExposureFilter>(AT(IZelExposureFilter::setSize));
    expectMargin<CZelHatchingFilter>(AT(IZelHatchingFilter::setTransparency));
}
