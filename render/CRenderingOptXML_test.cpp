#include "render/CRenderingOpt.h"

#include "tests/support/checkElement.h"

using namespace OvZel;
using namespace ZelTest;

namespace {

const std::string kPhysical = "com.Orvane.Renderer.VendralisPhysicalEngine";

/// An engine as it is written, with what older files hold directly in "Rendering" and the rest as
/// in a new one.
std::string engineText(const std::string& identifier, int passes)
{
    return "<Engine.Options Identifier=\"" + identifier +
           "\"><Ambient.Occlusion.Size>5</Ambient.Occlusion.Size>"
           "<Ambient.Occlusion.Intensity>0.100000</Ambient.Occlusion.Intensity>"
           "<Caches.Pass.Count>" +
           std::to_string(passes) +
           "</Caches.Pass.Count><Caches.Interp.Count>2</Caches.Interp.Count>"
           "<Auto.Sampling>512</Auto.Sampling><Auto.Sampling.Min>32</Auto.Sampling.Min>"
           "<White.Balance.Color R=\"0\" G=\"0\" B=\"0\"/>"
           "<Tone.Mapping.Exposure>1.000000</Tone.Mapping.Exposure>"
           "<Lights.Sampling.Value>2</Lights.Sampling.Value>"
           "<Materials.Sampling.Value>2</Materials.Sampling.Value>"
           "<Hemispheric.Sampling.Value>2</Hemispheric.Sampling.Value></Engine.Options>";
}

std::string enginesText(const std::string& content)
{
    return elementText("Engines.Options", content);
}

/// The failure, empty if there is none.
std::string readInto(CTestDocument& document, CRenderingOpt& options, const std::string& content,
                     const std::string& attributes = "")
{
    const CTestElement source("<E" + attributes + ">" + content + "</E>");
    CZelXMLIO io(document.ref(), false);
    try {
        options.getFrom(io, CZelXMLGet(source.element()));
    } catch (const std::exception& exception) {
        return exception.what();
    }
    return "";
}

std::string writtenBy(CTestDocument& document, const CRenderingOpt& options)
{
    CTestElement target;
    CZelXMLIO io(document.ref(), false);
    options.addTo(io, CZelXMLAdd(target.element()));
    return target.text();
}

bool contains(const std::string& text, const std::string& part)
{
    return text.find(part) != std::string::npos;
}

} // namespace

TEST(RenderingOptXml, FileForm)
{
    const std::vector<CRow> rows = {
        flag("Raytracing", true),
        flag("Shadow", true),
        flag("Transparency", true),
        optional(integer("Nb.Reflections", 101, 2)),
        optional(integer("Nb.Refractions", 102, 6)),
        optional(integer("Width", 103, 320)),
        optional(integer("Height", 104, 240)),
        optional(integer("Crop.X", -105, 0)),
        optional(integer("Crop.Y", 106, 0)),
        optional(integer("Crop.Width", 107, 0)),
        optional(integer("Crop.Height", 108, 0)),
        optional(oneOf(text("Antialias", "VeryHight", "No"),
                       {"No", "Good", "Excellent", "Special", "VeryHight"})),
        optional(oneOf(text("Output.Type", "Tiff", "CmpTGA"),
                       {"CmpPict", "Pict", "CmpTGA", "TGA", "BMP", "JPEG", "CmpQTime", "QTime",
                        "CmpVRQTime", "VRQTime", "Real", "AVI", "Epix", "Tiff"})),
        flag("Alpha", false),
        flag("Render.All", true),
        optional(integer("Render.First", 109, 0)),
        optional(integer("Render.Last", 110, 0)),
        optional(text("URL", "out.tga", "")),
        flag("Use.View.Options", false),
        flag("Preview.Antialias", false),
        flag("Height.Width.Linked", false),
        flag("Scale.On", true),
        optional(integer("Scale", 111, 100)),
        optional(integer("Resolution", 112, 72)),
        optional(integer("Resolution.Level", 113, 1)),
        flag("Radiosity", false),
        optional(real("Radiosity.Factor", 1.25, 1.0)),
        optional(real("Radiosity.Quality", 2.25, 4.0)),
        optional(real("Contrast", 3.25, 1.0)),
        optional(real("Luminosity", 0.25, 0.0)),
        optional(real("Long.Range", 5.25, 96.0)),
        optional(real("Short.Range", 6.25, 4.0)),
        optional(real("First.Bounce", 7.25, 4.0)),
        optional(real("Next.Bounces", 8.25, 1.0)),
        optional(real("Attenuation", 9.25, 0.3)),
        optional(real("ColorBleeding", 10.25, 1.0)),
        optional(integer("ISO", 114, 200)),
        optional(integer("ShutterSpeed", 115, 500)),
        optional(oneOf(text("Color.Behavior", "Autolum", "IsoShutter"), {"Autolum", "IsoShutter"})),
        absentGives(raw("Engines.Options", enginesText(engineText("a", 1) + engineText("b", 4)),
                        enginesText("")),
                    enginesText(engineText("com.other", 3))),
        optional(raw("Renderer", "<Renderer Identifier=\"com.other\"/>",
                     "<Renderer Identifier=\"" + kPhysical + "\"/>")),
        optional(raw("Extended.Datas",
                     "<Extended.Datas A=\"1\"><B>text</B><C D=\"2\"/></Extended.Datas>",
                     "<Extended.Datas/>")),
    };
    checkElement<CRenderingOpt>("Rendering", rows);
}

TEST(RenderingOptXml, TheOldLayoutGoesToTheEngineThatTheFileNames)
{
    CTestDocument document;
    CRenderingOpt options(document.ref());
    // "Identifier" belongs to "Engine.Options" and counts for nothing here.
    EXPECT_EQ(readInto(document, options,
                       "<Caustic/><Auto.Sampling>9999</Auto.Sampling>"
                       "<Dev.Values Count=\"1\"><Dev.Value>2.5</Dev.Value></Dev.Values>"
                       "<Renderer Identifier=\"com.Orvane.Renderer.VendralisFastEngine\"/>",
                       " Identifier=\"no\""),
              "");
    ASSERT_EQ(options.getEnginesOptions()->getNbObjects(), 1);
    const IZelEngineOptions* engine = options.getEngineOptions();
    EXPECT_STREQ(engine->getIdentifier(), "com.Orvane.Renderer.VendralisFastEngine");
    EXPECT_EQ(engine->getCachesPassCount(), 1);
    EXPECT_TRUE(engine->getCaustic());
    EXPECT_EQ(engine->getAutoSampling(), 4096);
    EXPECT_EQ(engine->getDevValues()->getNbObjects(), 1);
}

TEST(RenderingOptXml, TheOldLayoutWithoutARendererGoesToThePhysicalEngine)
{
    for (const char* renderer : {"", "<Renderer/>"}) {
        CTestDocument document;
        CRenderingOpt options(document.ref());
        EXPECT_EQ(readInto(document, options, std::string(renderer) + "<Displacement/>"), "");
        ASSERT_EQ(options.getEnginesOptions()->getNbObjects(), 1);
        EXPECT_EQ(options.getRendererIdentifier(), kPhysical);
        EXPECT_EQ(options.getEngineOptions()->getIdentifier(), kPhysical);
        EXPECT_EQ(options.getEngineOptions()->getCachesPassCount(), 3);
        EXPECT_TRUE(options.getEngineOptions()->getDisplacement());
    }
}

TEST(RenderingOptXml, TheOldLayoutKeepsTheOtherEngines)
{
    CTestDocument document;
    CRenderingOpt options(document.ref());
    options.getEnginesOptions()->newZelObject(-1)->setIdentifier("a");
    IZelEngineOptions* known = options.getEngineOptions();
    EXPECT_EQ(readInto(document, options, "<Caustic/>"), "");
    EXPECT_EQ(options.getEnginesOptions()->getNbObjects(), 2);
    EXPECT_EQ(options.getEngineOptions(), known);
    EXPECT_TRUE(known->getCaustic());
}

TEST(RenderingOptXml, TheEnginesOfAFileReplaceThose)
{
    CTestDocument document;
    CRenderingOpt options(document.ref());
    options.getEnginesOptions()->newZelObject(-1)->setIdentifier("old");
    EXPECT_EQ(readInto(document, options,
                       "<Caustic/><Engines.Options><Other/><Engine.Options Identifier=\"x\"/>"
                       "<Engine.Options/></Engines.Options>"),
              "");
    ASSERT_EQ(options.getEnginesOptions()->getNbObjects(), 2);
    EXPECT_STREQ(options.getEnginesOptions()->getZelObject(0)->getIdentifier(), "x");
    EXPECT_EQ(options.getEnginesOptions()->getZelObject(0)->getCachesPassCount(), 2);
    EXPECT_FALSE(options.getEnginesOptions()->getZelObject(0)->getCaustic());
    EXPECT_EQ(options.getEnginesOptions()->getZelObject(1)->getIdentifier(), kPhysical);
    EXPECT_EQ(readInto(document, options, "<Engines.Options/>"), "");
    EXPECT_EQ(options.getEnginesOptions()->getNbObjects(), 0);
}

TEST(RenderingOptXml, Labels)
{
    struct {
        const char* tag;
        std::int32_t (IZelRenderingOpt::*get)() const;
        void (IZelRenderingOpt::*set)(std::int32_t);
        std::vector<const char*> labels;
    } const tables[] = {
        {"Antialias",
         &IZelRenderingOpt::getAntialias,
         &IZelRenderingOpt::setAntialias,
         {"No", "Good", "Excellent", "Special", "VeryHight"}},
        {"Output.Type",
         &IZelRenderingOpt::getOutputType,
         &IZelRenderingOpt::setOutputType,
         {"CmpPict", "Pict", "CmpTGA", "TGA", "BMP", "JPEG", "CmpQTime", "QTime", "CmpVRQTime",
          "VRQTime", "Real", "AVI", "Epix", "Tiff"}},
        {"Color.Behavior",
         &IZelRenderingOpt::getColorBehavior,
         &IZelRenderingOpt::setColorBehavior,
         {"Autolum", "IsoShutter"}},
    };
    CTestDocument document;
    for (const auto& [name, get, set, labels] : tables) {
        const std::string tag = name;
        const std::string range = std::string("[") + labels.front() + ".." + labels.back() + "]";
        for (std::size_t i = 0; i < labels.size(); ++i) {
            SCOPED_TRACE(tag + " " + labels[i]);
            CRenderingOpt options(document.ref());
            const std::string child = elementText(tag, labels[i]);
            EXPECT_EQ(readInto(document, options, child), "");
            EXPECT_EQ((options.*get)(), static_cast<std::int32_t>(i));
            EXPECT_TRUE(contains(writtenBy(document, options), child));

            CRenderingOpt fromAttribute(document.ref());
            const std::string attributes = " " + tag + "=\"" + labels[i] + "\"";
            EXPECT_EQ(readInto(document, fromAttribute, "", attributes), "");
            EXPECT_EQ((fromAttribute.*get)(), static_cast<std::int32_t>(i)) << "as an attribute";
        }
        CRenderingOpt options(document.ref());
        EXPECT_EQ(readInto(document, options, elementText(tag, labels[0]),
                           " " + tag + "=\"" + labels[1] + "\""),
                  "");
        EXPECT_EQ((options.*get)(), 0) << "the child comes first";
        EXPECT_EQ(readInto(document, options, elementText(tag, "VeryHigh")),
                  "Invalid label (VeryHigh) " + range);
        EXPECT_EQ(readInto(document, options, "", " " + tag + "=\"?\""),
                  "Invalid label (?) " + range);
        EXPECT_EQ(readInto(document, options, elementText(tag, "")), "Invalid label () " + range);

        for (const std::int32_t bad : {-1, static_cast<std::int32_t>(labels.size())}) {
            (options.*set)(bad);
            std::string failure;
            try {
                writtenBy(document, options);
            } catch (const std::exception& exception) {
                failure = exception.what();
            }
            EXPECT_EQ(failure, "No label for the value (" + std::to_string(bad) + ") " + range);
        }
    }
}

TEST(RenderingOptXml, AFilesValuesPassTheSetters)
{
    struct {
        const char *content, *warning;
    } const cases[] = {
        {"<Nb.Reflections>-1</Nb.Reflections>",
         "class CRenderingOpt: Method setNbReflection has clipped a value out of range."},
        {"<Nb.Refractions>-1</Nb.Refractions>",
         "class CRenderingOpt: Method setNbRefraction has clipped a value out of range."},
        {"<Width>-1</Width>",
         "class CRenderingOpt: Method setWidth has clipped a value out of range."},
        {"<Height>-1</Height>",
         "class CRenderingOpt: Method setHeight has clipped a value out of range."},
        {"<Render.First>-1</Render.First>",
         "class CRenderingOpt: Method setRenderFirst has clipped a value out of range."},
        {"<Render.Last>-1</Render.Last>",
         "class CRenderingOpt: Method setRenderLast has clipped a value out of range."},
        {"<Scale>-1</Scale>",
         "class CRenderingOpt: Method setParallelScale has clipped a value out of range."},
        {"<Resolution>-1</Resolution>",
         "class CRenderingOpt: Method setImageResolution has clipped a value out of range."},
        {"<Resolution.Level>-1</Resolution.Level>",
         "class CRenderingOpt: Method setPanoramaResolution has clipped a value out of range."},
        {"<Radiosity.Factor>-1</Radiosity.Factor>",
         "class CRenderingOpt:Method setRadiosityFactor has clipped a value out of range."},
        {"<Radiosity.Quality>3000000000</Radiosity.Quality>",
         "class CRenderingOpt: Method setRadiosityQuality has clipped a value out of range."},
        {"<Contrast>nan</Contrast>", "CRenderingOpt::setContrast value must be positive"},
        {"<Luminosity>2</Luminosity>",
         "CRenderingOpt::setLuminosity value must be between -1 and 1."},
    };
    for (const auto& [content, warning] : cases) {
        CTestDocument document;
        CRenderingOpt options(document.ref());
        EXPECT_EQ(readInto(document, options, content), "") << content;
        EXPECT_EQ(document.takeMessages(), std::vector<std::string>{warning}) << content;
    }
}

TEST(RenderingOptXml, AUrlWithoutTextIsEmptyAndAMissingOneStays)
{
    CTestDocument document;
    CRenderingOpt options(document.ref());
    options.setURL("kept");
    EXPECT_EQ(readInto(document, options, ""), "");
    EXPECT_STREQ(options.getURL(), "kept");
    EXPECT_EQ(readInto(document, options, "<URL/>"), "");
    EXPECT_STREQ(options.getURL(), "");
}

TEST(RenderingOptXml, ExtendedDataIsReplacedOnlyByAFileThatHasIt)
{
    CTestDocument document;
    CRenderingOpt options(document.ref());
    options.getExtendedData()->AddText("mine");
    EXPECT_EQ(readInto(document, options, ""), "");
    EXPECT_TRUE(contains(writtenBy(document, options), "<Extended.Datas>mine</Extended.Datas>"));
    EXPECT_EQ(readInto(document, options, "<Extended.Datas><A B=\"1\"/></Extended.Datas>"), "");
    EXPECT_TRUE(
        contains(writtenBy(document, options), "<Extended.Datas><A B=\"1\"/></Extended.Datas>"));
}
