#include "render/CRenderingOpt.h"

#include "tests/support/CTestDocument.h"
#include "tests/support/accessors.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using namespace OvZel;
using ZelTest::CTestDocument;

namespace {

using TMessages = std::vector<std::string>;

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t kLeast = std::numeric_limits<std::int32_t>::min();

template <class T>
struct CSetter {
    T (IZelRenderingOpt::*get)() const;
    void (IZelRenderingOpt::*set)(T);
    const char* warning; // null: takes any value
};

using I = IZelRenderingOpt;

const CSetter<std::int32_t> kIntegers[] = {
    {&I::getNbReflection, &I::setNbReflection,
     "class CRenderingOpt: Method setNbReflection has clipped a value out of range."},
    {&I::getNbRefraction, &I::setNbRefraction,
     "class CRenderingOpt: Method setNbRefraction has clipped a value out of range."},
    {&I::getHeight, &I::setHeight,
     "class CRenderingOpt: Method setHeight has clipped a value out of range."},
    {&I::getWidth, &I::setWidth,
     "class CRenderingOpt: Method setWidth has clipped a value out of range."},
    {&I::getRenderFirst, &I::setRenderFirst,
     "class CRenderingOpt: Method setRenderFirst has clipped a value out of range."},
    {&I::getRenderLast, &I::setRenderLast,
     "class CRenderingOpt: Method setRenderLast has clipped a value out of range."},
    {&I::getParallelScale, &I::setParallelScale,
     "class CRenderingOpt: Method setParallelScale has clipped a value out of range."},
    {&I::getImageResolution, &I::setImageResolution,
     "class CRenderingOpt: Method setImageResolution has clipped a value out of range."},
    {&I::getPanoramaResolution, &I::setPanoramaResolution,
     "class CRenderingOpt: Method setPanoramaResolution has clipped a value out of range."},
    {&I::getCropX, &I::setCropX, nullptr},
    {&I::getCropY, &I::setCropY, nullptr},
    {&I::getCropWidth, &I::setCropWidth, nullptr},
    {&I::getCropHeight, &I::setCropHeight, nullptr},
    {&I::getOutputType, &I::setOutputType, nullptr},
    {&I::getAntialias, &I::setAntialias, nullptr},
    {&I::getISO, &I::setISO, nullptr},
    {&I::getShutterSpeed, &I::setShutterSpeed, nullptr},
    {&I::getColorBehavior, &I::setColorBehavior, nullptr},
};

struct CRealCase {
    CSetter<double> setter;
    double given, kept;
    bool warns;
};

const CSetter<double> kFactor = {
    &I::getRadiosityFactor, &I::setRadiosityFactor,
    "class CRenderingOpt:Method setRadiosityFactor has clipped a value out of range."};
const CSetter<double> kQuality = {
    &I::getRadiosityQuality, &I::setRadiosityQuality,
    "class CRenderingOpt: Method setRadiosityQuality has clipped a value out of range."};
const CSetter<double> kContrast = {&I::getContrast, &I::setContrast,
                                   "CRenderingOpt::setContrast value must be positive"};
const CSetter<double> kLuminosity = {&I::getLuminosity, &I::setLuminosity,
                                     "CRenderingOpt::setLuminosity value must be between -1 and "
                                     "1."};

const CRealCase kReals[] = {
    {kFactor, 0.0, 0.0, false},       {kFactor, -0.5, 0.0, true},
    {kFactor, kNan, 0.0, true},       {kFactor, kInfinity, kInfinity, false},
    {kQuality, 0.0, 0.0, false},      {kQuality, 2147483647.0, 2147483647.0, false},
    {kQuality, -0.5, 0.0, true},      {kQuality, 3e9, 2147483647.0, true},
    {kQuality, kNan, 0.0, true},      {kContrast, 0.0, 0.0, false},
    {kContrast, -0.5, 0.0, true},     {kContrast, kNan, 0.0, true},
    {kContrast, 1e300, 1e300, false}, {kLuminosity, -1.0, -1.0, false},
    {kLuminosity, 1.0, 1.0, false},   {kLuminosity, -1.5, -1.0, true},
    {kLuminosity, 2.0, 1.0, true},    {kLuminosity, kNan, -1.0, true},
};

TMessages expected(bool warns, const char* text)
{
    return warns ? TMessages{text} : TMessages();
}

} // namespace

TEST(RenderingOpt, IntegersWithALimitAreAtLeastZero)
{
    for (const auto& [get, set, warning] : kIntegers)
        for (const std::int32_t given : {0, kMost, -1, kLeast}) {
            SCOPED_TRACE(std::to_string(given) + (warning != nullptr ? warning : ""));
            const bool clips = given < 0 && warning != nullptr;
            CTestDocument document;
            CRenderingOpt options(document.ref()), alone(nullptr);
            (options.*set)(given);
            (alone.*set)(given);
            EXPECT_EQ((options.*get)(), clips ? 0 : given);
            EXPECT_EQ((alone.*get)(), clips ? 0 : given) << "without a document";
            EXPECT_EQ(document.takeMessages(), expected(clips, warning));
        }
}

TEST(RenderingOpt, RealsWithLimits)
{
    for (const auto& [setter, given, kept, warns] : kReals) {
        SCOPED_TRACE(std::to_string(given) + setter.warning);
        CTestDocument document;
        CRenderingOpt options(document.ref()), alone(nullptr);
        (options.*setter.set)(given);
        (alone.*setter.set)(given);
        EXPECT_EQ((options.*setter.get)(), kept);
        EXPECT_EQ((alone.*setter.get)(), kept) << "without a document";
        EXPECT_EQ(document.takeMessages(), expected(warns, setter.warning));
    }
}

TEST(RenderingOpt, RealsWithoutLimits)
{
    const CSetter<double> setters[] = {
        {&I::getLongRange, &I::setLongRange, nullptr},
        {&I::getShortRange, &I::setShortRange, nullptr},
        {&I::getFirstBounce, &I::setFirstBounce, nullptr},
        {&I::getNextBounces, &I::setNextBounces, nullptr},
        {&I::getAttenuation, &I::setAttenuation, nullptr},
        {&I::getColorBleeding, &I::setColorBleeding, nullptr},
    };
    CTestDocument document;
    CRenderingOpt options(document.ref());
    for (const auto& [get, set, warning] : setters)
        for (const double given : {-1e9, 1e9}) {
            (options.*set)(given);
            EXPECT_EQ((options.*get)(), given);
        }
    EXPECT_EQ(document.takeMessages(), TMessages());
}

TEST(RenderingOpt, BothRoadsToTheRadiosityShareOneSetOfValues)
{
    CTestDocument document;
    CRenderingOpt options(document.ref());
    IZelRadiosityControl* control = options.getRadiosityControl();
    EXPECT_EQ(static_cast<const CRenderingOpt&>(options).getRadiosityControl(), control);
    EXPECT_FALSE(control->getOn());
    EXPECT_EQ(control->getQuality(), 4.0);
    EXPECT_EQ(control->getFactor(), 1.0);
    options.setRadiosity(true);
    options.setRadiosityQuality(2.0);
    options.setRadiosityFactor(3.0);
    EXPECT_TRUE(control->getOn());
    EXPECT_EQ(control->getQuality(), 2.0);
    EXPECT_EQ(control->getFactor(), 3.0);
    control->setOn(false);
    control->setQuality(-5.0);
    control->setFactor(-6.0);
    EXPECT_FALSE(options.getRadiosity());
    EXPECT_EQ(options.getRadiosityQuality(), -5.0) << "the control does not clip";
    EXPECT_EQ(options.getRadiosityFactor(), -6.0);
    EXPECT_EQ(document.takeMessages(), TMessages());
}

TEST(RenderingOpt, EngineOptionsAreMadeOncePerIdentifier)
{
    struct {
        const char* identifier;
        std::int32_t passes;
    } const cases[] = {
        {"com.Orvane.Renderer.VendralisWhiteModel", 2},
        {"com.Orvane.Renderer.VendralisFastEngine", 1},
        {"com.Orvane.Renderer.VendralisPhysicalEngine", 3},
        {"com.other", 3},
        {"", 3},
    };
    CRenderingOpt options(nullptr);
    const CRenderingOpt& constant = options;
    EXPECT_EQ(options.getEnginesOptions()->getNbObjects(), 0);
    std::int32_t nb = 0;
    for (const auto& [identifier, passes] : cases) {
        SCOPED_TRACE(identifier);
        options.setRendererIdentifier(identifier);
        // Both slots make it.
        const IZelEngineOptions* made =
            nb % 2 == 0 ? options.getEngineOptions() : constant.getEngineOptions();
        ASSERT_NE(made, nullptr);
        EXPECT_STREQ(made->getIdentifier(), identifier);
        EXPECT_EQ(made->getCachesPassCount(), passes);
        EXPECT_EQ(options.getEnginesOptions()->getNbObjects(), ++nb);
        EXPECT_EQ(options.getEngineOptions(), made);
        EXPECT_EQ(constant.getEngineOptions(), made);
        EXPECT_EQ(options.getEnginesOptions()->getNbObjects(), nb);
        EXPECT_EQ(options.getEnginesOptions()->getZelObject(nb - 1), made);
    }
    EXPECT_EQ(constant.getEnginesOptions(), options.getEnginesOptions());
}

TEST(RenderingOpt, OfTwoEnginesWithOneIdentifierTheFirstIsTaken)
{
    CRenderingOpt options(nullptr);
    IZelEngineOptions* first = options.getEnginesOptions()->newZelObject(-1);
    ASSERT_NE(options.getEnginesOptions()->newZelObject(-1), nullptr);
    EXPECT_EQ(first->getCachesPassCount(), 2) << "not made by the look-up";
    EXPECT_EQ(options.getEngineOptions(), first);
}

TEST(RenderingOpt, ExtendedDataIsNeverNull)
{
    CRenderingOpt options(nullptr);
    OrvaneXML::XIXMLElement* data = options.getExtendedData();
    ASSERT_NE(data, nullptr);
    EXPECT_STREQ(data->GetKey(), "Extended.Datas");
    EXPECT_EQ(data->GetFirstNode(), nullptr);
    EXPECT_EQ(static_cast<const CRenderingOpt&>(options).getExtendedData(), data);
    data->Destroy();
    ASSERT_NE(options.getExtendedData(), nullptr);
    EXPECT_STREQ(options.getExtendedData()->GetKey(), "Extended.Datas");
}

TEST(RenderingOpt, NullTextsAreEmpty)
{
    CRenderingOpt options(nullptr);
    options.setURL("u");
    options.setURL(nullptr);
    options.setRendererIdentifier(nullptr);
    EXPECT_STREQ(options.getURL(), "");
    EXPECT_STREQ(options.getRendererIdentifier(), "");
}

TEST(RenderingOpt, EveryValueIsStored)
{
    CRenderingOpt object(nullptr);
    ZelTest::expectAccessors<I>(object, {ACCESS(I, Raytracing, false),
                                         ACCESS(I, Shadow, false),
                                         ACCESS(I, Transparency, false),
                                         ACCESS(I, Alpha, true),
                                         ACCESS(I, NbReflection, 101),
                                         ACCESS(I, NbRefraction, 102),
                                         ACCESS(I, Height, 103),
                                         ACCESS(I, Width, 104),
                                         ACCESS(I, CropX, 105),
                                         ACCESS(I, CropY, 106),
                                         ACCESS(I, CropWidth, 107),
                                         ACCESS(I, CropHeight, 108),
                                         ACCESS(I, URL, "out.tga"),
                                         ACCESS(I, OutputType, 9),
                                         ACCESS(I, Antialias, 3),
                                         ACCESS(I, RenderAll, false),
                                         ACCESS(I, RenderFirst, 109),
                                         ACCESS(I, RenderLast, 110),
                                         ACCESS(I, UseViewOptions, true),
                                         ACCESS(I, PreviewAntialias, true),
                                         ACCESS(I, HeightWidthLinked, true),
                                         ACCESS(I, ScaleOn, false),
                                         ACCESS(I, ParallelScale, 111),
                                         ACCESS(I, ImageResolution, 112),
                                         ACCESS(I, PanoramaResolution, 113),
                                         ACCESS(I, Radiosity, true),
                                         ACCESS(I, RadiosityFactor, 114.0),
                                         ACCESS(I, RadiosityQuality, 115.0),
                                         ACCESS(I, Contrast, 116.0),
                                         ACCESS(I, Luminosity, 0.5),
                                         ACCESS(I, LongRange, 117.0),
                                         ACCESS(I, ShortRange, 118.0),
                                         ACCESS(I, FirstBounce, 119.0),
                                         ACCESS(I, NextBounces, 120.0),
                                         ACCESS(I, Attenuation, 121.0),
                                         ACCESS(I, ColorBleeding, 122.0),
                                         ACCESS(I, RendererIdentifier, "com.other"),
                                         ACCESS(I, ISO, 123),
                                         ACCESS(I, ShutterSpeed, 124),
                                         ACCESS(I, ColorBehavior, 0)});
}

TEST(RenderingOpt, BehindTheEndOfTheDocumentItClipsInSilence)
{
    CTestDocument document;
    CRenderingOpt options(document.ref());
    document.die();
    options.setWidth(-1);
    options.setLuminosity(2.0);
    EXPECT_EQ(options.getWidth(), 0);
    EXPECT_EQ(options.getLuminosity(), 1.0);
    EXPECT_EQ(document.takeMessages(), TMessages());
}
