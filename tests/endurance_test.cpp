#include "tests/support/CClientDocument.h"
#include "tests/support/peakMemory.h"
#include "tests/support/repeated.h"
#include "tests/support/savedText.h"
#include "tests/support/smallScene.h"
#include "tests/support/zelFile.h"

#include <zel/IZelAnimatedElement.h>
#include <zel/IZelBasicData.h>
#include <zel/IZelInterpolatedValue.h>
#include <zel/IZelLight.h>
#include <zel/IZelPanoNodeV2.h>
#include <zel/IZelPanoramaV2.h>
#include <zel/IZelScenario.h>

#include <gtest/gtest.h>

#include <ctime>
#include <functional>

// What is done many times grows nothing, and what is large takes time in proportion to its size.

using namespace OvZel;
using ZelTest::CClientDocument;
using ZelTest::component;
using ZelTest::components;
using ZelTest::heapInUse;
using ZelTest::kSmallScene;
using ZelTest::level;
using ZelTest::numberedId;
using ZelTest::pieces;
using ZelTest::repeated;
using ZelTest::section;
using ZelTest::zelFile;

namespace {

/// What an allocator keeps here and there; less than the smallest piece of
/// memory lost a thousand times.
constexpr std::size_t kNoise = 30'000;

/// Drops what the test itself has gathered.
void forget(CClientDocument& document)
{
    document.takeMessages();
    document.feedback.reports = {};
}

} // namespace

TEST(Endurance, AThousandSavesGrowNeitherTheFileNorTheMemory)
{
    CClientDocument document;
    ASSERT_TRUE(document.read(kSmallScene));
    const std::string first = document.save();
    for (int i = 0; i < 20; ++i)
        document.save();
    forget(document);
    const std::size_t before = heapInUse();
    for (int i = 0; i < 1000; ++i) {
        ASSERT_TRUE(document.write()) << i;
        ASSERT_EQ(document.written, first) << i;
        forget(document);
    }
    EXPECT_LE(heapInUse(), before + kNoise);
}

TEST(Endurance, AThousandReadsIntoOneDocumentGrowNothing)
{
    CClientDocument document;
    for (int i = 0; i < 20; ++i)
        ASSERT_TRUE(document.read(kSmallScene));
    const std::string saved = document.save();
    forget(document);
    const std::size_t before = heapInUse();
    for (int i = 0; i < 1000; ++i) {
        ASSERT_TRUE(document.read(kSmallScene)) << i;
        document.readCData(kSmallScene);
        forget(document);
    }
    // A picture that has an identifier is refilled and the meshes are replaced.
    EXPECT_LE(heapInUse(), before + kNoise);
    EXPECT_EQ(document.save(), saved);
}

TEST(Endurance, DocumentsThatComeAndGoLeaveNothing)
{
    const auto live = [] {
        CClientDocument document;
        EXPECT_TRUE(document.read(kSmallScene));
        EXPECT_FALSE(document.read("<Zel.File/>"));
        document.save();
    };
    for (int i = 0; i < 20; ++i)
        live();
    const std::size_t before = heapInUse();
    for (int i = 0; i < 1000; ++i)
        live();
    EXPECT_LE(heapInUse(), before + kNoise);
}

namespace {

std::string inSection(const char* tag, const std::string& content)
{
    return std::string("<") + tag + ">" + content + "</" + tag + ">";
}

constexpr const char* kOuterId = "BE47E8B0CAAACD0F6FBF214CEB78CD7F";
constexpr const char* kInnerId = "CE47E8B0CAAACD0F6FBF214CEB78CD7F";

/// The scene's definition with this inside, and all that lets it be read.
std::string scene(const std::string& inside)
{
    return "<Object.Definition Placement='Vertical' LightGroupID='" + ZelTest::kNoId +
           "'><Class en='ModelObject'/>" + inside +
           "<Anchor X='0' Y='0' Z='0'/><Up X='0' Y='0' Z='1'/><Object.Data/></Object.Definition>";
}

/// A section of a document in which the client has made something, with this for the first element
/// of that name.
std::string madeSection(const char* name, const std::function<void(CClientDocument&)>& make,
                        const std::string& tag, const std::string& content)
{
    CClientDocument document;
    make(document);
    std::string text = ZelTest::sectionOf(document.save(), name);
    const ZelTest::CExtent found = ZelTest::extentOf(text, tag);
    return text.replace(found.begin, found.end - found.begin, inSection(tag.c_str(), content));
}

std::string withId(const char* tag, const char* id)
{
    return std::string("<") + tag + " UUID='" + id + "'/>";
}

struct CLarge {
    const char* name;
    std::function<std::string(int)> content;
};

void PrintTo(const CLarge& large, std::ostream* out)
{
    *out << large.name;
}

const CLarge kLarge[] = {
    {"Components",
     [](int nb) {
         return components(pieces(nb, [](int i) {
             return component(numberedId(i),
                              level(0) + section("Points", "0") + section("Polygons", "0"));
         }));
     }},
    {"Images",
     [](int nb) {
         return inSection("Images", pieces(nb, [](int i) {
                              return section("Image", "", " UUID=\"" + numberedId(i) + "\"");
                          }));
     }},
    {"Comments", [](int nb) { return repeated("<!--c-->", 2 * nb); }},
    {"Attributes",
     [](int nb) {
         return "<a" + pieces(2 * nb, [](int i) { return " a" + std::to_string(i) + "=''"; }) +
                "/>";
     }},
    {"OneAttribute", [](int nb) { return "<a" + repeated(" a=''", 2 * nb) + "/>"; }},
    {"AttributesOfAnImage",
     [](int nb) {
         return "<Image" + pieces(2 * nb, [](int i) { return " a" + std::to_string(i) + "=''"; }) +
                "><![CDATA[]]></Image>";
     }},
    {"Languages",
     [](int nb) {
         return scene("<Name" +
                      pieces(nb,
                             [](int i) {
                                 const char name[] = {' ', static_cast<char>('A' + i % 26),
                                                      static_cast<char>('A' + i / 26 % 26), 0};
                                 return name + std::string("=''");
                             }) +
                      "/>");
     }},
    {"Names", [](int nb) { return pieces(nb, [](int i) { return "<n" + numberedId(i) + "/>"; }); }},
    {"SectionsToDrop", [](int nb) { return repeated("<a/>", nb) + repeated("<Heliodon/>", nb); }},
    {"MeshesOfTheDocument",
     [](int nb) { return repeated("<a/>", nb) + repeated("<Points/>", nb); }},
    {"SettingsToRenew",
     [](int nb) {
         return "<Tmp.Render.Parameters/>" + repeated("<a/>", nb) +
                repeated("<Tmp.Render.Parameters/>", nb);
     }},
    {"MeshesOfOneComponent",
     [](int nb) {
         return components(
             component(kOuterId, level(0) + repeated("<Points><![CDATA[0]]></Points>", nb)));
     }},
    {"MeshesWithoutLevel",
     [](int nb) {
         return inSection("a", component(kOuterId, repeated("<Points><![CDATA[0]]></Points>", nb)));
     }},
    {"ComponentsInOneComponent",
     [](int nb) {
         const std::string points = section("Points", "0");
         const std::string inner = component(kInnerId, level(0) + points);
         return inSection("a", component(kOuterId, repeated("<b/>", nb) + level(0) +
                                                       repeated(inner + points, nb)));
     }},
    {"SectionsOfOneMesh",
     [](int nb) {
         return inSection("Points", repeated("<!---->", nb) + repeated("<![CDATA[0]]>", nb));
     }},
    {"AllLanguages",
     [](int nb) {
         return scene("<Name" +
                      pieces(nb / 2,
                             [](int i) {
                                 const char name[] = {' ', static_cast<char>(128 + i % 128),
                                                      static_cast<char>(128 + i / 128 % 128), 0};
                                 return name + std::string("=''");
                             }) +
                      "/>");
     }},
    {"UnknownSections", [](int nb) { return repeated("<a><![CDATA[b]]></a>", nb); }},
    {"SectionsOfOneElement", [](int nb) { return inSection("a", repeated("<![CDATA[b]]>", nb)); }},
    {"Texts", [](int nb) { return inSection("a", repeated("t<b/>", nb)); }},
    {"References", [](int nb) { return inSection("a", repeated("&amp;", nb)); }},
    {"Points",
     [](int nb) { return section("Points", std::to_string(nb) + " " + repeated("1 2 3 ", nb)); }},
    {"Polygons",
     [](int nb) {
         return section("Polygons", std::to_string(nb) + " " + repeated("p 0 1 0 ", nb));
     }},
    {"Holes",
     [](int nb) {
         return section("Polygons", "1 h 0 " + std::to_string(nb) + " " + repeated("1 0 ", nb));
     }},
    {"Layers",
     [](int nb) {
         return inSection("Layers", pieces(nb, [](int i) {
                              return "<Layer UUID='" + numberedId(i) + "'><Name en='a'/></Layer>";
                          }));
     }},
    {"GroupsOfALight",
     [](int nb) {
         const auto make = [](CClientDocument& document) {
             *document->getLights()->newZelObject(-1)->getLightsGroups()->newZelObject(-1) =
                 CZelUUID(kOuterId);
         };
         return madeSection("Lights", make, "Lights.Groups",
                            repeated(withId("Light", kOuterId), nb));
     }},
    {"LinksOfAPanorama", // those that lead nowhere in front of those that stay
     [](int nb) {
         const auto links = [&](const char* end) {
             return repeated("<PanoV2.Link>" + withId("Start", kOuterId) + withId("End", end) +
                                 withId("Path.Id", kOuterId) + "</PanoV2.Link>",
                             nb / 2);
         };
         const auto make = [](CClientDocument& document) {
             const CZelUUID id(kOuterId);
             document->getPanoramas()
                 ->newZelObject(-1)
                 ->getNodes()
                 ->newZelObject(-1)
                 ->getBasicData()
                 ->setId(&id);
         };
         return madeSection("PanoramasV2", make, "PanoV2.Links", links(kInnerId) + links(kOuterId));
     }},
    {"KeyFrames",
     [](int nb) {
         const auto make = [](CClientDocument& document) {
             IZelAnimatedElement* element =
                 document->getScenarios()->newZelObject(-1)->getAnimatedElements()->newZelObject(
                     -1);
             element->setElementType(5);
             element->getInterpolatedValues()->newZelObject(-1)->setChannel(240);
         };
         return madeSection(
             "Scenarios", make, "KeyFrames",
             repeated("<KeyFrame Type='Integer' Interpolation.Type='Linear'>"
                      "<Time>0</Time><Visible/><Value>0</Value><CPBefore>0</CPBefore>"
                      "<CPAfter>0</CPAfter><AreLocked/></KeyFrame>",
                      nb / 4));
     }},
};

double processorSeconds()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + 1e-9 * static_cast<double>(time.tv_nsec);
}

/// Load, sections alone, save, and the end of the document.
double secondsFor(const std::string& text)
{
    const double start = processorSeconds();
    {
        CClientDocument document;
        EXPECT_TRUE(document.read(text)) << document.takeMessages().front();
        document.readCData(text);
        EXPECT_TRUE(document.write());
    }
    return processorSeconds() - start;
}

} // namespace

class LargeDocument : public testing::TestWithParam<CLarge> {};

TEST_P(LargeDocument, TakesTimeInProportion)
{
    constexpr int kFactor = 8;
    const int nb = ZelTest::canMeterMemory() ? 100'000 : 24'000; // less where all is slow
    const auto textOf = [](int count) { return zelFile(GetParam().content(count)); };
    secondsFor(textOf(nb / kFactor)); // warms the memory up
    const double part = secondsFor(textOf(nb / kFactor));
    const double whole = secondsFor(textOf(nb));
    RecordProperty("seconds", std::to_string(whole));
    // A walk over everything for each piece would make it 64 times the part.
    EXPECT_LT(whole, 0.2 + 3 * kFactor * part) << part << " s for an eighth";
}

INSTANTIATE_TEST_SUITE_P(Kinds, LargeDocument, testing::ValuesIn(kLarge),
                         [](const auto& kind) { return std::string(kind.param.name); });
