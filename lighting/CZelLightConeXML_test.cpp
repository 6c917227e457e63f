#include "lighting/CZelLightCone.h"

#include "tests/support/accessors.h"
#include "tests/support/checkElement.h"

using namespace OvZel;
using namespace ZelTest;

TEST(LightConeXml, FileForm)
{
    checkElement("Light.Cone", {flag("Used", false), real("Power", 2.5, 0.0)},
                 [](CTestDocument&) { return std::make_unique<CZelLightCone>(); });
}

TEST(LightCone, EveryValueIsStoredAsItComes)
{
    CZelLightCone cone;
    expectAccessors<IZelLightCone>(
        cone, {ACCESS(IZelLightCone, Used, true), ACCESS(IZelLightCone, Power, -1.0)});
}
