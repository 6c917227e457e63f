#ifdef ZEL_TOOL // without the tool there is nothing to test

#include "tests/toolProcess.h"
#include "tests/toolRun.h"

#include <csignal>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

constexpr const char* kUnknownSection = "<Foreign><![CDATA[ a ]]></Foreign>";

class ToolInterrupt : public testing::TestWithParam<int> {
protected:
    /// Ends the process by the signal and gives its exit code, -1 if the signal killed it.
    static int stop(pid_t process)
    {
        kill(process, GetParam());
        return exitCode(process);
    }

    CTempFolder mFolder;
};

TEST_P(ToolInterrupt, StopsALoadAndLeavesTheTarget)
{
    const std::string in = mFolder.put("in.zel", minimalWith(kUnknownSection));
    const std::string out = mFolder.put("out", "as it was");
    const std::string errors = mFolder.file("errors");
    const CFullPipe pipe(errors);
    for (const std::vector<std::string>& arguments : {std::vector<std::string>{"rewrite", in, out},
                                                      {"rewrite", "--bare", in, out},
                                                      {"to-model", in, out},
                                                      {"show", in}}) {
        const pid_t process = startTool(arguments, {{STDERR_FILENO, errors}});
        EXPECT_TRUE(waitFor(process, [&] { return isHeld(process, GetParam()); }));
        EXPECT_EQ(stop(process), 128 + GetParam()) << testing::PrintToString(arguments);
        EXPECT_EQ(contents(out), "as it was");
        EXPECT_THAT(mFolder.names(), ElementsAre("errors", "in.zel", "out"));
    }
}

TEST_P(ToolInterrupt, StopsASaveAndRemovesTheFileBesideTheTarget)
{
    const std::string in = mFolder.put("in.zel", textWithMessageOnSave());
    const std::string out = mFolder.put("out", "as it was");
    const std::string errors = mFolder.file("errors");
    const CFullPipe pipe(errors);
    const pid_t process = startTool({"rewrite", "--bare", in, out}, {{STDERR_FILENO, errors}});
    EXPECT_TRUE(waitFor(
        process, [&] { return mFolder.names().size() == 4 && isHeld(process, GetParam()); }));
    EXPECT_EQ(stop(process), 128 + GetParam());
    EXPECT_EQ(contents(out), "as it was");
    EXPECT_THAT(mFolder.names(), ElementsAre("errors", "in.zel", "out"));
}

TEST_P(ToolInterrupt, StopsAWriteToAPipeThatNobodyReads)
{
    const std::string output = mFolder.file("output");
    const CFullPipe pipe(output);
    for (const std::string command : {"info", "show"}) {
        const pid_t process =
            startTool({command, sample("minimal.zel")}, {{STDOUT_FILENO, output}});
        EXPECT_TRUE(waitFor(process, [&] { return isHeld(process, GetParam()); }));
        EXPECT_EQ(stop(process), 128 + GetParam()) << command;
    }
}

INSTANTIATE_TEST_SUITE_P(All, ToolInterrupt, testing::Values(SIGINT, SIGTERM),
                         [](const testing::TestParamInfo<int>& item) {
                             return item.param == SIGINT ? "CtrlC" : "Terminate";
                         });

class ToolProgress : public testing::Test {
protected:
    CTempFolder mFolder;
};

TEST_F(ToolProgress, IsShownOnATerminalAlone)
{
    const std::string in =
        mFolder.put("in.zel", minimalWith("<Points><![CDATA[\n1 \n0.0 0.0 0.0 \n]]></Points>"));
    const std::string out = mFolder.file("out.zel");
    const CRun file = runTool({"rewrite", in, out});
    ASSERT_EQ(file.code, 0);
    EXPECT_THAT(file.messages, IsEmpty());

    const std::string line = "'" + std::string(toolPath()) + "' rewrite '" + in + "' '" + out + "'";
    const CRun terminal = runProgram({"script", "-qec", line, mFolder.file("typescript")});
    ASSERT_EQ(terminal.code, 0) << terminal.output << terminal.messages;
    EXPECT_THAT(terminal.output, HasSubstr("\r[.........................]   0 %"));
    EXPECT_THAT(terminal.output, testing::EndsWith("\r\033[K")); // and it is gone at the end
}

} // namespace

#endif
