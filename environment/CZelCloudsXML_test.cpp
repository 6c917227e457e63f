#include "environment/CZelClouds.h"

#include "tests/support/accessors.h"
#include "tests/support/checkElement.h"

using namespace OvZel;
using namespace ZelTest;

TEST(CloudsXml, FileForm)
{
    checkElement<CZelClouds>("Clouds",
                             {flag("Active", false), real("Cumulus.Size", 1.5, 0.6),
                              integer("Cumulus.Seed", 1, 0), real("Cirrus.Size", 2.5, 0.5),
                              integer("Cirrus.Seed", -2, 0), real("Stratus.Size", 3.5, 0.2),
                              integer("Stratus.Seed", 3, 0), real("Cirrocumulus.Size", 4.5, 0.4),
                              integer("Cirrocumulus.Seed", 4, 0), flag("Active.Wind", false),
                              optional(real("Wind.Speed", 5.5, 20.0)),
                              optional(real("Wind.Direction", 6.5, 0.0))});
}

TEST(CloudsXml, TheWindOffsetLivesInMemoryOnly)
{
    CTestDocument document;
    CZelClouds clouds(document.ref());
    EXPECT_EQ(clouds.getWindOffset(), 0.0);
    CTestElement before, after;
    ASSERT_NE(clouds.putInXML(before.element()), nullptr);
    clouds.setWindOffset(7.0);
    ASSERT_NE(clouds.putInXML(after.element()), nullptr);
    EXPECT_EQ(after.text(), before.text());

    EXPECT_TRUE(clouds.initWithXML(before.element(), true));
    EXPECT_EQ(clouds.getWindOffset(), 7.0);
}

TEST(Clouds, EveryValueIsStoredAsItComes)
{
    CZelClouds clouds(nullptr);
    expectAccessors<IZelClouds>(
        clouds, {ACCESS(IZelClouds, Active, true), ACCESS(IZelClouds, CumulusSize, -1.0),
                 ACCESS(IZelClouds, CumulusSeed, -1), ACCESS(IZelClouds, CirrusSize, -2.0),
                 ACCESS(IZelClouds, CirrusSeed, -2), ACCESS(IZelClouds, StratusSize, -3.0),
                 ACCESS(IZelClouds, StratusSeed, -3), ACCESS(IZelClouds, CirrocumulusSize, -4.0),
                 ACCESS(IZelClouds, CirrocumulusSeed, -4), ACCESS(IZelClouds, ActiveWind, true),
                 ACCESS(IZelClouds, WindSpeed, -5.0), ACCESS(IZelClouds, WindDirection, -6.0),
                 ACCESS(IZelClouds, WindOffset, -7.0)});
}
