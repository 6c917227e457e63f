#ifdef ZEL_TOOL // without the tool there is nothing to test

#include "tests/toolHelp.h"
#include "tests/toolRun.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <regex>
#include <set>

namespace {

using testing::Contains;
using testing::HasSubstr;

std::string manual()
{
    const std::string path = std::string(ZEL_TEST_DATA) + "/../../tools/zel.1";
    return std::regex_replace(contents(path), std::regex(R"(\\-)"), "-");
}

/// The part of the manual about one command.
std::string section(const std::string& command)
{
    const std::string text = manual();
    const std::size_t begin = text.find("\n.SS " + command + " ");
    if (begin == std::string::npos)
        return "";
    return text.substr(begin, text.find("\n.S", begin + 1) - begin);
}

std::set<std::string> commands()
{
    return commandsIn(runTool({"--help"}).output);
}

TEST(ToolManual, HasEveryCommandAndOptionOfTheHelp)
{
    ASSERT_THAT(commands(), Contains("rewrite"));
    for (const std::string& command : commands()) {
        const std::string help = runTool({command, "--help"}).output;
        const std::set<std::string> options = optionsIn(help);
        EXPECT_THAT(options, Contains("--help")) << command;
        EXPECT_EQ(found(section(command), "(--[a-z-]+)"), options) << command;
    }
    EXPECT_THAT(found(runTool({"rewrite", "--help"}).output, "\n  (--[a-z-]+)"),
                testing::ElementsAre("--bare", "--force", "--in-place", "--jobs", "--json",
                                     "--min-version", "--output-dir", "--recursive", "--resume",
                                     "--shard"));
}

TEST(ToolManual, HasNoCommandThatTheHelpLacks)
{
    EXPECT_EQ(found(manual(), "\n\\.SS ([a-z-]+)"), commands());
}

TEST(ToolManual, HasTheExamplesOfTheHelp)
{
    for (const std::string& command : commands()) {
        const std::string help = runTool({command, "--help"}).output;
        const std::size_t begin = help.find("Example: ");
        ASSERT_NE(begin, std::string::npos) << command;
        const std::string example = help.substr(begin + 9, help.find('\n', begin) - begin - 9);
        EXPECT_THAT(example, HasSubstr("zel " + command + " "));
        EXPECT_THAT(manual(), HasSubstr("\n" + example + "\n"));
    }
}

TEST(ToolManual, HasTheCommandsThatHaveAnotherInFront)
{
    for (const std::string command : {"export", "import"}) {
        const std::string help = runTool({"shader", command, "--help"}).output;
        EXPECT_THAT(section("shader " + command), HasSubstr(" FILE NAME ")) << command;
        const std::size_t begin = help.find("Example: ");
        ASSERT_NE(begin, std::string::npos) << command;
        const std::string example = help.substr(begin + 9, help.find('\n', begin) - begin - 9);
        EXPECT_THAT(example, HasSubstr("zel shader " + command + " "));
        EXPECT_NE(manual().find("\n" + example + "\n"), std::string::npos) << example;
    }
}

TEST(ToolManual, HasTheCodesOfTheChecks)
{
    const std::set<std::string> codes =
        found(runTool({"check", "--help"}).output, "\n *([EW][0-9]{3}) ");
    EXPECT_THAT(codes, Contains("E001"));
    EXPECT_EQ(found(section("check"), "\n\\.B ([EW][0-9]{3})\n"), codes);
}

} // namespace

#endif
