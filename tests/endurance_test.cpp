#include "tests/support/CClientDocument.h"
#include "tests/support/peakMemory.h"
#include "tests/support/smallScene.h"

#include <gtest/gtest.h>

#include <ctime>
#include <functional>
#include <iomanip>
#include <sstream>

// What is done many times grows nothing, and what is large takes time in proportion to its size.

using namespace OvZel;
using ZelTest::CClientDocument;
using ZelTest::heapInUse;
using ZelTest::kSmallScene;

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

std::string file(const std::string& content)
{
    return "<?Zel library=\"6.0.6\" file=\"6.0\" min_version=\"6.0.0\" safe_version=\"6.0.4\"?>"
           "<Zel.File>" +
           content + "<Working.Window/></Zel.File>";
}

std::string id(int number)
{
    std::ostringstream out;
    out << std::hex << std::uppercase << std::setw(32) << std::setfill('0') << number + 1;
    return out.str();
}

using CPiece = std::function<std::string(int)>;

std::string pieces(int nb, const CPiece& piece)
{
    std::string all;
    for (int i = 0; i < nb; ++i)
        all += piece(i);
    return all;
}

CPiece same(const char* text)
{
    return [text](int) { return std::string(text); };
}

std::string inSection(const char* tag, const std::string& content)
{
    return std::string("<") + tag + ">" + content + "</" + tag + ">";
}

std::string mesh(const char* tag)
{
    return std::string("<") + tag + "><![CDATA[0]]></" + tag + ">";
}

constexpr const char* kOpenComponent =
    "<InternalComponentDefinitions><InternalComponentDefinition "
    "UUID=\"BE47E8B0CAAACD0F6FBF214CEB78CD7F\"><Geometry.Level>0</Geometry.Level>";
constexpr const char* kCloseComponent =
    "</InternalComponentDefinition></InternalComponentDefinitions>";

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
         return inSection("InternalComponentDefinitions", pieces(nb, [](int i) {
                              return "<InternalComponentDefinition UUID=\"" + id(i) +
                                     "\"><Geometry.Level>0</Geometry.Level>" + mesh("Points") +
                                     mesh("Polygons") + "</InternalComponentDefinition>";
                          }));
     }},
    {"Images",
     [](int nb) {
         return inSection("Images", pieces(nb, [](int i) {
                              return "<Image UUID=\"" + id(i) + "\"><![CDATA[]]></Image>";
                          }));
     }},
    {"Comments", [](int nb) { return pieces(2 * nb, same("<!--c-->")); }},
    {"Attributes",
     [](int nb) {
         return "<a" + pieces(2 * nb, [](int i) { return " a" + std::to_string(i) + "=''"; }) +
                "/>";
     }},
    {"OneAttribute", [](int nb) { return "<a" + pieces(2 * nb, same(" a=''")) + "/>"; }},
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
    {"Names", [](int nb) { return pieces(nb, [](int i) { return "<n" + id(i) + "/>"; }); }},
    {"SectionsToDrop",
     [](int nb) { return pieces(nb, same("<a/>")) + pieces(nb, same("<Heliodon/>")); }},
    {"MeshesOfTheDocument",
     [](int nb) { return pieces(nb, same("<a/>")) + pieces(nb, same("<Points/>")); }},
    {"SettingsToRenew",
     [](int nb) {
         return "<Tmp.Render.Parameters/>" + pieces(nb, same("<a/>")) +
                pieces(nb, same("<Tmp.Render.Parameters/>"));
     }},
    {"MeshesOfOneComponent",
     [](int nb) {
         return kOpenComponent + pieces(nb, same("<Points><![CDATA[0]]></Points>")) +
                kCloseComponent;
     }},
    {"MeshesWithoutLevel",
     [](int nb) {
         return "<a><InternalComponentDefinition UUID=\"BE47E8B0CAAACD0F6FBF214CEB78CD7F\">" +
                pieces(nb, same("<Points><![CDATA[0]]></Points>")) +
                "</InternalComponentDefinition></a>";
     }},
    {"ComponentsInOneComponent",
     [](int nb) {
         const std::string inner = "<InternalComponentDefinition "
                                   "UUID=\"CE47E8B0CAAACD0F6FBF214CEB78CD7F\">"
                                   "<Geometry.Level>0</Geometry.Level>" +
                                   mesh("Points") + "</InternalComponentDefinition>";
         return "<a><InternalComponentDefinition UUID=\"BE47E8B0CAAACD0F6FBF214CEB78CD7F\">" +
                pieces(nb, same("<b/>")) + "<Geometry.Level>0</Geometry.Level>" +
                pieces(nb, [&](int) { return inner + mesh("Points"); }) +
                "</InternalComponentDefinition></a>";
     }},
    {"SectionsOfOneMesh",
     [](int nb) {
         return inSection("Points",
                          pieces(nb, same("<!---->")) + pieces(nb, same("<![CDATA[0]]>")));
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
    {"UnknownSections", [](int nb) { return pieces(nb, same("<a><![CDATA[b]]></a>")); }},
    {"SectionsOfOneElement",
     [](int nb) { return inSection("a", pieces(nb, same("<![CDATA[b]]>"))); }},
    {"Texts", [](int nb) { return inSection("a", pieces(nb, same("t<b/>"))); }},
    {"References", [](int nb) { return inSection("a", pieces(nb, same("&amp;"))); }},
    {"Points",
     [](int nb) {
         return inSection("Points", "<![CDATA[" + std::to_string(nb) + " " +
                                        pieces(nb, same("1 2 3 ")) + "]]>");
     }},
    {"Polygons",
     [](int nb) {
         return inSection("Polygons", "<![CDATA[" + std::to_string(nb) + " " +
                                          pieces(nb, same("p 0 1 0 ")) + "]]>");
     }},
    {"Holes",
     [](int nb) {
         return inSection("Polygons", "<![CDATA[1 h 0 " + std::to_string(nb) + " " +
                                          pieces(nb, same("1 0 ")) + "]]>");
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
    const auto textOf = [](int count) { return file(GetParam().content(count)); };
    secondsFor(textOf(nb / kFactor)); // warms the memory up
    const double part = secondsFor(textOf(nb / kFactor));
    const double whole = secondsFor(textOf(nb));
    RecordProperty("seconds", std::to_string(whole));
    // A walk over everything for each piece would make it 64 times the part.
    EXPECT_LT(whole, 0.2 + 3 * kFactor * part) << part << " s for an eighth";
}

INSTANTIATE_TEST_SUITE_P(Kinds, LargeDocument, testing::ValuesIn(kLarge),
                         [](const auto& kind) { return std::string(kind.param.name); });
