#include "environment/CZelFilters.h"

#include "tests/support/accessors.h"
#include "tests/support/checkElement.h"

using namespace OvZel;
using namespace ZelTest;

namespace {

const std::vector<CRow> kImageSettings = {
    flag("Active", true),         flag("Use.Mix.Color", false),
    real("Brightness", 1.5, 0.5), real("Contrast", 2.5, 0.5),
    real("Saturation", 3.5, 0.5), color("Mix.Color", {1, 2, 3}, {255, 255, 255}),
};
const std::vector<CRow> kGrain = {
    flag("Active", false),
    real("Brightness", 4.5, 0.5),
    real("Size", 5.5, 0.5),
};
const std::vector<CRow> kVignetting = {flag("Active", false), real("Value", 6.5, 1.0)};
const std::vector<CRow> kExposure = {
    flag("Active", false),
    real("Exposure", 7.5, 0.5),
    real("Size", 8.5, 0.5),
};
const std::vector<CRow> kHatching = {
    flag("Active", false),
    flag("Use.Transparency", true),
    real("Intensity.Threshold", 9.5, 0.5),
    real("Contour.Threshold", 10.5, 0.5),
    real("Transparency", 11.5, 1.0),
};

} // namespace

TEST(FiltersXml, FileFormOfEachFilter)
{
    checkElement<CZelImageSettingsFilter>("Image.Settings.Filter", kImageSettings);
    checkElement<CZelGrainFilter>("Grain.Filter", kGrain);
    checkElement<CZelVignettingFilter>("Vignetting.Filter", kVignetting);
    checkElement<CZelExposureFilter>("Exposure.Filter", kExposure);
    checkElement<CZelHatchingFilter>("Hatching.Filter", kHatching);
}

TEST(FiltersXml, FileForm)
{
    checkElement<CZelFilters>("Filters",
                              {
                                  optional(part("Image.Settings.Filter", kImageSettings)),
                                  optional(part("Grain.Filter", kGrain)),
                                  optional(part("Vignetting.Filter", kVignetting)),
                                  optional(part("Exposure.Filter", kExposure)),
                                  optional(part("Hatching.Filter", kHatching)),
                              });
}

TEST(FiltersXml, WithoutTheElementReadingFails)
{
    CTestDocument document;
    CZelFilters filters(document.ref());
    const CTestElement file("<E/>");
    EXPECT_FALSE(filters.initWithXML(file.element(), false));
    EXPECT_EQ(document.takeMessages(),
              std::vector<std::string>{"Exception in CZelXML::initWithXML : "
                                       "CZelXMLGet::GetElement - NULL ptr for tag Filters"});
}

TEST(Filters, OnlyTheImageSettingsAreActiveAtFirst)
{
    CZelFilters filters(nullptr);
    EXPECT_TRUE(filters.getImageSettingsFilter()->getActive());
    EXPECT_FALSE(filters.getGrainFilter()->getActive());
    EXPECT_FALSE(filters.getVignettingFilter()->getActive());
    EXPECT_FALSE(filters.getExposureFilter()->getActive());
    EXPECT_FALSE(filters.getHatchingFilter()->getActive());
}

TEST(Filters, NothingIsClipped)
{
    CTestDocument document;
    CZelFilters filters(document.ref());
    filters.getImageSettingsFilter()->setBrightness(7.0);
    filters.getVignettingFilter()->setValue(-7.0);
    CTestElement file;
    ASSERT_NE(filters.putInXML(file.element()), nullptr);
    CZelFilters loaded(document.ref());
    ASSERT_TRUE(loaded.initWithXML(file.element(), false));
    EXPECT_EQ(loaded.getImageSettingsFilter()->getBrightness(), 7.0);
    EXPECT_EQ(loaded.getVignettingFilter()->getValue(), -7.0);
    EXPECT_EQ(document.takeMessages(), std::vector<std::string>());
}

TEST(Filters, AFilterReachesTheDocument)
{
    CTestDocument document;
    CZelFilters filters(document.ref());
    const CTestElement file("<E/>");
    EXPECT_FALSE(filters.getGrainFilter()->initWithXML(file.element(), false));
    EXPECT_EQ(document.takeMessages(),
              std::vector<std::string>{"Exception in CZelXML::initWithXML : "
                                       "CZelXMLGet::GetElement - NULL ptr for tag Grain.Filter"});
}

TEST(Filters, BothSlotsGiveOneObject)
{
    CZelFilters filters(nullptr);
    const CZelFilters& constant = filters;
    EXPECT_EQ(constant.getImageSettingsFilter(), filters.getImageSettingsFilter());
    EXPECT_EQ(constant.getGrainFilter(), filters.getGrainFilter());
    EXPECT_EQ(constant.getVignettingFilter(), filters.getVignettingFilter());
    EXPECT_EQ(constant.getExposureFilter(), filters.getExposureFilter());
    EXPECT_EQ(constant.getHatchingFilter(), filters.getHatchingFilter());
}

TEST(ImageSettingsFilter, EveryValueIsStoredAsItComes)
{
    using I = IZelImageSettingsFilter;
    CZelImageSettingsFilter object(nullptr);
    ZelTest::expectAccessors<I>(object, {ACCESS(I, Active, false), ACCESS(I, Brightness, -1.0),
                                         ACCESS(I, Contrast, -2.0), ACCESS(I, Saturation, -3.0),
                                         ACCESS(I, UseMixColor, true),
                                         ACCESS(I, MixColor, CZelColor::rgb(1, 2, 3))});
}

TEST(GrainFilter, EveryValueIsStoredAsItComes)
{
    using I = IZelGrainFilter;
    CZelGrainFilter object(nullptr);
    ZelTest::expectAccessors<I>(
        object, {ACCESS(I, Active, true), ACCESS(I, Brightness, -1.0), ACCESS(I, Size, -2.0)});
}

TEST(VignettingFilter, EveryValueIsStoredAsItComes)
{
    using I = IZelVignettingFilter;
    CZelVignettingFilter object(nullptr);
    ZelTest::expectAccessors<I>(object, {ACCESS(I, Active, true), ACCESS(I, Value, -1.0)});
}

TEST(ExposureFilter, EveryValueIsStoredAsItComes)
{
    using I = IZelExposureFilter;
    CZelExposureFilter object(nullptr);
    ZelTest::expectAccessors<I>(
        object, {ACCESS(I, Active, true), ACCESS(I, Exposure, -1.0), ACCESS(I, Size, -2.0)});
}

TEST(HatchingFilter, EveryValueIsStoredAsItComes)
{
    using I = IZelHatchingFilter;
    CZelHatchingFilter object(nullptr);
    ZelTest::expectAccessors<I>(object,
                                {ACCESS(I, Active, true), ACCESS(I, IntensityThreshold, -1.0),
                                 ACCESS(I, ContourThreshold, -2.0),
                                 ACCESS(I, UseTransparency, false), ACCESS(I, Transparency, -3.0)});
}
