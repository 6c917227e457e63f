#include "environment/CZelBackgroundPicture.h"

#include "tests/support/accessors.h"
#include "tests/support/checkElement.h"

using namespace OvZel;
using namespace ZelTest;

TEST(BackgroundPictureXml, FileForm)
{
    const std::vector<CRow> rows = {
        required(oneOf(attribute("Type", "Picture.2D", "None"),
                       {"None", "User.Gradiant", "Picture.2D", "Movie.3D", "User.Gradiant.4.Colors",
                        "HDRI"}),
                 "CZelXMLGet::GetAttributeLabel - NULL ptr for tag Type"),
        text("URL", "sky.png", ""),
        color("First.Color", {1, 2, 3}, {255, 255, 255}),
        color("Second.Color", {4, 5, 6}, {255, 255, 255}),
        color("Third.Color", {7, 8, 9}, {255, 255, 255}),
        optional(color("Fourth.Color", {10, 11, 12}, {0, 0, 0})),
        flag("3D", false),
        real("H.Offset", 1.5, 0.0),
        real("V.Offset", 2.5, 0.0),
        flag("Lighting.Flag", false),
        optional(real("Lighting.Intensity", 3.5, 0.5)),
        optional(real("Background.Intensity", 4.5, 0.5)),
        optional(real("Horizontal.Roll", 5.5, 0.0)),
        real("Width", 6.5, 1.0),
        real("Height", 7.5, 1.0),
        flag("Keep.Proportions", true),
    };
    checkElement<CZelBackgroundPicture>(
        "Background.Picture", rows,
        {.readOrder = {"URL", "First.Color", "Second.Color", "Third.Color", "Fourth.Color", "3D",
                       "Type", "H.Offset", "V.Offset", "Lighting.Flag", "Lighting.Intensity",
                       "Background.Intensity", "Horizontal.Roll", "Width", "Height",
                       "Keep.Proportions"}});
}

namespace {

const std::string kPictureStart = "<E><Background.Picture Type=\"";
const std::string kPictureRest =
    "\"><URL/><First.Color R=\"0\" G=\"0\" B=\"0\"/><Second.Color R=\"0\" G=\"0\" B=\"0\"/>"
    "<Third.Color R=\"0\" G=\"0\" B=\"0\"/><H.Offset>0</H.Offset><V.Offset>0</V.Offset>"
    "<Width>1</Width><Height>1</Height></Background.Picture></E>";

} // namespace

TEST(BackgroundPictureXml, TheTypeIsOneOfSixLabels)
{
    const char* const labels[] = {"None",     "User.Gradiant",          "Picture.2D",
                                  "Movie.3D", "User.Gradiant.4.Colors", "HDRI"};
    CTestDocument document;
    std::int32_t type = 0;
    for (const char* label : labels) {
        CZelBackgroundPicture picture(document.ref());
        const CTestElement source(kPictureStart + label + kPictureRest);
        EXPECT_TRUE(picture.initWithXML(source.element(), false)) << label;
        EXPECT_EQ(picture.getType(), type++) << label;
        CTestElement target;
        ASSERT_NE(picture.putInXML(target.element()), nullptr) << label;
        EXPECT_STREQ(target.element()
                         ->GetFirstElement()
                         ->FindAttribute(target.element()->MakeKey("Type"))
                         ->GetValue(),
                     label);
    }
}

TEST(BackgroundPictureXml, AnUnknownTypeFailsBothWays)
{
    CTestDocument document;
    CZelBackgroundPicture picture(document.ref());
    const CTestElement source(kPictureStart + "User.Gradient" + kPictureRest);
    EXPECT_FALSE(picture.initWithXML(source.element(), false));
    picture.setType(6);
    CTestElement target;
    EXPECT_EQ(picture.putInXML(target.element()), nullptr);
    EXPECT_EQ(document.takeMessages(),
              (std::vector<std::string>{
                  "Exception in CZelXML::initWithXML : Invalid label (User.Gradient) [None..HDRI]",
                  "Exception in CZelXML::putInXML : No label for the value (6) [None..HDRI]"}));
}

TEST(BackgroundPicture, NothingIsClippedAndANullTextIsEmpty)
{
    CZelBackgroundPicture picture(nullptr);
    picture.setURL("a");
    picture.setURL(nullptr);
    EXPECT_STREQ(picture.getURL(), "");
    picture.setWidth(-7.0);
    picture.setLightingIntensity(1e9);
    EXPECT_EQ(picture.getWidth(), -7.0);
    EXPECT_EQ(picture.getLightingIntensity(), 1e9);
}

TEST(BackgroundPicture, EveryValueIsStoredAsItComes)
{
    using I = IZelBackgroundPicture;
    CZelBackgroundPicture object(nullptr);
    ZelTest::expectAccessors<I>(
        object, {ACCESS(I, Type, -1), ACCESS(I, URL, "sky.png"), ACCESS(I, 3D, true),
                 ACCESS(I, FirstColor, CZelColor::rgb(1, 2, 3)),
                 ACCESS(I, SecondColor, CZelColor::rgb(4, 5, 6)),
                 ACCESS(I, ThirdColor, CZelColor::rgb(7, 8, 9)),
                 ACCESS(I, FourthColor, CZelColor::rgb(10, 11, 12)), ACCESS(I, HOffset, -1.0),
                 ACCESS(I, VOffset, -2.0), ACCESS(I, LightingFlag, true),
                 ACCESS(I, LightingIntensity, -3.0), ACCESS(I, BackgroundIntensity, -4.0),
                 ACCESS(I, HorizontalRoll, -5.0), ACCESS(I, Width, -6.0), ACCESS(I, Height, -7.0),
                 ACCESS(I, KeepProportions, false)});
}
