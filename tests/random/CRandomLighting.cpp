#include "tests/random/CRandomDocument.h"

namespace ZelTest {

using namespace OvZel;

void CRandomDocument::fill(IZelLight& light)
{
    fillBasic(light);
    light.setType(random.integer(0, 2));
    light.setActive(random.flag());
    light.setColor(random.color());
    light.setPower(random.number(1.0, 1e6));
    light.setDistanceNear(random.number());
    light.setDistanceFar(random.number());
    light.setPosition(random.point());
    light.setTarget(random.point());
    light.setConeAngle(random.number(0.0, 360.0));
    light.setSharpness(random.number(0.0, 1.0));
    light.setShadowType(random.integer(0, 2));
    light.setShadowPower(random.number(0.0, 1.0));
    light.setMapSize(random.integer(0, 13));
    light.setBias(random.number(0.0, 1.0));
    light.setGlobalIllumination(random.flag());
    light.setGlobalIlluminationPower(random.number());
    light.setGlobalIlluminationQuality(random.integer());
    light.setLocked(random.flag());
    extend(*light.getLightsGroups());
    fill(*light.getLensFlare());
    light.getLightCone()->setUsed(random.flag());
    light.getLightCone()->setPower(random.number());
    light.setRadiosity(random.flag());
    light.setTargetType(random.integer(0, 1));
    light.setObjectId(random.reference());
    light.setIES(random.reference());
    light.setIESUrl(random.url());
}

void CRandomDocument::fill(IZelLightsGroup& group)
{
    fillBasic(group);
}

void CRandomDocument::fill(IZelLensFlare& flare)
{
    flare.setUsed(random.flag());
    flare.setType(random.integer(0, 3));
    flare.setSize(random.number());
    flare.setIntensity(random.number());
}

void CRandomDocument::fill(IZelHeliodon& heliodon)
{
    fillBasic(heliodon);
    heliodon.setActive(random.flag());
    fill(*heliodon.getTime());
    heliodon.getPlace()->setLongitude(random.integer());
    heliodon.getPlace()->setLatitude(random.integer());
    // Twelve minutes or less would be read as hours.
    heliodon.getPlace()->setTimeZone(30 * random.integer(-24, 24));
    heliodon.getPlace()->setDaylight(random.flag());
    heliodon.setSunshine(random.number());
    heliodon.setNorthAngle(random.number(0.0, 360.0));
    heliodon.setShadow(random.flag());
    heliodon.setShadowPower(random.number());
    heliodon.setShadowBlur(random.integer(0, 100));
    heliodon.setGlobalIllumination(random.flag());
    heliodon.setGlobalIlluminationPower(random.number());
    heliodon.setGlobalIlluminationQuality(random.integer());
    fill(*heliodon.getLensFlare());
    heliodon.getGodRays()->setUsed(random.flag());
    heliodon.getGodRays()->setPower(random.number());
    heliodon.setColored(random.flag());
    for (std::uint32_t i = 0; i < 5; ++i)
        heliodon.setColor(i, random.color());
    heliodon.setRadiosity(random.flag());
    fill(*heliodon.getSkylight());
    heliodon.setPlacementKind(random.integer(0, 2));
    heliodon.setColorType(random.integer(0, 1));
    heliodon.setSunColor(random.color());
    heliodon.setTheta(random.number());
    heliodon.setPhi(random.number());
    fill(*heliodon.getClouds());
    heliodon.setCloudCoverage(random.number());
    heliodon.setCloudMaskSun(random.flag());
    fill(*heliodon.getFog());
    heliodon.setSunPowerFlag(random.flag());
    heliodon.setSaturation(random.number());
}

void CRandomDocument::fill(IZelTime& time)
{
    time.setMonth(random.integer(1, 12));
    time.setDay(random.integer(1, 31));
    time.setHour(random.integer(0, 23));
    time.setMinute(random.integer(0, 59));
    time.setYear(random.integer());
}

void CRandomDocument::fill(IZelSkylight& sky)
{
    sky.setUsed(random.flag());
    sky.setFactor(random.number());
    sky.setColor(random.color());
    sky.setSkyType(random.integer(0, 1));
    sky.setBackground(random.flag());
    sky.setPollution(random.number());
    sky.setSkyMixColorFlag(random.flag());
    sky.setSkyMixColor(random.color());
    sky.setPowerFlag(random.flag());
    sky.setSkyColorFlag(random.flag());
    sky.setSkySaturation(random.number());
    sky.setSkyKind(random.integer(0, 1));
    sky.setSkyExposure(random.number());
}

void CRandomDocument::fill(IZelClouds& clouds)
{
    clouds.setActive(random.flag());
    clouds.setCumulusSize(random.number());
    clouds.setCumulusSeed(random.integer());
    clouds.setCirrusSize(random.number());
    clouds.setCirrusSeed(random.integer());
    clouds.setStratusSize(random.number());
    clouds.setStratusSeed(random.integer());
    clouds.setCirrocumulusSize(random.number());
    clouds.setCirrocumulusSeed(random.integer());
    clouds.setActiveWind(random.flag());
    clouds.setWindSpeed(random.number());
    clouds.setWindDirection(random.number());
}

void CRandomDocument::fill(IZelFog& fog)
{
    fog.setActive(random.flag());
    fog.setColor(random.color());
    fog.setDensity(random.number());
    fog.setStartDistance(random.number());
    fog.setEndDistance(random.number());
    fog.setAltitude(random.number());
}

void CRandomDocument::fill(IZelEnvironment& environment)
{
    environment.setId(random.id());
    environment.setName(random.text());
    fill(*environment.getClouds());
    fill(*environment.getFog());
    fill(*environment.getBackgroundPicture());
    fill(*environment.getForeground());
}

void CRandomDocument::fill(IZelBackgroundPicture& picture)
{
    picture.setType(random.integer(0, 5));
    picture.setURL(random.url());
    picture.set3D(random.flag());
    picture.setFirstColor(random.color());
    picture.setSecondColor(random.color());
    picture.setThirdColor(random.color());
    picture.setFourthColor(random.color());
    picture.setHOffset(random.number());
    picture.setVOffset(random.number());
    picture.setLightingFlag(random.flag());
    picture.setLightingIntensity(random.number());
    picture.setBackgroundIntensity(random.number());
    picture.setHorizontalRoll(random.number());
    picture.setWidth(random.number());
    picture.setHeight(random.number());
    picture.setKeepProportions(random.flag());
}

void CRandomDocument::fill(IZelForeground& foreground)
{
    foreground.setURL(random.url());
    foreground.setPositionX(random.number());
    foreground.setPositionY(random.number());
    foreground.setSizeX(random.number());
    foreground.setSizeY(random.number());
    foreground.setIntensity(random.number());
    foreground.setKeepProportions(random.flag());
}

void CRandomDocument::fill(IZelGround& ground)
{
    fillBasic(ground);
    ground.setActive(random.flag());
    ground.setHeight(random.number());
    fill(*ground.getProperty());
}

} // namespace ZelTest
