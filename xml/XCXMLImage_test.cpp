#include "xml/XCXMLImage.h"

#include "tests/support/CXMLTextSource.h"
#include "tests/support/CXMLTextTarget.h"
#include "tests/support/messageOf.h"
#include "xml/trn_autoptr.h"

#include <gtest/gtest.h>

#include <fstream>
#include <random>
#include <string>
#include <vector>

using namespace OvZel;
using ZelTest::CXMLTextSource;
using ZelTest::CXMLTextTarget;
using ZelTest::messageOf;

namespace {

using CPixel = trn_image_RGBAn8::CPixel;

// Red, green, blue, alpha.
constexpr CPixel kA{0x11, 0x22, 0x33, 0x44};
constexpr CPixel kB{0x55, 0x66, 0x77, 0x88};
constexpr CPixel kC{0x99, 0xAA, 0xBB, 0xCC};

// The same in the file: alpha comes first.
#define A_ "44112233"
#define B_ "88556677"
#define C_ "CC99AABB"

std::string written(std::uint32_t width, std::uint32_t height, std::vector<CPixel> pixels)
{
    CXMLTextTarget stream;
    XCXMLImage(width, height, reinterpret_cast<std::uint8_t*>(pixels.data())).WriteImage(stream);
    return stream.text;
}

void read(XCXMLImage& image, const std::string& text, std::size_t step = CXMLTextSource::kWhole)
{
    CXMLTextSource stream(text, step);
    image.ReadImage(stream);
}

std::vector<CPixel> pixelsOf(const XCXMLImage& image)
{
    return {image.pixels(), image.pixels() + image.nbPixels()};
}

/// Long runs and long stretches alike.
std::vector<CPixel> randomPixels(std::mt19937& random, std::size_t nb)
{
    const unsigned nbColors = 1U << random() % 8;
    std::vector<CPixel> pixels;
    while (pixels.size() < nb) {
        const auto value = static_cast<std::uint8_t>(random() % nbColors);
        const CPixel pixel{value, static_cast<std::uint8_t>(~value), 7, value};
        pixels.insert(pixels.end(), random() % 4 == 0 ? random() % 300 : 1, pixel);
    }
    pixels.resize(nb);
    return pixels;
}

} // namespace

TEST(XCXMLImage, WritesRunsAndLiteralsInTurn)
{
    struct {
        const char* what;
        std::uint32_t width, height;
        std::vector<CPixel> pixels;
        const char* text;
    } const cases[] = {
        {"one pixel",
         1,
         1,
         {kA},
         "000000010000000100000001"
         "00000001" A_},
        {"two equal",
         2,
         1,
         {kA, kA},
         "000000010000000200000001"
         "00000002" A_},
        {"A B A A",
         2,
         2,
         {kA, kB, kA, kA},
         "000000010000000200000002"
         "00000001" A_ "00000002" B_ A_ "00000001" A_},
        {"A B C",
         3,
         1,
         {kA, kB, kC},
         "000000010000000300000001"
         "00000001" A_ "00000002" B_ C_},
        {"A A B",
         1,
         3,
         {kA, kA, kB},
         "000000010000000100000003"
         "00000002" A_ "00000001" B_},
        {"one colour", 20, 20, std::vector<CPixel>(400, kC),
         "000000010000001400000014"
         "00000190" C_},
        {"no width", 0, 3, {}, ""},
        {"no height", 3, 0, {}, ""},
    };
    for (const auto& test : cases) {
        EXPECT_EQ(written(test.width, test.height, test.pixels), test.text) << test.what;
        if (*test.text == '\0')
            continue;
        XCXMLImage image;
        read(image, test.text);
        EXPECT_EQ(image.width(), test.width) << test.what;
        EXPECT_EQ(image.height(), test.height) << test.what;
        EXPECT_EQ(pixelsOf(image), test.pixels) << test.what;
    }
}

TEST(XCXMLImage, ReadsWhatItDoesNotWrite)
{
    struct {
        const char* what;
        const char* text;
        std::vector<CPixel> pixels;
    } const cases[] = {
        {"a run of no pixel",
         "000000010000000200000001"
         "00000000" A_ "00000002" B_ C_,
         {kB, kC}},
        {"a stretch of no pixel",
         "000000010000000200000001"
         "00000001" A_ "00000000"
         "00000001" B_,
         {kA, kB}},
        {"runs that could be one",
         "000000010000000300000001"
         "00000001" A_ "00000001" A_ "00000001" A_,
         {kA, kA, kA}},
        {"something behind the picture",
         "000000010000000100000001"
         "00000001" A_ "\n no hex",
         {kA}},
        {"low byte first",
         "010000000300000001000000"
         "01000000"
         "12345678"
         "02000000"
         "9ABCDEF0"
         "FFFFFFFF",
         {CPixel{0x12, 0, 0, 0}, CPixel{0x9A, 0, 0, 0}, CPixel{0xFF, 0, 0, 0}}},
    };
    for (const auto& test : cases) {
        XCXMLImage image;
        read(image, test.text);
        EXPECT_EQ(pixelsOf(image), test.pixels) << test.what;
    }
}

TEST(XCXMLImage, ABadPictureLeavesTheOldOne)
{
    const char* const wrongData = "XCXMLImage::Read - Wrong data";
    const char* const badDigit = "XCXMLImage::ReadHex - Invalid hex value";
    const char* const tooShort = "XCXMLImage::ReadHex - Read stream error";
    struct {
        const char* what;
        const char* text;
        const char* message;
    } const cases[] = {
        {"empty section", "", tooShort},
        {"format 2", "000000020000000100000001", "Unknown format"},
        {"format 2, low byte first", "020000000100000001000000", "Unknown format"},
        {"run beyond the end",
         "000000010000000200000001"
         "00000003" A_,
         wrongData},
        {"run that overflows 32 bits",
         "000000010000000200000001"
         "00000001" A_ "00000000"
         "FFFFFFFF" A_,
         wrongData},
        {"stretch beyond the end",
         "000000010000000200000001"
         "00000001" A_ "00000002" B_ C_,
         wrongData},
        {"stretch that overflows 32 bits",
         "000000010000000200000001"
         "00000001" A_ "FFFFFFFF" B_,
         wrongData},
        {"one pixel more than allowed",
         "000000010000400100004000"
         "00000001" A_,
         wrongData},
        {"size that is 0 in 32 bits",
         "000000010001000000010000"
         "00000001" A_,
         wrongData},
        {"size that overflows 64 bits by four",
         "000000018000000080000000"
         "00000001" A_,
         wrongData},
        {"lower case",
         "000000010000000100000001"
         "00000001"
         "4411223a",
         badDigit},
        {"no digit",
         "000000010000000100000001"
         "00000001"
         "441122 3",
         badDigit},
        {"first digit of a byte",
         "G00000010000000100000001"
         "00000001" A_,
         badDigit},
        {"a high bit",
         "\xB0"
         "0000001",
         badDigit},
        {"cut in the header", "0000000100000001", tooShort},
        {"cut in a word",
         "000000010000000100000001"
         "00000001"
         "4411223",
         tooShort},
        {"bad digit ahead of the cut",
         "0000000100000001000000010000000144112x33"
         "1",
         badDigit},
        {"cut behind a run",
         "000000010000000200000001"
         "00000001" A_,
         tooShort},
        {"cut in a stretch",
         "000000010000000300000001"
         "00000001" A_ "00000002" B_,
         tooShort},
    };
    for (const auto& test : cases) {
        for (const std::size_t step : {std::size_t{1}, CXMLTextSource::kWhole}) {
            XCXMLImage image;
            read(image, "000000010000000100000001"
                        "00000001" C_);
            EXPECT_EQ(messageOf([&] { read(image, test.text, step); }), test.message) << test.what;
            EXPECT_EQ(pixelsOf(image), std::vector<CPixel>{kC}) << test.what;
        }
    }
}

TEST(XCXMLImage, APictureWithoutAreaIsNoBitmap)
{
    for (const char* text :
         {"000000010000000000000005", "000000010000000500000000", "010000000000000005000000"}) {
        XCXMLImage image;
        read(image, "000000010000000100000001"
                    "00000001" C_);
        read(image, text);
        EXPECT_EQ(image.width(), 0U);
        EXPECT_EQ(image.height(), 0U);
        EXPECT_EQ(image.pixels(), nullptr);
    }
}

TEST(XCXMLImage, RandomPicturesComeBack)
{
    std::mt19937 random(1);
    for (int i = 0; i < 200; ++i) {
        const auto width = static_cast<std::uint32_t>(1 + random() % 90);
        const auto height = static_cast<std::uint32_t>(1 + random() % 90);
        const std::vector<CPixel> pixels = randomPixels(random, width * height);
        const std::string text = written(width, height, pixels);
        XCXMLImage image;
        read(image, text, i % 2 == 0 ? CXMLTextSource::kWhole : 1 + random() % 3000);
        ASSERT_EQ(pixelsOf(image), pixels) << width << " x " << height;
        ASSERT_EQ(written(width, height, pixelsOf(image)), text);
    }
}

namespace {

std::string turned(const std::string& word)
{
    return word.substr(6, 2) + word.substr(4, 2) + word.substr(2, 2) + word.substr(0, 2);
}

/// The same runs in a file with the low byte of each number first; pixels stay as they are.
std::string littleEndian(const std::string& text)
{
    std::string result;
    std::size_t at = 0;
    const auto number = [&] {
        const std::string word = text.substr(at, 8);
        result += turned(word);
        at += 8;
        return std::stoul(word, nullptr, 16);
    };
    const auto pixels = [&](std::size_t nb) {
        result += text.substr(at, nb * 8);
        at += nb * 8;
    };
    number();
    number();
    number();
    while (at < text.size()) {
        number();
        pixels(1);
        if (at < text.size())
            pixels(number());
    }
    return result;
}

} // namespace

TEST(XCXMLImage, RandomPicturesOfTheOtherOrderKeepTheirFirstByte)
{
    std::mt19937 random(2);
    for (int i = 0; i < 50; ++i) {
        const auto width = static_cast<std::uint32_t>(1 + random() % 90);
        std::vector<CPixel> pixels = randomPixels(random, width * 7);
        XCXMLImage image;
        read(image, littleEndian(written(width, 7, pixels)));
        for (CPixel& pixel : pixels)
            pixel = {pixel.alpha, 0, 0, 0};
        ASSERT_EQ(pixelsOf(image), pixels) << width;
    }
}

TEST(XCXMLImage, APictureThatEndsAnywhereTooEarlyLeavesTheOldOne)
{
    std::mt19937 random(3);
    for (int i = 0; i < 10; ++i) {
        const std::string text = written(13, 11, randomPixels(random, 13 * 11));
        XCXMLImage image;
        read(image, "000000010000000100000001"
                    "00000001" A_);
        for (std::size_t nb = 24; nb < text.size(); nb += 8)
            EXPECT_EQ(messageOf([&] { read(image, text.substr(0, nb)); }),
                      "XCXMLImage::ReadHex - Read stream error");
        EXPECT_EQ(pixelsOf(image), std::vector<CPixel>{kA});
    }
}

namespace {

/// Remembers the largest piece that it was given.
class CPieceStream : public CXMLTextTarget {
public:
    std::uint32_t Write(const void* buffer, std::uint32_t size) override
    {
        largest = std::max(largest, size);
        return CXMLTextTarget::Write(buffer, size);
    }
    std::uint32_t largest = 0;
};

} // namespace

TEST(XCXMLImage, WritesInPieces)
{
    std::vector<CPixel> pixels;
    while (pixels.size() < 10000)
        pixels.insert(pixels.end(), {kA, kB, kC, kB});
    CPieceStream stream;
    XCXMLImage(100, 100, reinterpret_cast<std::uint8_t*>(pixels.data())).WriteImage(stream);
    EXPECT_EQ(stream.largest, 2048U);
}

TEST(XCXMLImage, AWriteStreamThatTakesLessIsAFailure)
{
    std::vector<CPixel> pixels{kA, kB, kC};
    XCXMLImage image(3, 1, reinterpret_cast<std::uint8_t*>(pixels.data()));
    CXMLTextTarget full(63); // of 64 characters
    EXPECT_EQ(messageOf([&] { image.WriteImage(full); }),
              "XCXMLImage::WriteHex - Write stream error");
    CXMLTextTarget fullAgain(63);
    EXPECT_FALSE(image.Write(&fullAgain, nullptr, nullptr));
    CXMLTextTarget exact(64);
    EXPECT_TRUE(image.Write(&exact, nullptr, nullptr));
    EXPECT_FALSE(image.Write(nullptr, nullptr, nullptr));
}

TEST(XCXMLImage, DestroyAsASectionGivesTheReferenceBack)
{
    trn_autoptr<XCXMLImage> image(new XCXMLImage);
    image->addReference(); // that of the tree
    OrvaneXML::XIXMLData::IXMLCData* const clone = image->Clone();
    image->Destroy();
    clone->Destroy();
    image->resize(1, 1); // still alive, as the sanitizers see
    EXPECT_EQ(image->width(), 1U);
}

#ifdef __linux__
namespace {

/// The largest size that the process has had, in KiB.
long peakSize()
{
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);)
        if (line.rfind("VmPeak:", 0) == 0)
            return std::stol(line.substr(7));
    return 0;
}

} // namespace

TEST(XCXMLImage, ATinyFileTakesNoMemoryForAHugeClaim)
{
    const char* const texts[] = {
        "000000010000400000004000", // 1 GiB of pixels
        "000000010000400000004000"
        "0FFFFFFF" A_,
        "000000010000400000004000"
        "0FFFFFFF" A_ "00000001",
        "000000010000400000004000"
        "00000001" A_ "0FFFFFFF" B_,
        "000000010000400000004000"
        "0FFFFFFF" A_ "00000001"
        "FFFF",
    };
    const long before = peakSize();
    ASSERT_GT(before, 0);
    for (const char* text : texts) {
        XCXMLImage image;
        EXPECT_EQ(messageOf([&] { read(image, text); }), "XCXMLImage::ReadHex - Read stream error");
    }
    EXPECT_LT(peakSize() - before, 64 * 1024);
}
#else
TEST(XCXMLImage, ATinyFileTakesNoMemoryForAHugeClaim)
{
    GTEST_SKIP() << "memory can't be metered here";
}
#endif
