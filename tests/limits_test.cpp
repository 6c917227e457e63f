#include "tests/support/CClientDocument.h"
#include "tests/support/peakMemory.h"
#include "tests/support/repeated.h"
#include "tests/support/zelFile.h"

#include <gtest/gtest.h>

// The limits of docs/limits.md: what is refused, and how much memory a claim can take.

using namespace OvZel;
using ZelTest::CClientDocument;
using ZelTest::peakMemoryOf;
using ZelTest::pieces;
using ZelTest::repeated;
using ZelTest::section;

namespace {

constexpr std::size_t kMegabyte = 1024 * 1024;

/// A file of a version whose preview is decoded too.
std::string file(const std::string& content)
{
    return ZelTest::zelFile(content, "<?Zel library=\"4.0.0\" file=\"4.0\" "
                                     "min_version=\"4.0.0\" safe_version=\"4.0.0\"?>");
}

std::string image(const std::string& bytes)
{
    return file("<Images>" + section("Image", bytes) + "</Images>");
}

/// Components whose blocks claim more than they have.
std::string claimingComponents(int nb)
{
    return ZelTest::components(pieces(nb, [](int i) {
        return ZelTest::component(ZelTest::numberedId(i), ZelTest::level(0) +
                                                              section("Points", "9999999") +
                                                              section("Polygons", "9999999"));
    }));
}

std::string manyNames(int nb)
{
    return pieces(nb, [](int i) { return "<n" + std::to_string(i) + "/>"; });
}

std::string manyAttributes(int nb)
{
    return "<a" + pieces(nb, [](int i) { return " a" + std::to_string(i) + "=''"; }) + "/>";
}

std::string nested(int depth)
{
    return repeated("<a>", depth) + repeated("</a>", depth);
}

struct CClaim {
    const char* name;
    std::string text;
};

std::vector<CClaim> claims()
{
    const std::string picture = "00000001"
                                "00004000"
                                "00004000"
                                "00000001"
                                "FF000000";
    return {
        {"nothing", file("")},
        {"points", file(section("Points", "2147483647"))},
        {"one of many points", file(section("Points", "2147483647 1 2 3"))},
        {"polygons", file(section("Polygons", "2147483647"))},
        {"one of many polygons", file(section("Polygons", "2147483647 p 0 3 0 1 2"))},
        {"vertices", file(section("Polygons", "1 p 0 2147483647 0 1 2"))},
        {"loops", file(section("Polygons", "1 h 0 2147483647 3 0 1 2 3 0 1 2"))},
        {"vertices of a hole", file(section("Polygons", "1 h 0 2 3 0 1 2 2147483647 0"))},
        {"negative counts", file(section("Points", "-1") + section("Polygons", "-2147483648"))},
        {"blocks",
         file(repeated(section("Points", "9999999") + section("Polygons", "9999999"), 60))},
        {"components", file(claimingComponents(40))},
        {"a picture", image(picture)},
        {"pictures", file("<Images>" + repeated(section("Image", picture), 80) + "</Images>")},
        {"a picture of middle size", image("00000001"
                                           "00000800"
                                           "00001000")},
        {"a run too short", image("00000001"
                                  "00000800"
                                  "00001000"
                                  "007FFFFF"
                                  "FF000000")},
        {"a literal stretch", image(picture + "0FFFFFFF"
                                              "FF000000")},
        {"a wrong run", image("00000001"
                              "00004000"
                              "00004000"
                              "7FFFFFFF"
                              "FF000000")},
        {"a preview", file(section("Preview.Image", picture))},
        {"depth", file(nested(1200))},
        {"depth without end", file(repeated("<a>", 2700))},
        {"names", file(manyNames(1000))},
        {"attributes", file(manyAttributes(1000))},
        {"comments", file(repeated("<!---->", 1000))},
        {"unknown sections", file(repeated(section("u", ""), 400))},
        {"pictures without bytes", file(repeated(section("Image", ""), 250))},
        {"languages", file("<Object.Definition>" + manyAttributes(500) + "</Object.Definition>")},
        {"a length", file("<Table Length=\"2147483647\"><Float>1</Float></Table>")},
    };
}

} // namespace

TEST(Limits, TheMeterSeesWhatIsTaken)
{
    if (!ZelTest::canMeterPeaks())
        GTEST_SKIP() << "memory can't be metered here";
    const auto take = [](std::size_t size) {
        return peakMemoryOf([size] {
            ::operator delete(::operator new(size)); // never touched
        });
    };
    EXPECT_GT(take(64 * kMegabyte), 63 * kMegabyte);
    EXPECT_LT(take(64 * kMegabyte), 66 * kMegabyte);
    EXPECT_LT(take(1000), kMegabyte);
}

TEST(Limits, AFileOfAFewKilobytesTakesAtMost16Megabytes)
{
    if (!ZelTest::canMeterPeaks())
        GTEST_SKIP() << "memory can't be metered here";
    for (const auto& [name, text] : claims()) {
        ASSERT_LT(text.size(), 10'000U) << name;
        const std::size_t most = peakMemoryOf([&text = text] {
            CClientDocument document;
            document.read(text);
            document.readCData(text);
            document.write();
        });
        EXPECT_LE(most, 16 * kMegabyte) << name;
    }
}

TEST(Limits, ClaimsThatAreNotMetLeaveWhatWasThere)
{
    CClientDocument document;
    EXPECT_TRUE(document.read(file(section("Points", "2147483647 1 2 3 4 5"))));
    EXPECT_EQ(document->getPoints()->getNbObjects(), 1);
    EXPECT_EQ(document.takeMessages(),
              (std::vector<std::string>{
                  "Numbers of points seems wrong",
                  "Error \"This is not a number\" while parsing 'Points' data block"}));
    EXPECT_TRUE(document.read(file(section("Points", "1 7 8 9"))));
    ASSERT_EQ(document->getPoints()->getNbObjects(), 1);
    EXPECT_EQ(document->getPoints()->getZelObject(0)->x, 7.0);
}

TEST(Limits, APictureWithoutItsPixelsIsRefused)
{
    const struct {
        const char* bytes;
        const char* why;
    } cases[] = {
        {"00000001"
         "00004001"
         "00004000",
         "XCXMLImage::Read - Wrong data"}, // 268,451,840 pixels
        {"00000001"
         "FFFFFFFF"
         "FFFFFFFF",
         "XCXMLImage::Read - Wrong data"},
        {"00000001"
         "00010000"
         "00010000",
         "XCXMLImage::Read - Wrong data"}, // 0 in 32 bits
        {"00000001"
         "00004000"
         "00004000",
         "XCXMLImage::ReadHex - Read stream error"},
        {"00000001"
         "00004000"
         "00004000"
         "10000001"
         "FF000000",
         "XCXMLImage::Read - Wrong data"},
        {"00000001"
         "00004000"
         "00004000"
         "0FFFFFFF"
         "FF000000",
         "XCXMLImage::ReadHex - Read stream error"},
    };
    for (const auto& [bytes, why] : cases) {
        CClientDocument document;
        EXPECT_TRUE(document.read(image(bytes))) << bytes;
        EXPECT_EQ(document.takeMessages(),
                  std::vector<std::string>{std::string("Error \"") + why +
                                           "\" while parsing 'Image' data block"})
            << bytes;
        ASSERT_EQ(document->getImages()->getNbObjects(), 1) << bytes;
        std::uint8_t* pixels = nullptr;
        document->getImages()->getZelObject(0)->getImage(nullptr, nullptr, &pixels);
        EXPECT_EQ(pixels, nullptr) << bytes;
    }
}

TEST(Limits, APictureThatItsRunsCoverIsTaken)
{
    CClientDocument document;
    EXPECT_TRUE(document.read(image("00000001"
                                    "00000800"
                                    "00000800"
                                    "00400000"
                                    "FF0A0B0C")));
    EXPECT_EQ(document.takeMessages(), std::vector<std::string>{});
    std::uint32_t width = 0, height = 0;
    std::uint8_t* pixels = nullptr;
    document->getImages()->getZelObject(0)->getImage(&width, &height, &pixels);
    ASSERT_EQ(width, 2048U);
    ASSERT_EQ(height, 2048U);
    EXPECT_EQ(pixels[4 * 2048 * 2048 - 4], 0x0A);
}

TEST(Limits, ElementsNestTenThousandDeep)
{
    CClientDocument document;
    EXPECT_TRUE(document.read(file(nested(9'999)))); // below the document element
    EXPECT_EQ(document.takeMessages(), std::vector<std::string>{});
    EXPECT_FALSE(document.read(file(nested(10'000))));
    EXPECT_EQ(document.takeMessages(),
              std::vector<std::string>{"XML syntax error in line 1: elements nested too deeply"});
}

TEST(Limits, TextsAndNamesHaveTheLengthThatTheFileGivesThem)
{
    const std::string longText(1'000'000, 'x');
    CClientDocument document;
    document->setURL(longText.c_str());
    document->getObjectDefinition()->getName()->setText(0x656E, longText.c_str());
    const std::string content =
        "<Object.Definition><Name en=\"a\"/></Object.Definition><" + longText + "/>";
    EXPECT_TRUE(document.read(file(content + "<Save.Url>" + longText + "</Save.Url>")));
    EXPECT_EQ(document->getURL(), longText);
    document->getObjectDefinition()->getName()->setText(0x656E, longText.c_str());
    CClientDocument copy;
    EXPECT_TRUE(copy.read(document.save()));
    EXPECT_EQ(copy->getURL(), longText);
    EXPECT_EQ(copy->getObjectDefinition()->getName()->getText(0x656E), longText);
}
