#include "lighting/CZelGodRays.h"

#include "tests/support/accessors.h"
#include "tests/support/checkElement.h"

using namespace OvZel;
using namespace ZelTest;

TEST(GodRaysXml, FileForm)
{
    checkElement("God.Rays", {flag("Used", false), real("Power", 2.5, 1.0)},
                 [](CTestDocument&) { return std::make_unique<CZelGodRays>(); });
}

TEST(GodRays, EveryValueIsStoredAsItComes)
{
    CZelGodRays rays;
    expectAccessors<IZelGodRays>(
        rays, {ACCESS(IZelGodRays, Used, true), ACCESS(IZelGodRays, Power, -1.0)});
}
