#ifdef ZEL_TOOL // without the tool there is nothing to test

#include "tests/faults/CRounds.h"
#include "tests/faults/CTracedTool.h"
#include "tests/toolRun.h"

#include <csignal>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

using ZelTest::CTracedTool;

// A file that is not read to its end has no errors of its own; those of one that was read are told.
TEST(Interrupt, AtAnySystemCallOfAReadSaysNothingOfTheFile)
{
    if (!CTracedTool::isPossible())
        GTEST_SKIP() << "no process may be traced here";
    const CTempFolder folder;
    const std::string sound = minimalWith("");
    const std::string broken = folder.put("broken.zel", sound.substr(0, sound.find("<Zel.File>")));
    const std::string file = folder.put("scene.zel", sound);
    const std::string output = folder.file("output"), messages = folder.file("messages");
    const CRun whole = runTool({"info", broken});
    EXPECT_NE(whole.messages, "");
    const std::vector<std::string> arguments = {
        "sh",       "-c",    "exec \"$0\" info --json \"$1\" \"$2\" > \"$3\" 2> \"$4\"",
        toolPath(), broken,  file,
        output,     messages};
    const int step = ZelTest::isSanitized() ? 41 : 1;
    int nbStopped = 0;
    bool isOver = false;
    for (int stop = 0; !isOver; stop += step) {
        SCOPED_TRACE(stop);
        CTracedTool tool(arguments);
        for (int i = 0; i < stop && !isOver; ++i)
            isOver = !tool.goToNextStop();
        if (!isOver)
            tool.send(SIGTERM);
        while (!isOver && tool.goToNextStop())
            ;
        EXPECT_THAT(whole.messages, testing::StartsWith(contents(messages)));
        if (!contents(output).empty()) {
            EXPECT_EQ(contents(messages), whole.messages);
        }
        nbStopped += tool.exitCode() == 128 + SIGTERM ? 1 : 0;
    }
    EXPECT_GT(nbStopped, ZelTest::isSanitized() ? 0 : 10);
}

#endif
