#include "lighting/CHeliodon.h"

#include "core/TComObjectMgr.h"
#include "tests/support/CTestDocument.h"
#include "tests/support/accessors.h"

#include <cmath>
#include <limits>

using namespace OvZel;
using namespace ZelTest;

namespace {

using CMessages = std::vector<std::string>;

constexpr std::uint32_t kBadIndices[] = {5, 6, 0xFFFFFFFF};

} // namespace

TEST(Heliodon, EveryValueIsStored)
{
    using I = IZelHeliodon;
    const TZelComPtr<CHeliodon> heliodon(new CHeliodon(nullptr));
    expectAccessors<I>(
        *heliodon.get(),
        {ACCESS(I, Active, false), ACCESS(I, Sunshine, -1.0), ACCESS(I, NorthAngle, 2.0),
         ACCESS(I, Shadow, false), ACCESS(I, ShadowPower, -3.0), ACCESS(I, ShadowBlur, 4),
         ACCESS(I, GlobalIllumination, true), ACCESS(I, GlobalIlluminationPower, -5.0),
         ACCESS(I, GlobalIlluminationQuality, -6), ACCESS(I, Colored, true),
         ACCESS(I, Radiosity, true), ACCESS(I, PlacementKind, -7), ACCESS(I, ColorType, 99),
         ACCESS(I, Theta, -8.0), ACCESS(I, Phi, -9.0), ACCESS(I, CloudCoverage, -10.0),
         ACCESS(I, CloudMaskSun, true), ACCESS(I, SunPowerFlag, true),
         ACCESS(I, Saturation, -11.0)});
}

TEST(Heliodon, ANewOneHasItsNameAndItsColors)
{
    const TZelComPtr<CHeliodon> heliodon(new CHeliodon(nullptr));
    EXPECT_STREQ(heliodon->getBasicData()->getName(), "Heliodon");
    EXPECT_EQ(heliodon->getBasicData()->getUIValue(), 0U);
    const CZelColor colors[] = {CZelColor::rgb(200, 182, 90), CZelColor::rgb(230, 230, 225),
                                CZelColor::rgb(255, 255, 255), CZelColor::rgb(222, 222, 130),
                                CZelColor::rgb(212, 135, 80)};
    for (std::uint32_t i = 0; i < 5; ++i)
        EXPECT_EQ(heliodon->getColor(i), colors[i]) << i;
}

TEST(Heliodon, TheNorthAngle)
{
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    struct {
        double given, kept;
    } cases[] = {
        {0.0, 0.0},        {359.5, 359.5},   {360.0, 360.0},
        {360.5, 0.0},      {361.9, 1.0},     {725.5, 5.0},
        {1e15, 280.0},     {kInfinity, 0.0}, {-10.0, 350.0},
        {-360.0, 0.0},     {-400.0, -40.0},  {-0.5, 359.5},
        {-1e6, -999640.0}, {720.0, 0.0},     {-kInfinity, -kInfinity},
    };
    for (const auto& each : cases) {
        const TZelComPtr<CHeliodon> heliodon(new CHeliodon(nullptr));
        heliodon->setNorthAngle(each.given);
        EXPECT_EQ(heliodon->getNorthAngle(), each.kept) << each.given;
    }
    const TZelComPtr<CHeliodon> heliodon(new CHeliodon(nullptr));
    heliodon->setNorthAngle(std::numeric_limits<double>::quiet_NaN());
    EXPECT_TRUE(std::isnan(heliodon->getNorthAngle()));
}

TEST(Heliodon, TheBlurLevelIsClippedWithAWarning)
{
    struct {
        std::int32_t given, kept;
        bool warns;
    } cases[] = {{-1, 0, true},
                 {0, 0, false},
                 {100, 100, false},
                 {101, 100, true},
                 {std::numeric_limits<std::int32_t>::min(), 0, true}};
    CTestDocument document;
    for (const auto& each : cases) {
        const TZelComPtr<CHeliodon> heliodon(new CHeliodon(document.ref()));
        const TZelComPtr<CHeliodon> alone(new CHeliodon(nullptr));
        heliodon->setShadowBlur(50);
        heliodon->setShadowBlur(each.given);
        alone->setShadowBlur(50);
        alone->setShadowBlur(each.given);
        EXPECT_EQ(heliodon->getShadowBlur(), each.kept);
        EXPECT_EQ(alone->getShadowBlur(), each.kept);
        EXPECT_EQ(document.takeMessages(),
                  each.warns ? CMessages{"IZelHeliodon::setShadowBlur: invalid blur level"}
                             : CMessages());
    }
}

TEST(Heliodon, ABadColorIndexGivesTheFirstColorAndStoresNothing)
{
    CTestDocument document;
    const TZelComPtr<CHeliodon> heliodon(new CHeliodon(document.ref()));
    for (const std::uint32_t index : kBadIndices) {
        EXPECT_EQ(heliodon->getColor(index), CZelColor::rgb(200, 182, 90)) << index;
        EXPECT_EQ(document.takeMessages(), CMessages{"IZelHeliodon::getColor: bad index"});
        heliodon->setColor(index, CZelColor::rgb(1, 2, 3));
        EXPECT_EQ(document.takeMessages(), CMessages{"IZelHeliodon::setColor: bad index"});
    }
    for (std::uint32_t i = 0; i < 5; ++i)
        EXPECT_NE(heliodon->getColor(i), CZelColor::rgb(1, 2, 3)) << i;
    EXPECT_EQ(document.takeMessages(), CMessages());
}

TEST(Heliodon, WithoutADocumentABadColorIndexIsSilent)
{
    const TZelComPtr<CHeliodon> heliodon(new CHeliodon(nullptr));
    for (const std::uint32_t index : kBadIndices) {
        EXPECT_NO_THROW(heliodon->setColor(index, CZelColor::rgb(1, 2, 3)));
        EXPECT_EQ(heliodon->getColor(index), CZelColor::rgb(200, 182, 90));
    }
}

TEST(Heliodon, TheSunColorIsTheThirdColor)
{
    const TZelComPtr<CHeliodon> heliodon(new CHeliodon(nullptr));
    CZelColor color;
    heliodon->getSunColor(&color);
    EXPECT_EQ(color, CZelColor::rgb(255, 255, 255));
    heliodon->setColor(2, CZelColor::rgb(1, 2, 3));
    heliodon->getSunColor(&color);
    EXPECT_EQ(color, CZelColor::rgb(1, 2, 3));
    heliodon->setSunColor(CZelColor::rgb(4, 5, 6));
    EXPECT_EQ(heliodon->getColor(2), CZelColor::rgb(4, 5, 6));
}

TEST(Heliodon, PartsAreTheSameThroughBothAccessorsAndKeepChanges)
{
    const TZelComPtr<CHeliodon> heliodon(new CHeliodon(nullptr));
    const IZelHeliodon& constant = *heliodon.get();
    EXPECT_EQ(heliodon->getTime(), constant.getTime());
    EXPECT_EQ(heliodon->getPlace(), constant.getPlace());
    EXPECT_EQ(heliodon->getLensFlare(), constant.getLensFlare());
    EXPECT_EQ(heliodon->getGodRays(), constant.getGodRays());
    EXPECT_EQ(heliodon->getSkylight(), constant.getSkylight());
    EXPECT_EQ(heliodon->getClouds(), constant.getClouds());
    EXPECT_EQ(heliodon->getFog(), constant.getFog());
    heliodon->getTime()->setYear(1999);
    heliodon->getPlace()->setLatitude(4820);
    EXPECT_EQ(constant.getTime()->getYear(), 1999);
    EXPECT_EQ(constant.getPlace()->getLatitude(), 4820);
}

TEST(Heliodon, ItsFogReachesTheDocumentThroughIt)
{
    CTestDocument document;
    using CHeliodons = TComObjectMgr<CHeliodon, IZelHeliodon>;
    const TZelComPtr<CHeliodons> heliodons(new CHeliodons(document.ref()));
    EXPECT_EQ(*heliodons->getObjectIID(), IZelHeliodon::sIID);
    IZelHeliodon* heliodon = heliodons->newZelObject(-1);
    ASSERT_NE(heliodon, nullptr);
    const auto* fog = dynamic_cast<const CZelFog*>(heliodon->getFog());
    ASSERT_NE(fog, nullptr);
    EXPECT_EQ(fog->getOwnerLink(), heliodon->getObjectLink());
    EXPECT_EQ(fog->getMgrRef(), document.ref());
}

TEST(Heliodon, BehindTheEndOfTheDocumentItClipsInSilence)
{
    CTestDocument document;
    const TZelComPtr<CHeliodon> heliodon(new CHeliodon(document.ref()));
    document.die();
    heliodon->setShadowBlur(101);
    EXPECT_EQ(heliodon->getShadowBlur(), 100);
    EXPECT_EQ(heliodon->getColor(5), CZelColor::rgb(200, 182, 90));
    EXPECT_EQ(document.takeMessages(), CMessages());
}
