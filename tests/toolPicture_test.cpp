#ifdef ZEL_TOOL // without the tool there is nothing to test

#include "tests/toolRun.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <png.h>

namespace {

using nlohmann::json;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

// What takes the libraries for models and pictures.

constexpr const char* kSquare = "v 0 0 0\nv 1 0 0\nv 1 1 0\nv 0 1 0\n"
                                "vt 0 0\nvt 0.25 0\nvt 0.25 0.5\nvt 0 0.5\n"
                                "f 1/1 2/2 3/3 4/4\n";

class ToolPicture : public testing::Test {
protected:
    static json info(const std::string& file)
    {
        return json::parse(runTool({"info", "--json", file}).output);
    }

    CTempFolder mFolder;
};

// Colours and transparencies that all differ.
std::vector<std::uint8_t> colourfulPixels(std::uint32_t nbPixels)
{
    std::vector<std::uint8_t> pixels;
    for (std::uint32_t i = 0; i < nbPixels; ++i)
        for (const std::uint32_t factor : {7U, 11U, 13U, 17U})
            pixels.push_back(static_cast<std::uint8_t>(i * factor));
    return pixels;
}

png_image pngOf(std::uint32_t width, std::uint32_t height)
{
    png_image image = {};
    image.version = PNG_IMAGE_VERSION;
    image.width = width;
    image.height = height;
    image.format = PNG_FORMAT_RGBA;
    return image;
}

struct CPixels {
    std::uint32_t width = 0;
    std::uint32_t height = 0;
    std::vector<std::uint8_t> bytes;
};

CPixels readPng(const std::string& file)
{
    png_image image = pngOf(0, 0);
    EXPECT_TRUE(png_image_begin_read_from_file(&image, file.c_str()));
    image.format = PNG_FORMAT_RGBA;
    CPixels pixels{image.width, image.height, {}};
    pixels.bytes.resize(PNG_IMAGE_SIZE(image));
    EXPECT_TRUE(png_image_finish_read(&image, nullptr, pixels.bytes.data(), 0, nullptr));
    return pixels;
}

TEST_F(ToolPicture, APreviewGoesInAndOutUnchanged)
{
    const std::vector<std::uint8_t> pixels = colourfulPixels(5 * 3);
    const std::string in = mFolder.file("in.png");
    png_image image = pngOf(5, 3);
    ASSERT_TRUE(png_image_write_to_file(&image, in.c_str(), 0, pixels.data(), 0, nullptr));

    const std::string model = mFolder.put("square.obj", kSquare);
    const std::string file = mFolder.file("square.zel");
    const std::string out = mFolder.file("out.png");
    ASSERT_EQ(runTool({"from-model", model, file, "--preview", in}).code, 0);
    EXPECT_EQ(info(file)["preview"], json::parse(R"({"width":5,"height":3})"));
    ASSERT_EQ(runTool({"preview", file, out}).code, 0);

    const CPixels back = readPng(out);
    EXPECT_EQ(back.width, 5U);
    EXPECT_EQ(back.height, 3U);
    EXPECT_EQ(back.bytes, pixels);
}

// The picture, taken out of a document with it and shrunk to fit.
CPixels shrunk(const CTempFolder& folder, std::uint32_t width, std::vector<std::uint8_t> pixels,
               const std::string& size)
{
    const std::string in = folder.file("in.png");
    png_image image = pngOf(width, static_cast<std::uint32_t>(pixels.size()) / 4 / width);
    EXPECT_TRUE(png_image_write_to_file(&image, in.c_str(), 0, pixels.data(), 0, nullptr));
    const std::string model = folder.put("square.obj", kSquare);
    const std::string file = folder.file("square.zel");
    EXPECT_EQ(runTool({"from-model", model, file, "--preview", in}).code, 0);
    EXPECT_EQ(runTool({"preview", "--size", size, file, folder.file("out.png")}).code, 0);
    return readPng(folder.file("out.png"));
}

TEST_F(ToolPicture, AShrunkPreviewKeepsItsProportions)
{
    const struct {
        std::uint32_t width, height;
        const char* size;
        std::uint32_t newWidth, newHeight;
    } cases[] = {
        {5, 3, "5", 5, 3},   {5, 3, "4096", 5, 3}, {5, 3, "4", 4, 2},   {3, 5, "4", 2, 4},
        {300, 1, "3", 3, 1}, {5, 3, "1", 1, 1},    {64, 64, "7", 7, 7},
    };
    for (const auto& item : cases) {
        const std::vector<std::uint8_t> pixels = colourfulPixels(item.width * item.height);
        const CPixels back = shrunk(mFolder, item.width, pixels, item.size);
        EXPECT_EQ(back.width, item.newWidth) << item.width << " to " << item.size;
        EXPECT_EQ(back.height, item.newHeight) << item.width << " to " << item.size;
        if (item.width == item.newWidth) {
            EXPECT_EQ(back.bytes, pixels);
        }
    }
}

TEST_F(ToolPicture, AShrunkPixelIsTheMeanOfWhatItCovers)
{
    using TBytes = std::vector<std::uint8_t>;
    // Two by two; a transparent pixel lends no colour.
    EXPECT_EQ(
        shrunk(mFolder, 2, {10, 0, 0, 255, 20, 0, 0, 255, 30, 0, 0, 255, 40, 200, 0, 255}, "1")
            .bytes,
        (TBytes{25, 50, 0, 255}));
    EXPECT_EQ(shrunk(mFolder, 2, {100, 50, 25, 200, 7, 7, 7, 0}, "1").bytes,
              (TBytes{100, 50, 25, 100}));
    EXPECT_EQ(shrunk(mFolder, 2, {100, 50, 25, 0, 7, 7, 7, 0}, "1").bytes, (TBytes{0, 0, 0, 0}));
    // Three in two: the pixel in the middle belongs to both by half.
    EXPECT_EQ(shrunk(mFolder, 3, {0, 0, 0, 255, 90, 0, 0, 255, 240, 0, 0, 255}, "2").bytes,
              (TBytes{30, 0, 0, 255, 190, 0, 0, 255}));
}

TEST_F(ToolPicture, AModelBecomesPointsPolygonsAndMappingNumbers)
{
    const std::string model = mFolder.put("square.obj", kSquare);
    const std::string file = mFolder.file("square.zel");
    const CRun run = runTool({"from-model", model, file});
    ASSERT_EQ(run.code, 0) << run.messages;
    EXPECT_THAT(run.messages, IsEmpty());
    const std::string text = contents(file);
    EXPECT_THAT(text, HasSubstr("<Points><![CDATA[\n4 \n0.0 0.0 0.0 \n1.0 0.0 0.0 \n"
                                "1.0 1.0 0.0 \n0.0 1.0 0.0 \n]]></Points>"));
    EXPECT_THAT(text, HasSubstr("4 M 0.0 0.0 0 M 0.25 0.0 1 M 0.25 0.5 2 M 0.0 0.5 3 \n"));
    EXPECT_THAT(text, HasSubstr("<?Application name=\"\" version=\"\"?>"));
}

TEST_F(ToolPicture, PointsAndLinesOfAModelAreLeftOut)
{
    const std::string model = mFolder.put("lines.obj", std::string(kSquare) + "l 1 2\nl 2 3\n");
    const std::string file = mFolder.file("lines.zel");
    const CRun run = runTool({"from-model", model, file});
    ASSERT_EQ(run.code, 0) << run.messages;
    EXPECT_THAT(run.messages, HasSubstr("points and lines, left out: 2\n"));
    EXPECT_THAT(contents(file), HasSubstr("<Polygons><![CDATA[\n1 \n"));
}

TEST_F(ToolPicture, PlacesOfOneMeshShareAPoint)
{
    // Two squares with a common edge, one of whose places is written in two ways, and a third one
    // of another material: a mesh of its own, although it has the places of the first.
    const std::string model = mFolder.put(
        "squares.obj", "v 0 0 0\nv 1 0 0\nv 1 1 0\nv 0 1 0\nv 2 0 0\nv 2 1 0\nv 1 -0 0\n"
                       "usemtl a\nf 1 2 3 4\nf 7 5 6 3\nusemtl b\nf 1 2 3 4\n");
    const std::string file = mFolder.file("squares.zel");
    const CRun run = runTool({"from-model", "--flat", model, file});
    ASSERT_EQ(run.code, 0) << run.messages;
    const std::string first = "0.0 0.0 0.0 \n1.0 0.0 0.0 \n1.0 1.0 0.0 \n0.0 1.0 0.0 \n";
    const std::string text = contents(file);
    EXPECT_THAT(text, HasSubstr("<Points><![CDATA[\n10 \n" + first +
                                "2.0 0.0 0.0 \n2.0 1.0 0.0 \n" + first + "]]>"));
    const std::size_t polygons = text.find("<Polygons><![CDATA[\n3 \n");
    ASSERT_NE(polygons, std::string::npos);
    EXPECT_THAT(text.substr(polygons), HasSubstr(" 4 0 1 2 3 \n"));
    EXPECT_THAT(text.substr(polygons), HasSubstr(" 4 1 4 5 2 \n"));
    EXPECT_THAT(text.substr(polygons), HasSubstr(" 4 6 7 8 9 \n"));
}

TEST_F(ToolPicture, ARewriteKeepsThePreview)
{
    const std::string house = sample("house.zel");
    const std::string kept = mFolder.file("kept.zel");
    ASSERT_EQ(runTool({"rewrite", house, kept}).code, 0);
    const std::string first = mFolder.file("first.png");
    const std::string second = mFolder.file("second.png");
    ASSERT_EQ(runTool({"preview", house, first}).code, 0);
    ASSERT_EQ(runTool({"preview", kept, second}).code, 0);
    EXPECT_EQ(contents(first), contents(second));
}

TEST_F(ToolPicture, ExitCodesTellWhatWentWrong)
{
    const std::string house = sample("house.zel");
    const std::string text = mFolder.put("text.zel", "no document");
    const std::string model = mFolder.put("square.obj", kSquare);
    const std::string missing = mFolder.file("missing");
    const std::string out = mFolder.file("out");
    const std::string nowhere = mFolder.file("missing/out");
    const struct {
        std::vector<std::string> arguments;
        int code;
    } cases[] = {
        {{"from-model", text, out}, 65},
        {{"from-model", model, out, "--preview", text}, 65},
        {{"preview", house, nowhere}, 74},
        {{"from-model", missing, out}, 74},
        {{"from-model", model, nowhere}, 74},
        {{"from-model", model, out, "--preview", missing}, 74},
    };
    for (const auto& item : cases) {
        const CRun run = runTool(item.arguments);
        EXPECT_EQ(run.code, item.code) << testing::PrintToString(item.arguments);
        EXPECT_THAT(run.messages, Not(IsEmpty())) << testing::PrintToString(item.arguments);
    }
    EXPECT_THAT(mFolder.names(), ElementsAre("square.obj", "text.zel"));
}

} // namespace

#endif
