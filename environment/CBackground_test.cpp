#include "environment/CBackground.h"

#include "tests/support/CTestDocument.h"
#include "tests/support/accessors.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using namespace OvZel;
using ZelTest::CTestDocument;

namespace {

struct CCase {
    double given, kept;
    bool warns;
};

const CCase kCases[] = {
    {0.0, 0.0, false},    {100.0, 100.0, false},
    {-0.5, 0.0, true},    {100.5, 100.0, true},
    {500.0, 100.0, true}, {std::numeric_limits<double>::quiet_NaN(), 0.0, true},
};

} // namespace

TEST(Background, TheLinePowerIsClippedInADocument)
{
    for (const CCase& each : kCases) {
        CTestDocument document;
        CBackground background(document.ref());
        background.setLinePower(each.given);
        EXPECT_EQ(background.getLinePower(), each.kept) << each.given;
        const std::vector<std::string> warning = {
            "Method setLinePower has clipped a value out of range."};
        EXPECT_EQ(document.takeMessages(), each.warns ? warning : std::vector<std::string>())
            << each.given;
    }
}

TEST(Background, WithoutADocumentTheLinePowerStaysAsGiven)
{
    CBackground background(nullptr);
    for (const CCase& each : kCases) {
        background.setLinePower(each.given);
        if (std::isnan(each.given))
            EXPECT_TRUE(std::isnan(background.getLinePower()));
        else
            EXPECT_EQ(background.getLinePower(), each.given);
    }
}

TEST(Background, BehindTheEndOfTheDocumentItStaysAsGiven)
{
    CTestDocument document;
    CBackground background(document.ref());
    document.die();
    background.setLinePower(500.0);
    EXPECT_EQ(background.getLinePower(), 500.0);
    EXPECT_EQ(document.takeMessages(), std::vector<std::string>());
}

TEST(Background, NoOtherValueIsClipped)
{
    CTestDocument document;
    CBackground background(document.ref());
    background.setOrigin(-1e9);
    background.setDirectionAngle(1e9);
    background.setImageType(-1);
    background.setColorType(99);
    EXPECT_EQ(background.getOrigin(), -1e9);
    EXPECT_EQ(background.getDirectionAngle(), 1e9);
    EXPECT_EQ(background.getImageType(), -1);
    EXPECT_EQ(background.getColorType(), 99);
    EXPECT_EQ(document.takeMessages(), std::vector<std::string>());
}

TEST(Background, EveryValueIsStored)
{
    using I = IZelBackground;
    CBackground object(nullptr);
    ZelTest::expectAccessors<I>(
        object,
        {ACCESS(I, Color, CZelColor::rgb(1, 2, 3)), ACCESS(I, SecondColor, CZelColor::rgb(4, 5, 6)),
         ACCESS(I, UpDirection, (CZelPoint{1, 2, 3})), ACCESS(I, LinePower, 2.0),
         ACCESS(I, URL, "sky.png"), ACCESS(I, ImageType, 1), ACCESS(I, ColorType, 3),
         ACCESS(I, UseDefault, false), ACCESS(I, Origin, -4.0), ACCESS(I, DirectionAngle, -5.0)});
}
