// Without the tool there is nothing to test, and shells are those of POSIX.
#if defined(ZEL_TOOL) && !defined(_WIN32)

#include "tests/toolHelp.h"
#include "tests/toolRun.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <set>

// What the shells complete, against the help, which the manual is checked against too.

namespace {

using testing::Contains;

using CWords = std::vector<std::string>;

/// A shell with what asks its completion about the words behind $1, the last of which is begun. $0
/// is the completion, and the tool is in the search path.
struct CShell {
    const char* name;
    const char* script;
};

void PrintTo(const CShell& shell, std::ostream* stream)
{
    *stream << shell.name;
}

constexpr CShell kShells[] = {
    {"bash", "source \"$0\"; shift; COMP_WORDS=(zel \"$@\"); COMP_CWORD=$#; _zel; "
             "printf '%s\\n' \"${COMPREPLY[@]}\""},
    {"zsh",
     "compadd() { [[ $1 != -- ]] || shift; print -l -- \"$@\" }; ask() { source $completion }; "
     "completion=$0; shift; words=(zel \"$@\"); CURRENT=$#words; ask"},
    {"fish",
     "source $argv[1]; complete --do-complete \"zel $argv[3..-1]\" | string replace -r '\\t.*' ''"},
};

class ToolCompletion : public testing::TestWithParam<CShell> {
protected:
    void SetUp() override
    {
        const std::string name = GetParam().name;
        if (runProgram({"sh", "-c", "command -v " + name}).code != 0)
            GTEST_SKIP() << name << " is not installed";
    }

    /// What the shell offers for the last word.
    static std::set<std::string> offered(const CWords& words)
    {
        const std::string name = GetParam().name;
        const std::string completion = std::string(ZEL_TEST_DATA) + "/../../packaging/zel." + name;
        const std::filesystem::path folder = std::filesystem::path(toolPath()).parent_path();
        // A check for leaks may wait for ever below zsh.
        CWords arguments = {
            "sh",
            "-c",
            "export PATH=$0:$PATH ASAN_OPTIONS=$ASAN_OPTIONS:detect_leaks=0; exec \"$@\"",
            folder.string(),
            name,
            "-c",
            GetParam().script,
            completion,
            "--"};
        arguments.insert(arguments.end(), words.begin(), words.end());
        const CRun run = runProgram(arguments);
        EXPECT_EQ(run.messages, "") << testing::PrintToString(words);
        return found("\n" + run.output, "\n([^\n]+)");
    }
};

TEST_P(ToolCompletion, OffersEveryCommand)
{
    std::set<std::string> commands = commandsIn(runTool({"--help"}).output);
    ASSERT_THAT(commands, Contains("rewrite"));
    std::set<std::string> all = offered({""});
    all.erase("--help"); // which some offer only for a word that begins with dashes
    EXPECT_EQ(all, commands);
    EXPECT_EQ(offered({"shader", ""}), commandsIn(runTool({"shader", "--help"}).output));
}

TEST_P(ToolCompletion, OffersEveryOptionOfACommand)
{
    std::vector<CWords> all = {{"shader", "export"}, {"shader", "import"}};
    for (const std::string& command : commandsIn(runTool({"--help"}).output))
        if (command != "shader")
            all.push_back({command});
    for (CWords words : all) {
        CWords help = words;
        help.push_back("--help");
        words.push_back("--");
        const std::set<std::string> options = optionsIn(runTool(help).output);
        EXPECT_THAT(options, Contains("--help"));
        EXPECT_EQ(offered(words), options) << testing::PrintToString(words);
    }
}

INSTANTIATE_TEST_SUITE_P(Shells, ToolCompletion, testing::ValuesIn(kShells),
                         [](const auto& shell) { return shell.param.name; });

} // namespace

#endif
