#ifdef ZEL_TOOL // without the tool there is nothing to test

#include "tests/support/peakMemory.h"
#include "tests/toolRun.h"

#include <algorithm>
#include <assimp/Importer.hpp>
#include <assimp/postprocess.h>
#include <gtest/gtest.h>

namespace {

constexpr std::size_t kMebibyte = 1024 * 1024;

// A flat terrain of side x side quads. As a document it takes about 300 bytes for each of them.
std::string terrain(int side)
{
    std::string text;
    for (int y = 0; y <= side; ++y)
        for (int x = 0; x <= side; ++x)
            text += "v " + std::to_string(x) + " " + std::to_string(y) + " 0\n";
    for (int y = 0; y < side; ++y)
        for (int x = 0; x < side; ++x) {
            const int corner = y * (side + 1) + x + 1;
            text += "f";
            for (const int point : {corner, corner + 1, corner + side + 2, corner + side + 1})
                text += " " + std::to_string(point);
            text += "\n";
        }
    return text;
}

TEST(ToolMemory, AMeshIsNeverInTheDocument)
{
    if (!ZelTest::canMeterPeaks())
        GTEST_SKIP() << "the sanitizer keeps what is freed";
    const CTempFolder folder;
    const auto peaks = [&](int side, bool isFlat) {
        const std::string model = folder.put("model.obj", terrain(side));
        const std::string file = folder.file("model.zel");
        std::vector<std::string> arguments = {"from-model", model, file};
        if (isFlat)
            arguments.push_back("--flat");
        const CRun from = runTool(arguments);
        const CRun to = runTool({"to-model", file, folder.file("back.obj")});
        EXPECT_EQ(from.code, 0) << from.messages;
        EXPECT_EQ(to.code, 0) << to.messages;
        return std::pair(from.peakBytes, to.peakBytes);
    };
    for (const bool isFlat : {false, true}) {
        SCOPED_TRACE(isFlat ? "flat" : "components");
        const auto [fromSmall, toSmall] = peaks(2, isFlat);
        const auto [fromBig, toBig] = peaks(500, isFlat);
        const std::size_t ofThisProcess = runProgram({"true"}).peakBytes;
        EXPECT_LT(toBig, std::max(toSmall, ofThisProcess) + 8 * kMebibyte);

        const std::size_t import = ZelTest::peakMemoryOf([&] {
            Assimp::Importer importer;
            importer.ReadFile(folder.file("model.obj"),
                              isFlat ? static_cast<unsigned>(aiProcess_PreTransformVertices) : 0U);
        });
        EXPECT_LT(fromBig, std::max(fromSmall, ofThisProcess) + import + 8 * kMebibyte);
    }
}

} // namespace

#endif
