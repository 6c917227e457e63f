#ifdef ZEL_TOOL // without the tool there is nothing to test

#include "tests/toolRun.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <sstream>

// Runs of `zel` over many files. toolBatch_test.cpp has more of them and needs a shell and links.

namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr const char* kNoWorkers =
    "zel: this system has no worker processes; the files come one after the other\n";

class ToolBatch : public testing::Test {
protected:
    ToolBatch()
    {
        for (const char* folder : {"s", "s/m", "s/void"})
            fs::create_directory(mFolder.file(folder));
        for (const char* name : {"s/z.zel", "s/\u00e4h.zel", "s/m/d.zel"})
            mFolder.put(name, contents(sample("minimal.zel")));
        mFolder.put("s/note.txt", "no document");
    }

    std::string path(const std::string& name) const { return mFolder.file(name); }

    /// The first field of each line, up to a tab.
    static std::vector<std::string> fields(const std::string& text)
    {
        std::vector<std::string> all;
        std::istringstream stream(text);
        for (std::string line; std::getline(stream, line);)
            all.push_back(line.substr(0, line.find('\t')));
        return all;
    }

    CTempFolder mFolder;
    const std::string mRoot = mFolder.file("s");
    const std::vector<std::string> mFound = {path("s/m/d.zel"), path("s/z.zel"),
                                             path("s/\u00e4h.zel")};
};

TEST_F(ToolBatch, TakesTheDocumentsOfFoldersInOrder)
{
    const CRun run = runTool({"info", "--recursive", mRoot});
    EXPECT_EQ(run.code, 0) << run.messages;
    EXPECT_EQ(fields(run.output), mFound);
}

TEST_F(ToolBatch, JobsComeOneAfterTheOther)
{
    const CRun run = runTool({"info", "--jobs", "3", "--recursive", mRoot});
    EXPECT_EQ(run.code, 0);
    EXPECT_EQ(run.messages, kNoWorkers);
    EXPECT_EQ(fields(run.output), mFound);
}

TEST_F(ToolBatch, TakesListsOnStandardInput)
{
    for (const std::string& end : {std::string("\n"), std::string("\r\n"), std::string(1, '\0')}) {
        std::string list;
        for (const std::string& file : mFound)
            list += file + end;
        std::vector<std::string> arguments = {"info", "-"};
        if (end[0] == '\0')
            arguments.push_back("--null");
        EXPECT_EQ(fields(runTool(arguments, list).output), mFound);
    }
}

TEST_F(ToolBatch, ABadFileStopsNothing)
{
    const std::string missing = path("missing.zel");
    const std::string text = path("s/note.txt");
    const CRun run = runTool({"check", "--json", "--shard", "1/1", missing, text, mFound[0]});
    EXPECT_EQ(run.code, 74);
    std::vector<int> codes;
    for (const std::string& line : fields(run.output))
        codes.push_back(nlohmann::json::parse(line)["exit"]);
    EXPECT_THAT(codes, ElementsAre(74, 65, 0));
}

TEST_F(ToolBatch, ShardsPartTheFiles)
{
    std::size_t nb = 0;
    for (const char* const shard : {"1/2", "2/2"})
        nb += fields(runTool({"info", "--shard", shard, "--recursive", mRoot}).output).size();
    EXPECT_EQ(nb, mFound.size());
    // As on every other system.
    for (const auto& [file, shard] : {std::pair("no/such/a.zel", "1/3"), {"no/such/b.zel", "3/3"}})
        EXPECT_EQ(fields(runTool({"info", "--json", "--shard", shard, file}).output).size(), 1U);
}

TEST_F(ToolBatch, ResumeLeavesOutWhatIsDone)
{
    const std::string log = path("log");
    const std::vector<std::string> arguments = {"info", "--resume", log, "--recursive", mRoot};
    EXPECT_EQ(fields(runTool(arguments).output), mFound);
    const std::string noted = contents(log);
    EXPECT_EQ(fields(noted).size(), mFound.size() + 1);
    EXPECT_THAT(noted, testing::StartsWith("zel info\n0\t"));
    EXPECT_THAT(noted, HasSubstr("\\\\d.zel\n")); // each backslash twice
    EXPECT_THAT(runTool(arguments).output, IsEmpty());
    EXPECT_EQ(contents(log), noted);

    const std::string shorter = noted.substr(0, noted.size() - 3); // a kill while it wrote
    mFolder.put("log", shorter);
    EXPECT_THAT(fields(runTool(arguments).output), ElementsAre(mFound.back()));
    EXPECT_EQ(contents(log), noted);
}

TEST_F(ToolBatch, RewritesInPlace)
{
    const std::string house = mFolder.put("s/house.zel", contents(sample("house.zel")));
    const std::string expected = path("expected");
    ASSERT_EQ(runTool({"rewrite", house, expected}).code, 0);
    ASSERT_NE(contents(house), contents(expected));
    const CRun run = runTool({"rewrite", "--in-place", path("s/note.txt"), house});
    EXPECT_EQ(run.code, 65) << run.messages;
    EXPECT_EQ(contents(house), contents(expected));
    EXPECT_EQ(contents(path("s/note.txt")), "no document");
}

TEST_F(ToolBatch, RewriteDoesNotTakeWhatItMade)
{
    const std::string out = path("s/m/out");
    for (int i = 0; i < 2; ++i) {
        const CRun run = runTool({"rewrite", "--json", "--output-dir", out, "--recursive", mRoot});
        EXPECT_EQ(run.code, 0) << run.messages;
        EXPECT_EQ(fields(run.output).size(), mFound.size());
    }
    EXPECT_EQ(runTool({"rewrite", "--output-dir", mRoot, "--recursive", mRoot}).code, 74);
}

} // namespace

#endif
