#include "environment/CZelFog.h"

#include "tests/support/accessors.h"
#include "tests/support/checkElement.h"

using namespace OvZel;
using namespace ZelTest;

TEST(FogXml, FileForm)
{
    checkElement<CZelFog>("Fog", {flag("Active", false), color("Color", {1, 2, 3}, {221, 221, 221}),
                                  real("Density", 1.5, 0.5), real("Start.Distance", 2.0, 50.0),
                                  real("End.Distance", 3.0, 2500.0), real("Altitude", 4.0, 300.0)});
}

TEST(FogXml, ColorsOfOlderFilesAreRead)
{
    CTestDocument document;
    CZelFog fog(document.ref());
    const CTestElement file("<E><Fog><Color><Red>1</Red><Green>2</Green><Blue>3</Blue></Color>"
                            "<Density>0</Density><Start.Distance>0</Start.Distance>"
                            "<End.Distance>0</End.Distance><Altitude>0</Altitude></Fog></E>");
    EXPECT_TRUE(fog.initWithXML(file.element(), true));
    EXPECT_EQ(fog.getColor(), CZelColor::rgb(1, 2, 3));
}

TEST(Fog, EveryValueIsStoredAsItComes)
{
    CZelFog fog(nullptr);
    expectAccessors<IZelFog>(
        fog, {ACCESS(IZelFog, Active, true), ACCESS(IZelFog, Color, CZelColor::rgb(1, 2, 3)),
              ACCESS(IZelFog, Density, -5.0), ACCESS(IZelFog, StartDistance, -6.0),
              ACCESS(IZelFog, EndDistance, -7.0), ACCESS(IZelFog, Altitude, -8.0)});
}
