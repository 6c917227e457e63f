#include "tests/support/CClientDocument.h"
#include "tests/support/peakMemory.h"
#include "tests/support/repeated.h"
#include "tests/support/smallScene.h"
#include "tests/support/zelFile.h"

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
         return "<Object.Definition><Name" +
                pieces(nb,
                       [](int i) {
                           const char name[] = {' ', static_cast<char>('A' + i % 26),
                                                static_cast<char>('A' + i / 26 % 26), 0};
                           return name + std::string("=''");
                       }) +
                "/></Object.Definition>";
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
         return "<Object.Definition><Name" +
                pieces(nb / 2,
                       [](int i) {
                           const char name[] = {' ', static_cast<char>(128 + i % 128),
                                                static_cast<char>(128 + i / 128 % 128), 0};
                           return name + std::string("=''");
                       }) +
                "/></Object.Definition>";
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
        EXPECT_TRUE(document.read(text));
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
