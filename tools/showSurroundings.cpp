#include "tools/showParts.h"

#include "tools/showValues.h"

#include <zel/IZelMgr.h>

#include <cstdio>

namespace tool {

using nlohmann::ordered_json;

static constexpr const char* kPlacements[] = {"manual", "45-degrees", "date-and-place"};

static std::string dateText(const OvZel::IZelTime& time)
{
    char text[64];
    std::snprintf(text, sizeof text, "%04d-%02d-%02d %02d:%02d", time.getYear(), time.getMonth(),
                  time.getDay(), time.getHour(), time.getMinute());
    return text;
}

static ordered_json placeOutline(const OvZel::IZelPlace& place)
{
    return {{"longitude", place.getLongitude()},
            {"latitude", place.getLatitude()},
            {"timeZone", place.getTimeZone()},
            {"daylight", place.getDaylight()}};
}

static ordered_json cloudsOutline(const OvZel::IZelClouds& clouds)
{
    return {{"active", clouds.getActive()},
            {"cumulus", clouds.getCumulusSize()},
            {"cirrus", clouds.getCirrusSize()},
            {"stratus", clouds.getStratusSize()},
            {"cirrocumulus", clouds.getCirrocumulusSize()}};
}

static ordered_json fogOutline(const OvZel::IZelFog& fog)
{
    return {{"active", fog.getActive()},
            {"color", colorText(fog.getColor())},
            {"density", fog.getDensity()}};
}

static ordered_json skylightOutline(const OvZel::IZelSkylight& skylight)
{
    return {{"used", skylight.getUsed()},
            {"factor", skylight.getFactor()},
            {"color", colorText(skylight.getColor())}};
}

// Where the sun stands: only what the placement takes.
static void addPlacement(OvZel::IZelHeliodon& heliodon, ordered_json& object)
{
    object["placement"] = word(kPlacements, heliodon.getPlacementKind());
    if (heliodon.getPlacementKind() == 0) {
        object["theta"] = heliodon.getTheta();
        object["phi"] = heliodon.getPhi();
    } else if (heliodon.getPlacementKind() == 2) {
        object["date"] = dateText(*heliodon.getTime());
        object["place"] = placeOutline(*heliodon.getPlace());
    }
}

static ordered_json heliodonOutline(OvZel::IZelHeliodon& heliodon)
{
    ordered_json object = named(heliodon);
    object["active"] = heliodon.getActive();
    addPlacement(heliodon, object);
    object["northAngle"] = heliodon.getNorthAngle();
    object["sunshine"] = heliodon.getSunshine();
    object["shadow"] = heliodon.getShadow();
    object["shadowPower"] = heliodon.getShadowPower();
    object["skylight"] = skylightOutline(*heliodon.getSkylight());
    object["clouds"] = cloudsOutline(*heliodon.getClouds());
    object["fog"] = fogOutline(*heliodon.getFog());
    return object;
}

static ordered_json environmentOutline(OvZel::IZelEnvironment& environment)
{
    return {{"uuid", idText(environment.getId())},
            {"name", environment.getName()},
            {"background", environment.getBackgroundPicture()->getURL()},
            {"foreground", environment.getForeground()->getURL()},
            {"clouds", cloudsOutline(*environment.getClouds())},
            {"fog", fogOutline(*environment.getFog())}};
}

static ordered_json groundOutline(OvZel::IZelGround& ground)
{
    ordered_json object = named(ground);
    object["active"] = ground.getActive();
    object["height"] = ground.getHeight();
    object["material"] = materialOutline(*ground.getProperty());
    return object;
}

void showSurroundings(OvZel::IZelMgr& document, ordered_json& outline)
{
    outline["environments"] = outlines(*document.getEnvironments(), environmentOutline);
    outline["heliodons"] = outlines(*document.getHeliodons(), heliodonOutline);
    outline["grounds"] = outlines(*document.getGrounds(), groundOutline);
}

} // namespace tool
