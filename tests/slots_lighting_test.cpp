#include "tests/support/slots.h"

#include <zel/IZelAtmosphere.h>
#include <zel/IZelClouds.h>
#include <zel/IZelFog.h>
#include <zel/IZelGodRays.h>
#include <zel/IZelHeliodon.h>
#include <zel/IZelLensFlare.h>
#include <zel/IZelLight.h>
#include <zel/IZelLightCone.h>
#include <zel/IZelLightsGroup.h>
#include <zel/IZelPlace.h>
#include <zel/IZelSkylight.h>
#include <zel/IZelTime.h>

#include <type_traits>

using namespace OvZel;
using ZelTest::expectOrder;

// What each interface inherits stands ahead: seven slots of IZelBasic, two of IZelXML.

TEST(LightingSlots, Light)
{
    using I = IZelLight;
    expectOrder(7, {AT(I::getType),
                    AT(I::setType),
                    AT(I::getActive),
                    AT(I::setActive),
                    AT(I::getColor),
                    AT(I::setColor),
                    AT(I::getPower),
                    AT(I::setPower),
                    AT(I::getDistanceNear),
                    AT(I::setDistanceNear),
                    AT(I::getDistanceFar),
                    AT(I::setDistanceFar),
                    AT(I::getPosition),
                    AT(I::setPosition),
                    AT(I::getTarget),
                    AT(I::setTarget),
                    AT(I::getConeAngle),
                    AT(I::setConeAngle),
                    AT(I::getSharpness),
                    AT(I::setSharpness),
                    AT(I::getShadowType),
                    AT(I::setShadowType),
                    AT(I::getShadowPower),
                    AT(I::setShadowPower),
                    AT(I::getMapSize),
                    AT(I::setMapSize),
                    AT(I::getBias),
                    AT(I::setBias),
                    AT(I::getGlobalIllumination),
                    AT(I::setGlobalIllumination),
                    AT(I::getGlobalIlluminationPower),
                    AT(I::setGlobalIlluminationPower),
                    AT(I::getGlobalIlluminationQuality),
                    AT(I::setGlobalIlluminationQuality),
                    AT(I::getLocked),
                    AT(I::setLocked),
                    CONST_AT(const TZelObjectMgr<CZelUUID>*, I::getLightsGroups),
                    OTHER_AT(TZelObjectMgr<CZelUUID>*, I::getLightsGroups),
                    CONST_AT(const IZelLensFlare*, I::getLensFlare),
                    OTHER_AT(IZelLensFlare*, I::getLensFlare),
                    CONST_AT(const IZelLightCone*, I::getLightCone),
                    OTHER_AT(IZelLightCone*, I::getLightCone),
                    AT(I::getRadiosity),
                    AT(I::setRadiosity),
                    AT(I::getTargetType),
                    AT(I::setTargetType),
                    AT(I::getObjectId),
                    AT(I::setObjectId),
                    AT(I::getIES),
                    AT(I::setIES),
                    AT(I::getIESUrl),
                    AT(I::setIESUrl)});
}

TEST(LightingSlots, AGroupAddsNothing)
{
    static_assert(std::is_base_of_v<IZelBasic, IZelLightsGroup>);
    expectOrder(5, {AT(IZelLightsGroup::getObjectLink), AT(IZelLightsGroup::getBasicData)});
}

TEST(LightingSlots, LensFlare)
{
    using I = IZelLensFlare;
    expectOrder(0, {AT(I::getUsed), AT(I::setUsed), AT(I::getType), AT(I::setType), AT(I::getSize),
                    AT(I::setSize), AT(I::getIntensity), AT(I::setIntensity)});
}

TEST(LightingSlots, LightCone)
{
    using I = IZelLightCone;
    expectOrder(0, {AT(I::getUsed), AT(I::setUsed), AT(I::getPower), AT(I::setPower)});
}

TEST(LightingSlots, GodRays)
{
    using I = IZelGodRays;
    expectOrder(0, {AT(I::getUsed), AT(I::setUsed), AT(I::getPower), AT(I::setPower)});
}

TEST(LightingSlots, Skylight)
{
    using I = IZelSkylight;
    expectOrder(0, {AT(I::getUsed),
                    AT(I::setUsed),
                    AT(I::getFactor),
                    AT(I::setFactor),
                    AT(I::getColor),
                    AT(I::setColor),
                    AT(I::getSkyType),
                    AT(I::setSkyType),
                    AT(I::getBackground),
                    AT(I::setBackground),
                    AT(I::getPollution),
                    AT(I::setPollution),
                    AT(I::getSkyMixColorFlag),
                    AT(I::setSkyMixColorFlag),
                    AT(I::getSkyMixColor),
                    AT(I::setSkyMixColor),
                    AT(I::getPowerFlag),
                    AT(I::setPowerFlag),
                    AT(I::getSkyColorFlag),
                    AT(I::setSkyColorFlag),
                    AT(I::getSkySaturation),
                    AT(I::setSkySaturation),
                    AT(I::getSkyKind),
                    AT(I::setSkyKind),
                    AT(I::getSkyExposure),
                    AT(I::setSkyExposure)});
}

TEST(LightingSlots, Heliodon)
{
    using I = IZelHeliodon;
    expectOrder(7, {AT(I::getActive),
                    AT(I::setActive),
                    CONST_AT(const IZelTime*, I::getTime),
                    OTHER_AT(IZelTime*, I::getTime),
                    CONST_AT(const IZelPlace*, I::getPlace),
                    OTHER_AT(IZelPlace*, I::getPlace),
                    AT(I::getSunshine),
                    AT(I::setSunshine),
                    AT(I::getNorthAngle),
                    AT(I::setNorthAngle),
                    AT(I::getShadow),
                    AT(I::setShadow),
                    AT(I::getShadowPower),
                    AT(I::setShadowPower),
                    AT(I::getShadowBlur),
                    AT(I::setShadowBlur),
                    AT(I::getGlobalIllumination),
                    AT(I::setGlobalIllumination),
                    AT(I::getGlobalIlluminationPower),
                    AT(I::setGlobalIlluminationPower),
                    AT(I::getGlobalIlluminationQuality),
                    AT(I::setGlobalIlluminationQuality),
                    CONST_AT(const IZelLensFlare*, I::getLensFlare),
                    OTHER_AT(IZelLensFlare*, I::getLensFlare),
                    CONST_AT(const IZelGodRays*, I::getGodRays),
                    OTHER_AT(IZelGodRays*, I::getGodRays),
                    AT(I::getColored),
                    AT(I::setColored),
                    AT(I::getColor),
                    AT(I::setColor),
                    AT(I::getRadiosity),
                    AT(I::setRadiosity),
                    CONST_AT(const IZelSkylight*, I::getSkylight),
                    OTHER_AT(IZelSkylight*, I::getSkylight),
                    AT(I::getPlacementKind),
                    AT(I::setPlacementKind),
                    AT(I::getColorType),
                    AT(I::setColorType),
                    AT(I::getSunColor),
                    AT(I::setSunColor),
                    AT(I::getTheta),
                    AT(I::setTheta),
                    AT(I::getPhi),
                    AT(I::setPhi),
                    CONST_AT(const IZelClouds*, I::getClouds),
                    OTHER_AT(IZelClouds*, I::getClouds),
                    AT(I::getCloudCoverage),
                    AT(I::setCloudCoverage),
                    AT(I::getCloudMaskSun),
                    AT(I::setCloudMaskSun),
                    CONST_AT(const IZelFog*, I::getFog),
                    OTHER_AT(IZelFog*, I::getFog),
                    AT(I::getSunPowerFlag),
                    AT(I::setSunPowerFlag),
                    AT(I::getSaturation),
                    AT(I::setSaturation)});
}

TEST(LightingSlots, Atmosphere)
{
    using I = IZelAtmosphere;
    expectOrder(0, {AT(I::putInXML),         AT(I::initWithXML),    AT(I::getUsed),
                    AT(I::setUsed),          AT(I::getColor),       AT(I::setColor),
                    AT(I::getHighDensity),   AT(I::setHighDensity), AT(I::getMediumDensity),
                    AT(I::setMediumDensity), AT(I::getLowDensity),  AT(I::setLowDensity),
                    AT(I::getScale),         AT(I::setScale),       AT(I::getMinDistance),
                    AT(I::setMinDistance),   AT(I::getMaxDistance), AT(I::setMaxDistance),
                    AT(I::getNoise),         AT(I::setNoise),       AT(I::getUseDefault),
                    AT(I::setUseDefault)});
}

TEST(LightingSlots, Fog)
{
    using I = IZelFog;
    expectOrder(0, {AT(I::putInXML), AT(I::initWithXML), AT(I::getActive), AT(I::setActive),
                    AT(I::getColor), AT(I::setColor), AT(I::getDensity), AT(I::setDensity),
                    AT(I::getStartDistance), AT(I::setStartDistance), AT(I::getEndDistance),
                    AT(I::setEndDistance), AT(I::getAltitude), AT(I::setAltitude)});
}

TEST(LightingSlots, Clouds)
{
    using I = IZelClouds;
    expectOrder(0, {AT(I::putInXML),
                    AT(I::initWithXML),
                    AT(I::getActive),
                    AT(I::setActive),
                    AT(I::getCumulusSize),
                    AT(I::setCumulusSize),
                    AT(I::getCumulusSeed),
                    AT(I::setCumulusSeed),
                    AT(I::getCirrusSize),
                    AT(I::setCirrusSize),
                    AT(I::getCirrusSeed),
                    AT(I::setCirrusSeed),
                    AT(I::getStratusSize),
                    AT(I::setStratusSize),
                    AT(I::getStratusSeed),
                    AT(I::setStratusSeed),
                    AT(I::getCirrocumulusSize),
                    AT(I::setCirrocumulusSize),
                    AT(I::getCirrocumulusSeed),
                    AT(I::setCirrocumulusSeed),
                    AT(I::getActiveWind),
                    AT(I::setActiveWind),
                    AT(I::getWindSpeed),
                    AT(I::setWindSpeed),
                    AT(I::getWindDirection),
                    AT(I::setWindDirection),
                    AT(I::getWindOffset),
                    AT(I::setWindOffset)});
}
