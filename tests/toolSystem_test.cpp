#ifdef ZEL_TOOL // without the tool there is nothing to test

#include "tests/toolRun.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

// What the tool does where it takes a shell or a file system of POSIX to see it.

class ToolSystem : public testing::Test {
protected:
    CTempFolder mFolder;
};

TEST_F(ToolSystem, AClosedOutputIsAnError)
{
    const std::string house = sample("house.zel");
    for (const char* redirection : {">/dev/full", ">&-"}) {
        const std::string line = "exec \"$0\" \"$@\" " + std::string(redirection);
        const CRun run = runProgram({"sh", "-c", line, toolPath(), "info", house});
        EXPECT_EQ(run.code, 74) << redirection;
    }
}

TEST_F(ToolSystem, AFullDiskLeavesOutAsItWas)
{
    const std::string out = mFolder.put("out", "as it was");
    const std::string house = sample("house.zel");
    const std::string limited = "trap '' XFSZ; ulimit -f 16; exec \"$0\" \"$@\"";
    for (const std::string command : {"rewrite", "to-model"}) {
        const CRun run = runProgram({"sh", "-c", limited, toolPath(), command, house, out});
        EXPECT_EQ(run.code, 74) << command << ": " << run.messages;
        EXPECT_EQ(contents(out), "as it was") << command;
    }
    EXPECT_THAT(mFolder.names(), ElementsAre("out"));
}

TEST_F(ToolSystem, OutKeepsItsPermissionsAndItsLinks)
{
    namespace fs = std::filesystem;
    const std::string real = mFolder.put("real.zel", "old");
    const std::string link = mFolder.file("link.zel");
    fs::permissions(real, fs::perms::owner_read | fs::perms::owner_write);
    fs::create_symlink("real.zel", link);
    ASSERT_EQ(runTool({"rewrite", sample("minimal.zel"), link}).code, 0);
    EXPECT_TRUE(fs::is_symlink(link));
    EXPECT_THAT(contents(real), HasSubstr("<Zel.File>"));
    EXPECT_EQ(fs::status(real).permissions(), fs::perms::owner_read | fs::perms::owner_write);
}

TEST_F(ToolSystem, AMessageThatCannotBeWrittenIsAnError)
{
    const std::string file =
        mFolder.put("in.zel", minimalWith("<Foreign><![CDATA[ a ]]></Foreign>"));
    const CRun run =
        runProgram({"sh", "-c", "exec \"$0\" \"$@\" >/dev/full", toolPath(), "check", file});
    EXPECT_EQ(run.code, 74);
}

} // namespace

#endif
