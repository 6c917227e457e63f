#include "render/CZelEngineOptions.h"

#include "tests/support/accessors.h"
#include "tests/support/checkElement.h"

#include <cmath>
#include <limits>

using namespace OvZel;
using namespace ZelTest;

namespace {

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

struct CIntegerCase {
    const char* tag;
    std::int32_t (IZelEngineOptions::*get)() const;
    void (IZelEngineOptions::*set)(std::int32_t);
    std::int32_t highest; // the lowest is 1 everywhere
};

const CIntegerCase kIntegers[] = {
    {"Ambient.Occlusion.Size", &IZelEngineOptions::getAmbientOcclusionSize,
     &IZelEngineOptions::setAmbientOcclusionSize, 100},
    {"Auto.Sampling", &IZelEngineOptions::getAutoSampling, &IZelEngineOptions::setAutoSampling,
     4096},
    {"Auto.Sampling.Min", &IZelEngineOptions::getAutoSamplingMin,
     &IZelEngineOptions::setAutoSamplingMin, 96},
    {"Caches.Pass.Count", &IZelEngineOptions::getCachesPassCount,
     &IZelEngineOptions::setCachesPassCount, 5},
    {"Caches.Interp.Count", &IZelEngineOptions::getCachesInterpCount,
     &IZelEngineOptions::setCachesInterpCount, 5},
    {"Lights.Sampling.Value", &IZelEngineOptions::getLightsSampling,
     &IZelEngineOptions::setLightsSampling, 5},
    {"Materials.Sampling.Value", &IZelEngineOptions::getMaterialsSampling,
     &IZelEngineOptions::setMaterialsSampling, 5},
    {"Hemispheric.Sampling.Value", &IZelEngineOptions::getHemisphericSampling,
     &IZelEngineOptions::setHemisphericSampling, 5},
};

/// The failure, empty if there is none.
std::string readInto(CTestDocument& document, CZelEngineOptions& options,
                     const std::string& content)
{
    const CTestElement source("<E>" + content + "</E>");
    CZelXMLIO io(document.ref(), false);
    try {
        options.getFrom(io, CZelXMLGet(source.element()));
    } catch (const std::exception& exception) {
        return exception.what();
    }
    return "";
}

} // namespace

TEST(EngineOptions, IntegersAreClippedInSilence)
{
    for (const CIntegerCase& each : kIntegers) {
        SCOPED_TRACE(each.tag);
        const std::pair<std::int32_t, std::int32_t> cases[] = {
            {1, 1},
            {0, 1},
            {-1, 1},
            {std::numeric_limits<std::int32_t>::min(), 1},
            {each.highest, each.highest},
            {each.highest + 1, each.highest},
            {std::numeric_limits<std::int32_t>::max(), each.highest},
        };
        for (const auto& [given, kept] : cases) {
            CTestDocument document;
            CZelEngineOptions options(document.ref());
            (options.*each.set)(given);
            EXPECT_EQ((options.*each.get)(), kept) << given;
            CZelEngineOptions loaded(document.ref());
            const std::string tag = each.tag;
            EXPECT_EQ(readInto(document, loaded,
                               "<" + tag + ">" + std::to_string(given) + "</" + tag + ">"),
                      "");
            EXPECT_EQ((loaded.*each.get)(), kept) << "from a file, " << given;
            EXPECT_EQ(document.takeMessages(), std::vector<std::string>());
        }
    }
}

TEST(EngineOptions, RealsAreClippedInSilence)
{
    struct {
        double given, intensity, exposure;
    } const cases[] = {
        {0.0, 0.0, 0.0}, {-0.5, 0.0, 0.0}, {1.0, 1.0, 1.0},  {1.5, 1.0, 1.5},
        {2.0, 1.0, 2.0}, {2.5, 1.0, 2.0},  {kNan, 0.0, 0.0}, {kInfinity, 1.0, 2.0},
    };
    for (const auto& [given, intensity, exposure] : cases) {
        CTestDocument document;
        CZelEngineOptions options(document.ref());
        options.setAmbientOcclusionIntensity(given);
        options.setToneMappingExposure(given);
        EXPECT_EQ(options.getAmbientOcclusionIntensity(), intensity) << given;
        EXPECT_EQ(options.getToneMappingExposure(), exposure) << given;
        CZelEngineOptions loaded(document.ref());
        const std::string number = std::to_string(given);
        EXPECT_EQ(readInto(document, loaded,
                           "<Ambient.Occlusion.Intensity>" + number +
                               "</Ambient.Occlusion.Intensity><Tone.Mapping.Exposure>" + number +
                               "</Tone.Mapping.Exposure>"),
                  "");
        EXPECT_EQ(loaded.getAmbientOcclusionIntensity(), intensity) << "from a file, " << given;
        EXPECT_EQ(loaded.getToneMappingExposure(), exposure) << "from a file, " << given;
        EXPECT_EQ(document.takeMessages(), std::vector<std::string>());
    }
}

TEST(EngineOptions, AnyIdentifierIsGood)
{
    CZelEngineOptions options(nullptr);
    EXPECT_STREQ(options.getIdentifier(), "com.Orvane.Renderer.VendralisPhysicalEngine");
    options.setIdentifier("anything");
    EXPECT_STREQ(options.getIdentifier(), "anything");
    options.setIdentifier(nullptr);
    EXPECT_STREQ(options.getIdentifier(), "");
}

TEST(EngineOptionsXml, FileForm)
{
    const std::vector<CRow> rows = {
        attribute("Identifier", "com.other", "com.Orvane.Renderer.VendralisPhysicalEngine"),
        flag("Ambient.Occlusion", false),
        optional(integer("Ambient.Occlusion.Size", 6, 5)),
        optional(real("Ambient.Occlusion.Intensity", 0.25, 0.1)),
        optional(integer("Caches.Pass.Count", 3, 2)),
        optional(integer("Caches.Interp.Count", 4, 2)),
        optional(integer("Auto.Sampling", 513, 512)),
        optional(integer("Auto.Sampling.Min", 33, 32)),
        flag("Displacement", false),
        flag("Caustic", false),
        flag("Physical.Sky", false),
        flag("White.Balance", false),
        optional(color("White.Balance.Color", {1, 2, 3}, {0, 0, 0})),
        optional(real("Tone.Mapping.Exposure", 1.5, 1.0)),
        optional(raw("Dev.Values",
                     "<Dev.Values Count=\"2\"><Dev.Value>1.500000</Dev.Value>"
                     "<Dev.Value>-2.500000</Dev.Value></Dev.Values>",
                     "")),
        optional(integer("Lights.Sampling.Value", 1, 2)),
        optional(integer("Materials.Sampling.Value", 3, 2)),
        optional(integer("Hemispheric.Sampling.Value", 5, 2)),
    };
    checkElement<CZelEngineOptions>("Engine.Options", rows);
}

TEST(EngineOptionsXml, TheWhiteBalanceColorLosesItsFourthByte)
{
    CTestDocument document;
    CZelEngineOptions options(document.ref());
    options.setWhiteBalanceColor({{1, 2, 3, 4}});
    CTestElement file;
    CZelXMLIO io(document.ref(), false);
    options.addTo(io, CZelXMLAdd(file.element()));
    EXPECT_NE(file.text().find("<White.Balance.Color R=\"1\" G=\"2\" B=\"3\"/>"),
              std::string::npos);
    EXPECT_EQ(options.getWhiteBalanceColor(), (CZelColor{{1, 2, 3, 4}}));
    options.getFrom(io, CZelXMLGet(file.element()));
    EXPECT_EQ(options.getWhiteBalanceColor(), (CZelColor{{1, 2, 3, 0}}));
}

TEST(EngineOptionsXml, DevValues)
{
    const std::string one = "<Dev.Value>1.5</Dev.Value>";
    struct {
        std::string xml, failure;
        std::int32_t nb;
    } const cases[] = {
        {"<Dev.Values/>", "CZelXMLGet::GetFmtAttribute - NULL ptr for tag Count", 0},
        {"<Dev.Values Count=\"0\"/>", "", 0},
        {"<Dev.Values Count=\"0\">" + one + "</Dev.Values>", "", 0},
        {"<Dev.Values Count=\"-3\"/>", "", 0},
        {"<Dev.Values Count=\"1\"/>", "CZelXMLGet::GetElement - NULL ptr for tag Dev.Value", 0},
        {"<Dev.Values Count=\"1\">" + one + "</Dev.Values>", "", 1},
        {"<Dev.Values Count=\"1\">" + one + one + "</Dev.Values>", "", 1},
        {"<Dev.Values Count=\"2\">" + one + "</Dev.Values>",
         "CZelXMLIO::GetEngineOptions 1 - NULL ptr", 1},
        {"<Dev.Values Count=\"2147483647\">" + one + "</Dev.Values>",
         "CZelXMLIO::GetEngineOptions 1 - NULL ptr", 1},
        {"<Dev.Values Count=\"2\">" + one + "<Dev.Value/></Dev.Values>",
         "CZelXMLIO::GetEngineOptions 2 - NULL ptr", 1},
    };
    for (const auto& [xml, failure, nb] : cases) {
        CTestDocument document;
        CZelEngineOptions options(document.ref());
        EXPECT_EQ(readInto(document, options,
                           xml + "<Lights.Sampling.Value>5"
                                 "</Lights.Sampling.Value>"),
                  failure)
            << xml;
        EXPECT_EQ(options.getDevValues()->getNbObjects(), nb) << xml;
        EXPECT_EQ(options.getLightsSampling(), failure.empty() ? 5 : 2) << xml;
    }
}

TEST(EngineOptionsXml, ReadingAddsToTheDevValuesThatAreThere)
{
    CTestDocument document;
    CZelEngineOptions options(document.ref());
    *options.getDevValues()->newZelObject(-1) = 9.0;
    EXPECT_EQ(readInto(document, options,
                       "<Dev.Values Count=\"1\"><Dev.Value>1.5</Dev.Value></Dev.Values>"),
              "");
    ASSERT_EQ(options.getDevValues()->getNbObjects(), 2);
    EXPECT_EQ(*options.getDevValues()->getZelObject(0), 9.0);
    EXPECT_EQ(*options.getDevValues()->getZelObject(1), 1.5);
}

TEST(EngineOptionsXml, ANumberWithoutTextFails)
{
    CTestDocument document;
    CZelEngineOptions options(document.ref());
    EXPECT_EQ(readInto(document, options, "<Ambient.Occlusion/><Ambient.Occlusion.Size/>"),
              "CZelXMLGet::GetInteger - NULL ptr");
    EXPECT_TRUE(options.getAmbientOcclusion()) << "was read before";
}

TEST(EngineOptions, EveryValueIsStored)
{
    using I = IZelEngineOptions;
    CZelEngineOptions object(nullptr);
    ZelTest::expectAccessors<I>(
        object,
        {ACCESS(I, Identifier, "com.other"), ACCESS(I, AmbientOcclusion, true),
         ACCESS(I, AmbientOcclusionSize, 6), ACCESS(I, AmbientOcclusionIntensity, 0.25),
         ACCESS(I, AutoSampling, 513), ACCESS(I, AutoSamplingMin, 33),
         ACCESS(I, Displacement, true), ACCESS(I, Caustic, true), ACCESS(I, PhysicalSky, true),
         ACCESS(I, WhiteBalance, true), ACCESS(I, WhiteBalanceColor, (CZelColor{{1, 2, 3, 4}})),
         ACCESS(I, ToneMappingExposure, 1.5), ACCESS(I, CachesPassCount, 1),
         ACCESS(I, CachesInterpCount, 3), ACCESS(I, LightsSampling, 4),
         ACCESS(I, MaterialsSampling, 5), ACCESS(I, HemisphericSampling, 1)});
}
