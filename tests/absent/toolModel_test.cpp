#include "tests/toolRun.h"

#include <gtest/gtest.h>

// In place of the tests that read and write models and pictures, where a library for them is
// missing.

TEST(ToolModel, AndItsLibrary)
{
    GTEST_SKIP() << "no Assimp or no libpng for this system: models, cameras and pictures";
}

TEST(ToolModel, IsRefusedWithoutItsLibrary)
{
    const CTempFolder folder;
    const std::string house = sample("house.zel");
    const std::string model = folder.put("a.obj", "v 0 0 0\n");
    const struct {
        std::vector<std::string> arguments;
        std::string library;
    } cases[] = {
        {{"from-model", model, folder.file("a.zel")}, "Assimp"},
        {{"preview", house, folder.file("a.png")}, "libpng"},
    };
    for (const auto& item : cases) {
        const CRun run = runTool(item.arguments);
        if (run.code == 0)
            continue; // this one is there
        EXPECT_EQ(run.code, 69);
        EXPECT_NE(run.messages.find("this zel is built without " + item.library + "\n"),
                  std::string::npos)
            << run.messages;
    }
    EXPECT_LE(folder.names().size(), 2U);
}
