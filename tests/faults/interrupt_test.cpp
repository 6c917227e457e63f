#ifdef ZEL_TOOL // without the tool there is nothing to test

#include "tests/faults/CRounds.h"
#include "tests/faults/CTracedTool.h"
#include "tests/toolRun.h"

#include <csignal>
#include <gtest/gtest.h>

using ZelTest::CTracedTool;

// A file that is not read to its end has no errors of its own.
TEST(Interrupt, AtAnySystemCallOfAReadSaysNothingOfTheFile)
{
    if (!CTracedTool::isPossible())
        GTEST_SKIP() << "no process may be traced here";
    const CTempFolder folder;
    const std::string file = folder.put("scene.zel", minimalWith("")), messages = folder.file("2");
    const std::vector<std::string> arguments = {
        "sh", "-c", "exec \"$0\" info \"$1\" > /dev/null 2> \"$2\"", toolPath(), file, messages};
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
        EXPECT_EQ(contents(messages), "");
        nbStopped += tool.exitCode() == 128 + SIGTERM ? 1 : 0;
    }
    EXPECT_GT(nbStopped, ZelTest::isSanitized() ? 0 : 10);
}

#endif
