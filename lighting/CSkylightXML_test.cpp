#include "lighting/CSkylight.h"

#include "tests/support/accessors.h"
#include "tests/support/checkElement.h"
#include "tests/support/messageOf.h"

using namespace OvZel;
using namespace ZelTest;

TEST(SkylightXml, FileForm)
{
    checkElement(
        "Sky.Light",
        {flag("Used", false), real("Factor", 1.5, 0.75), color("Color", {1, 2, 3}, {255, 255, 255}),
         oneOf(attribute("Sky.Type", "User", "Automatic"), {"Automatic", "User"}),
         flag("Background", false), real("Pollution", 2.5, 0.2), flag("Sky.Mix.Color.Flag", false),
         color("Sky.Mix.Color", {4, 5, 6}, {255, 255, 255}), flag("Power.Flag", false),
         flag("Sky.Color.Flag", false), optional(real("Sky.Saturation", 3.5, 0.5)),
         oneOf(attribute("Sky.Kind", "Vendralis5Sky", "Physical"), {"Physical", "Vendralis5Sky"}),
         optional(real("Sky.Exposure", 4.5, 0.0))},
        [](CTestDocument&) { return std::make_unique<CSkylight>(); });
}

TEST(SkylightXml, TheLabelsStandForTheirNumbers)
{
    CTestDocument document;
    CZelXMLIO io(document.ref(), true);
    CSkylight sky;
    sky.setSkyKind(1);
    sky.setSkyType(1);
    const CTestElement target;
    sky.addTo(io, CZelXMLAdd(target.element()));
    CSkylight other;
    other.getFrom(io, CZelXMLGet(target.element()));
    EXPECT_EQ(other.getSkyKind(), 1);
    EXPECT_EQ(other.getSkyType(), 1);
    EXPECT_STREQ(CZelXMLGet(target.element()).GetOptionalAttribute("Sky.Kind"), "Vendralis5Sky");
    EXPECT_STREQ(CZelXMLGet(target.element()).GetOptionalAttribute("Sky.Type"), "User");
}

TEST(SkylightXml, NumbersWithoutALabelAreNotWritten)
{
    CTestDocument document;
    CZelXMLIO io(document.ref(), true);
    const CTestElement target;
    CSkylight kind, type;
    kind.setSkyKind(2);
    type.setSkyType(-1);
    EXPECT_EQ(messageOf([&] { kind.addTo(io, CZelXMLAdd(target.element())); }),
              "No label for the value (2) [Physical..Vendralis5Sky]");
    EXPECT_EQ(messageOf([&] { type.addTo(io, CZelXMLAdd(target.element())); }),
              "No label for the value (-1) [Automatic..User]");
}

TEST(Skylight, EveryValueIsStoredAsItComes)
{
    CSkylight sky;
    expectAccessors<IZelSkylight>(
        sky, {ACCESS(IZelSkylight, Used, true), ACCESS(IZelSkylight, Factor, -1.0),
              ACCESS(IZelSkylight, Color, CZelColor::rgb(1, 2, 3)),
              ACCESS(IZelSkylight, SkyType, -2), ACCESS(IZelSkylight, Background, true),
              ACCESS(IZelSkylight, Pollution, -3.0), ACCESS(IZelSkylight, SkyMixColorFlag, true),
              ACCESS(IZelSkylight, SkyMixColor, CZelColor::rgb(4, 5, 6)),
              ACCESS(IZelSkylight, PowerFlag, true), ACCESS(IZelSkylight, SkyColorFlag, true),
              ACCESS(IZelSkylight, SkySaturation, -4.0), ACCESS(IZelSkylight, SkyKind, -5),
              ACCESS(IZelSkylight, SkyExposure, -6.0)});
}
