#include "tests/support/slots.h"

#include <zel/IZelBackground.h>
#include <zel/IZelBackgroundPicture.h>
#include <zel/IZelEnvironment.h>
#include <zel/IZelExposureFilter.h>
#include <zel/IZelFilters.h>
#include <zel/IZelForeground.h>
#include <zel/IZelGrainFilter.h>
#include <zel/IZelHatchingFilter.h>
#include <zel/IZelImageSettingsFilter.h>
#include <zel/IZelToneSettings.h>
#include <zel/IZelVignettingFilter.h>

using namespace OvZel;
using ZelTest::expectOrder;

TEST(EnvironmentSlots, IZelImageSettingsFilter)
{
    using I = IZelImageSettingsFilter;
    expectOrder(0,
                {AT(I::putInXML), AT(I::initWithXML), AT(I::getActive), AT(I::setActive),
                 AT(I::getBrightness), AT(I::setBrightness), AT(I::getContrast), AT(I::setContrast),
                 AT(I::getSaturation), AT(I::setSaturation), AT(I::getUseMixColor),
                 AT(I::setUseMixColor), AT(I::getMixColor), AT(I::setMixColor)});
}

TEST(EnvironmentSlots, IZelGrainFilter)
{
    using I = IZelGrainFilter;
    expectOrder(0, {AT(I::putInXML), AT(I::initWithXML), AT(I::getActive), AT(I::setActive),
                    AT(I::getBrightness), AT(I::setBrightness), AT(I::getSize), AT(I::setSize)});
}

TEST(EnvironmentSlots, IZelVignettingFilter)
{
    using I = IZelVignettingFilter;
    expectOrder(0, {AT(I::putInXML), AT(I::initWithXML), AT(I::getActive), AT(I::setActive),
                    AT(I::getValue), AT(I::setValue)});
}

TEST(EnvironmentSlots, IZelExposureFilter)
{
    using I = IZelExposureFilter;
    expectOrder(0, {AT(I::putInXML), AT(I::initWithXML), AT(I::getActive), AT(I::setActive),
                    AT(I::getExposure), AT(I::setExposure), AT(I::getSize), AT(I::setSize)});
}

TEST(EnvironmentSlots, IZelHatchingFilter)
{
    using I = IZelHatchingFilter;
    expectOrder(0,
                {AT(I::putInXML), AT(I::initWithXML), AT(I::getActive), AT(I::setActive),
                 AT(I::getIntensityThreshold), AT(I::setIntensityThreshold),
                 AT(I::getContourThreshold), AT(I::setContourThreshold), AT(I::getUseTransparency),
                 AT(I::setUseTransparency), AT(I::getTransparency), AT(I::setTransparency)});
}

TEST(EnvironmentSlots, IZelBackgroundPicture)
{
    using I = IZelBackgroundPicture;
    expectOrder(0, {AT(I::putInXML),
                    AT(I::initWithXML),
                    AT(I::getType),
                    AT(I::setType),
                    AT(I::getURL),
                    AT(I::setURL),
                    AT(I::get3D),
                    AT(I::set3D),
                    AT(I::getFirstColor),
                    AT(I::setFirstColor),
                    AT(I::getSecondColor),
                    AT(I::setSecondColor),
                    AT(I::getThirdColor),
                    AT(I::setThirdColor),
                    AT(I::getFourthColor),
                    AT(I::setFourthColor),
                    AT(I::getHOffset),
                    AT(I::setHOffset),
                    AT(I::getVOffset),
                    AT(I::setVOffset),
                    AT(I::getLightingFlag),
                    AT(I::setLightingFlag),
                    AT(I::getLightingIntensity),
                    AT(I::setLightingIntensity),
                    AT(I::getBackgroundIntensity),
                    AT(I::setBackgroundIntensity),
                    AT(I::getHorizontalRoll),
                    AT(I::setHorizontalRoll),
                    AT(I::getWidth),
                    AT(I::setWidth),
                    AT(I::getHeight),
                    AT(I::setHeight),
                    AT(I::getKeepProportions),
                    AT(I::setKeepProportions)});
}

TEST(EnvironmentSlots, IZelForeground)
{
    using I = IZelForeground;
    expectOrder(0, {AT(I::putInXML), AT(I::initWithXML), AT(I::getURL), AT(I::setURL),
                    AT(I::getPositionX), AT(I::setPositionX), AT(I::getPositionY),
                    AT(I::setPositionY), AT(I::getSizeX), AT(I::setSizeX), AT(I::getSizeY),
                    AT(I::setSizeY), AT(I::getImageId), AT(I::setImageId), AT(I::getIntensity),
                    AT(I::setIntensity), AT(I::getKeepProportions), AT(I::setKeepProportions)});
}

TEST(EnvironmentSlots, IZelToneSettings)
{
    using I = IZelToneSettings;
    expectOrder(0, {AT(I::putInXML), AT(I::initWithXML), AT(I::getLightsTones),
                    AT(I::setLightsTones), AT(I::getDarkTones), AT(I::setDarkTones)});
}

TEST(EnvironmentSlots, IZelBackground)
{
    using I = IZelBackground;
    expectOrder(0, {AT(I::putInXML),         AT(I::initWithXML),    AT(I::getColor),
                    AT(I::setColor),         AT(I::getSecondColor), AT(I::setSecondColor),
                    AT(I::getUpDirection),   AT(I::setUpDirection), AT(I::getLinePower),
                    AT(I::setLinePower),     AT(I::getURL),         AT(I::setURL),
                    AT(I::getImageType),     AT(I::setImageType),   AT(I::getColorType),
                    AT(I::setColorType),     AT(I::getUseDefault),  AT(I::setUseDefault),
                    AT(I::getOrigin),        AT(I::setOrigin),      AT(I::getDirectionAngle),
                    AT(I::setDirectionAngle)});
}

TEST(EnvironmentSlots, IZelFilters)
{
    using I = IZelFilters;
    expectOrder(0, {AT(I::putInXML), AT(I::initWithXML),
                    CONST_AT(const IZelImageSettingsFilter*, I::getImageSettingsFilter),
                    OTHER_AT(IZelImageSettingsFilter*, I::getImageSettingsFilter),
                    CONST_AT(const IZelGrainFilter*, I::getGrainFilter),
                    OTHER_AT(IZelGrainFilter*, I::getGrainFilter),
                    CONST_AT(const IZelVignettingFilter*, I::getVignettingFilter),
                    OTHER_AT(IZelVignettingFilter*, I::getVignettingFilter),
                    CONST_AT(const IZelExposureFilter*, I::getExposureFilter),
                    OTHER_AT(IZelExposureFilter*, I::getExposureFilter),
                    CONST_AT(const IZelHatchingFilter*, I::getHatchingFilter),
                    OTHER_AT(IZelHatchingFilter*, I::getHatchingFilter)});
}

TEST(EnvironmentSlots, IZelEnvironment)
{
    using I = IZelEnvironment;
    expectOrder(0, {AT(I::putInXML), AT(I::initWithXML), AT(I::getId), AT(I::setId), AT(I::getName),
                    AT(I::setName), CONST_AT(const IZelClouds*, I::getClouds),
                    OTHER_AT(IZelClouds*, I::getClouds), CONST_AT(const IZelFog*, I::getFog),
                    OTHER_AT(IZelFog*, I::getFog),
                    CONST_AT(const IZelBackgroundPicture*, I::getBackgroundPicture),
                    OTHER_AT(IZelBackgroundPicture*, I::getBackgroundPicture),
                    CONST_AT(const IZelForeground*, I::getForeground),
                    OTHER_AT(IZelForeground*, I::getForeground)});
}
