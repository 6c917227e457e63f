#include "lighting/CHeliodon.h"
#include "lighting/CLight.h"
#include "lighting/CZelLightsGroup.h"
#include "tests/support/slots.h"

using namespace OvZel;
using ZelTest::expectMargin;

TEST(LightingSlots, EveryInterfaceEndsWithItsMargin)
{
    expectMargin<CLight>(AT(IZelLight::setIESUrl));
    expectMargin<CZelLightsGroup>(AT(IZelLightsGroup::getBasicData));
    expectMargin<CZelLensFlare>(AT(IZelLensFlare::setIntensity));
    expectMargin<CZelLightCone>(AT(IZelLightCone::setPower));
    expectMargin<CZelGodRays>(AT(IZelGodRays::setPower));
    expectMargin<CSkylight>(AT(IZelSkylight::setSkyExposure));
    expectMargin<CHeliodon>(AT(IZelHeliodon::setSaturation));
}
