#include "environment/CAtmosphere.h"

#include "tests/support/checkElement.h"

using namespace OvZel;
using namespace ZelTest;

TEST(AtmosphereXml, FileForm)
{
    checkElement<CAtmosphere>(
        "Atmosphere", {flag("Used", false), color("Color", {1, 2, 3}, {221, 221, 221}),
                       real("Density.High", 0.1, 0.6), real("Density.Medium", 0.2, 0.6),
                       real("Density.Low", 0.3, 0.6), real("Scale", 1.5, 2.0),
                       real("Distance.Minimum", -2.5, 0.0), real("Distance.Maximum", 3.5, 0.0),
                       real("Noise", 4.5, 0.0), flag("Use.Default", true)});
}

TEST(AtmosphereXml, ValuesOfAFileAreClippedWithTheWarningsOfTheSetters)
{
    CTestDocument document;
    CAtmosphere atmosphere(document.ref());
    const CTestElement file(
        "<E><Atmosphere><Color R=\"1\" G=\"2\" B=\"3\"/><Density.High>1.5</Density.High>"
        "<Density.Medium>-1</Density.Medium><Density.Low>nan</Density.Low><Scale>-1</Scale>"
        "<Distance.Minimum>-1</Distance.Minimum><Distance.Maximum>-1</Distance.Maximum>"
        "<Noise>-1</Noise></Atmosphere></E>");
    EXPECT_TRUE(atmosphere.initWithXML(file.element(), true));
    EXPECT_EQ(document.takeMessages(),
              (std::vector<std::string>{
                  "Method setHighDensity has clipped a value out of range.",
                  "Method setMediumDensity has clipped a value out of range.",
                  "Method setLowDensity has clipped a value out of range.",
                  "Method setScale has clipped a value out of range.",
                  "Method setScale has clipped a value out of range.",
                  "Method setNoise has clipped a value out of range.",
              }));
    EXPECT_EQ(atmosphere.getHighDensity(), 1.0);
    EXPECT_EQ(atmosphere.getMediumDensity(), 0.0);
    EXPECT_EQ(atmosphere.getLowDensity(), 0.0);
    EXPECT_EQ(atmosphere.getScale(), 0.0);
    EXPECT_EQ(atmosphere.getMinDistance(), -1.0);
    EXPECT_EQ(atmosphere.getMaxDistance(), 0.0);
    EXPECT_EQ(atmosphere.getNoise(), 0.0);
}

TEST(AtmosphereXml, AMissingElementIsAWarningForTheClient)
{
    CTestDocument document;
    CAtmosphere atmosphere(document.ref());
    const CTestElement file("<E/>");
    EXPECT_FALSE(atmosphere.initWithXML(file.element(), true));
    EXPECT_EQ(document.takeMessages(),
              std::vector<std::string>{"Exception in CZelXML::initWithXML : "
                                       "CZelXMLGet::GetElement - NULL ptr for tag Atmosphere"});
}
