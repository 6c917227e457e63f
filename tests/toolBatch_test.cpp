#ifdef ZEL_TOOL // without the tool there is nothing to test

#include "tests/toolRun.h"

#include <algorithm>
#include <cstdlib>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <map>
#include <nlohmann/json.hpp>
#include <sstream>

// Runs of `zel` over many files: which files, in which order, and what is told of each.

namespace {

namespace fs = std::filesystem;
using nlohmann::json;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::UnorderedElementsAreArray;

std::vector<std::string> operator+(std::vector<std::string> a, const std::vector<std::string>& b)
{
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

std::vector<std::string> lines(const std::string& text)
{
    std::vector<std::string> all;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);)
        all.push_back(line);
    return all;
}

/// Exit codes by file, out of objects or out of a log.
using CCodes = std::map<std::string, int>;

CCodes codesOf(const std::string& output)
{
    CCodes codes;
    for (const std::string& line : lines(output)) {
        const json object = json::parse(line);
        EXPECT_TRUE(codes.emplace(object["file"], object["exit"]).second) << "twice: " << line;
    }
    return codes;
}

CCodes loggedCodes(const std::string& log)
{
    CCodes codes;
    for (const std::string& line : lines(log))
        if (const std::size_t tab = line.find('\t'); tab != std::string::npos)
            codes[line.substr(tab + 1)] = std::stoi(line.substr(0, tab));
    return codes;
}

std::vector<std::string> namesIn(const std::string& textOutput)
{
    std::vector<std::string> names;
    for (const std::string& line : lines(textOutput))
        names.push_back(line.substr(0, line.find('\t')));
    return names;
}

class ToolBatch : public testing::Test {
protected:
    ToolBatch()
    {
        for (const char* folder : {"s", "s/m", "s/m/deep", "s/void"})
            fs::create_directory(mFolder.file(folder));
        for (const char* name : {"s/z.zel", "s/a.zel", "s/m/deep/d.zel", "s/n.zel"})
            put(name);
        mFolder.put("s/note.txt", "no document");
        mFolder.put("s/old.zel.bak", "no document");
        fs::create_symlink("../a.zel", mFolder.file("s/m/link.zel"));
        fs::create_directory_symlink("..", mFolder.file("s/m/loop"));
        fs::create_symlink("nowhere", mFolder.file("s/m/broken.zel"));
    }

    std::string put(const std::string& name) const
    {
        return mFolder.put(name, contents(sample("minimal.zel")));
    }

    /// Runs the tool with a text as its standard input.
    static CRun runOn(const std::string& input, const std::vector<std::string>& arguments)
    {
        return runTool(arguments, input);
    }

    std::string path(const std::string& name) const { return mFolder.file(name); }

    CTempFolder mFolder;
    const std::string mRoot = mFolder.file("s");
    const std::vector<std::string> mFound = {path("s/a.zel"), path("s/m/deep/d.zel"),
                                             path("s/m/link.zel"), path("s/n.zel"),
                                             path("s/z.zel")};
    // How the files may be worked on.
    const std::vector<std::vector<std::string>> mWays = {{}, {"--jobs", "1"}, {"--jobs", "3"}};
};

TEST_F(ToolBatch, TakesTheDocumentsOfFoldersInOrder)
{
    for (const auto& way : mWays) {
        const CRun run = runTool(std::vector<std::string>{"info", "--recursive", mRoot} + way);
        EXPECT_EQ(run.code, 0) << run.messages;
        EXPECT_EQ(namesIn(run.output), mFound);
    }
}

TEST_F(ToolBatch, TakesListsOnStandardInput)
{
    std::string plain;
    std::string nullSeparated;
    for (const std::string& file : mFound) {
        plain += "\n" + file + "\n"; // with lines of nothing
        nullSeparated += file + '\0';
    }
    const std::string withoutEnd = plain.substr(0, plain.size() - 1);
    const struct {
        std::string input;
        std::vector<std::string> arguments;
    } cases[] = {
        {plain, {"info", "-"}},
        {withoutEnd, {"info", "-"}},
        {nullSeparated, {"info", "-0", "-"}},
        {nullSeparated, {"info", "--null", "-"}},
        {mRoot + "\n", {"info", "--recursive", "-"}},
    };
    for (const auto& [input, arguments] : cases)
        for (const auto& way : mWays)
            EXPECT_EQ(namesIn(runOn(input, arguments + way).output), mFound)
                << testing::PrintToString(arguments + way);
    EXPECT_EQ(namesIn(runOn(mFound[1] + "\n", {"info", mFound[0], "-", mFound[2]}).output),
              (std::vector<std::string>{mFound[0], mFound[1], mFound[2]}));
    EXPECT_EQ(runOn("", {"info", "-"}).code, 0);
}

// As the paths would run into each other, and a worker would answer for each.
TEST_F(ToolBatch, AListWithNullBytesNeedsItsOption)
{
    const std::string list = mFound[0] + '\0' + mFound[1] + '\0' + mFound[2] + "\n";
    for (const auto& way : mWays) {
        const CRun run = runOn(list, std::vector<std::string>{"info", "-"} + way);
        EXPECT_EQ(run.code, 64);
        EXPECT_THAT(run.output, IsEmpty());
        EXPECT_EQ(run.messages, "zel: a list with null bytes in it needs the option --null\n");
    }
}

TEST_F(ToolBatch, AComplaintIsOneLineWhateverTheName)
{
    EXPECT_THAT(runTool({"info", "no\nsuch\x1b[2Jfile"}).messages,
                testing::StartsWith("zel: no?such?[2Jfile: can't open: "));
}

TEST_F(ToolBatch, ANameMayHaveALineEnd)
{
    const std::string odd = put("s/o\nd\\n.zel");
    const std::string log = path("log");
    for (const auto& way : mWays) {
        fs::remove(log);
        const std::vector<std::string> arguments =
            std::vector<std::string>{"info", "--json", "-0", "--resume", log, "-"} + way;
        EXPECT_EQ(codesOf(runOn(odd, arguments).output), (CCodes{{odd, 0}}));
        EXPECT_THAT(runOn(odd, arguments).output, IsEmpty());
    }
}

TEST_F(ToolBatch, ABadFileStopsNothing)
{
    const std::string good = mFound[0];
    const std::string odd = sample("legacy.zel"); // has findings
    const std::string text = path("s/note.txt");
    const std::string missing = path("missing");
    const struct {
        const char* command;
        std::vector<std::string> files;
        std::vector<int> codes;
        int worst;
    } cases[] = {
        {"info", {good, odd}, {0, 0}, 0},
        {"info", {text, good}, {65, 0}, 65},
        {"info", {missing, good, text}, {74, 0, 65}, 74},
        {"check", {good, mFound[1]}, {0, 0}, 0},
        {"check", {odd, good}, {1, 0}, 1},
        {"check", {text, odd, good}, {65, 1, 0}, 65},
        {"check", {missing, text, odd, good}, {74, 65, 1, 0}, 74},
    };
    for (const auto& item : cases)
        for (const auto& way : mWays) {
            const std::vector<std::string> arguments =
                std::vector<std::string>{item.command} + item.files + way;
            SCOPED_TRACE(testing::PrintToString(arguments));
            EXPECT_EQ(runTool(arguments).code, item.worst);
            const CRun run =
                runTool(arguments + std::vector<std::string>{"--json", "--resume", path("log")});
            fs::remove(path("log"));
            EXPECT_EQ(run.code, item.worst);
            CCodes expected;
            for (std::size_t i = 0; i < item.files.size(); ++i)
                expected[item.files[i]] = item.codes[i];
            EXPECT_EQ(codesOf(run.output), expected);
        }
}

TEST_F(ToolBatch, TextIsTheSameInEveryWay)
{
    const std::vector<std::string> files = {sample("legacy.zel"), path("s/note.txt"), mFound[0],
                                            sample("house.zel"), sample("legacy.zel")};
    for (const std::string command : {"info", "check"}) {
        const std::string plain = runTool(std::vector<std::string>{command} + files).output;
        EXPECT_THAT(plain, HasSubstr("legacy.zel\t"));
        for (const auto& way : mWays)
            EXPECT_EQ(runTool(std::vector<std::string>{command} + files + way).output, plain);
    }
}

TEST_F(ToolBatch, OneObjectTellsAllAboutAFile)
{
    const std::string legacy = sample("legacy.zel");
    const std::string text = path("s/note.txt");
    for (const auto& way : mWays) {
        const std::vector<std::string> options =
            std::vector<std::string>{"--json", "--shard", "1/1"} + way;
        const json info =
            json::parse(runTool(std::vector<std::string>{"info", legacy} + options).output);
        EXPECT_EQ(info["version"], "2.0.1");
        EXPECT_EQ(info.count("error"), 0U);
        const json bad =
            json::parse(runTool(std::vector<std::string>{"info", text} + options).output);
        EXPECT_EQ(bad["error"], text + ": not readable");
        EXPECT_EQ(bad["accepted"], false);

        // Each finding is as the plain command tells it.
        json findings = json::array();
        for (const std::string& line : lines(runTool({"check", "--json", legacy}).output)) {
            json finding = json::parse(line);
            finding.erase("file");
            findings.push_back(finding);
        }
        ASSERT_GT(findings.size(), 1U);
        const json check =
            json::parse(runTool(std::vector<std::string>{"check", legacy} + options).output);
        EXPECT_EQ(check, json({{"file", legacy}, {"exit", 1}, {"findings", findings}}));
    }
}

TEST_F(ToolBatch, ShardsPartTheFiles)
{
    std::vector<std::string> files = mFound;
    for (int i = 0; i < 40; ++i)
        files.push_back(path("no" + std::to_string(i) + ".zel")); // missing ones count too
    std::string forwards;
    std::string backwards;
    for (const std::string& file : files) {
        forwards += file + "\n";
        backwards.insert(0, file + "\n");
    }
    for (const int nb : {1, 2, 7}) {
        std::vector<std::string> all;
        for (int i = 1; i <= nb; ++i) {
            const std::vector<std::string> arguments = {
                "info", "--json", "-", "--shard", std::to_string(i) + "/" + std::to_string(nb)};
            const CCodes some = codesOf(runOn(forwards, arguments).output);
            EXPECT_EQ(codesOf(runOn(backwards, arguments).output), some);
            EXPECT_EQ(codesOf(runOn(backwards, arguments + mWays[2]).output), some);
            EXPECT_FALSE(some.empty());
            for (const auto& [file, code] : some)
                all.push_back(file);
        }
        EXPECT_THAT(all, UnorderedElementsAreArray(files)) << nb;
    }
}

TEST_F(ToolBatch, AShardMayBeEmpty)
{
    const std::string log = path("log");
    std::size_t nb = 0;
    for (const char* const shard : {"1/3", "2/3", "3/3"}) {
        fs::remove(log);
        const CRun run = runTool({"info", "--shard", shard, "--resume", log, mFound[0]});
        EXPECT_EQ(run.code, 0) << run.messages;
        EXPECT_EQ(loggedCodes(contents(log)).size(), lines(run.output).size());
        nb += lines(run.output).size();
    }
    EXPECT_EQ(nb, 1U);
}

// Other versions and other machines must agree.
TEST_F(ToolBatch, TheShardOfAPathIsForEver)
{
    std::string list;
    for (char c = 'a'; c <= 'h'; ++c)
        list += std::string("no/such/") + c + ".zel\n";
    std::string shards(8, '?');
    for (const char* const shard : {"1/3", "2/3", "3/3"})
        for (const auto& [file, code] :
             codesOf(runOn(list, {"info", "--json", "-", "--shard", shard}).output))
            shards[static_cast<std::size_t>(file[8] - 'a')] = *shard;
    EXPECT_EQ(shards, "13321211");
}

TEST_F(ToolBatch, ResumeLeavesOutWhatIsDone)
{
    const std::string missing = path("missing.zel");
    const std::string text = path("s/note.txt");
    for (const auto& way : mWays) {
        const std::string log = path("log");
        fs::remove(log);
        fs::remove(missing);
        const std::vector<std::string> arguments =
            std::vector<std::string>{"check", "--json", "--resume", log, mFound[0], missing, text} +
            way;
        EXPECT_EQ(runTool(arguments).code, 74);
        EXPECT_EQ(lines(contents(log)).front(), "zel check");
        EXPECT_EQ(loggedCodes(contents(log)), (CCodes{{mFound[0], 0}, {missing, 74}, {text, 65}}));

        // What was missing is tried again, and what is done counts for the exit code.
        put("missing.zel");
        const CRun run = runTool(arguments + std::vector<std::string>{mFound[1]});
        EXPECT_EQ(codesOf(run.output), (CCodes{{missing, 0}, {mFound[1], 0}}));
        EXPECT_EQ(run.code, 65);
        EXPECT_THAT(runTool(arguments).output, IsEmpty());
    }
}

TEST_F(ToolBatch, ResumeToleratesALineThatIsCutShort)
{
    const std::string first = mFound[0];
    const std::string whole = "zel info\n0\t" + first + "\n";
    const struct {
        std::string log;
        std::size_t nbLeft;
    } cases[] = {
        {"", 2},
        {"zel in", 2},
        {"zel info\n", 2},
        {"zel info\n0\t" + first, 2}, // might have gone on
        {whole, 1},
        {whole + "0", 1},
        {whole + "0\t" + mFound[1].substr(0, 9), 1},
        {"zel info\r\n", 99},
        {"zel check\n0\t" + first + "\n", 99},
        {"zel info\nfirst\n", 99},
        {"zel info\n0 " + first + "\n", 99},
        {"precious data", 99},
        {"precious data\n", 99},
    };
    for (const auto& [log, nbLeft] : cases) {
        const std::string file = mFolder.put("log", log);
        const CRun run = runTool({"info", "--resume", file, first, mFound[1]});
        if (nbLeft == 99) {
            EXPECT_EQ(run.code, 64) << log;
            EXPECT_EQ(contents(file), log);
            continue;
        }
        EXPECT_EQ(run.code, 0) << log << run.messages;
        EXPECT_EQ(lines(run.output).size(), nbLeft) << log;
        EXPECT_EQ(contents(file), whole + "0\t" + mFound[1] + "\n");
    }
}

TEST_F(ToolBatch, ResumeIsOfOneWayToRewrite)
{
    const std::string log = path("log");
    const std::string file = mFound[0];
    const std::string out = path("o\nut");
    const std::vector<std::vector<std::string>> ways = {
        {"--in-place"},           {"--in-place", "--force"},
        {"--in-place", "--bare"}, {"--in-place", "--min-version", "6.0.0"},
        {"--output-dir", out},
    };
    const std::vector<std::string> command = {"rewrite", "--json", "--resume", log, file};
    for (const auto& way : ways) {
        fs::remove(log);
        EXPECT_EQ(codesOf(runTool(command + way).output), (CCodes{{file, 0}}));
        const std::string noted = contents(log);
        EXPECT_EQ(lines(noted).size(), 2U) << noted;
        for (const auto& other : ways) {
            const CRun run = runTool(command + other);
            EXPECT_EQ(run.code, other == way ? 0 : 64) << noted << testing::PrintToString(other);
            EXPECT_THAT(run.output, IsEmpty());
            EXPECT_EQ(contents(log), noted);
        }
    }
}

TEST_F(ToolBatch, RewritesInPlaceOrBelowAFolder)
{
    const std::string house = contents(sample("house.zel"));
    const std::string expected = path("expected");
    ASSERT_EQ(runTool({"rewrite", sample("house.zel"), expected}).code, 0);
    ASSERT_NE(contents(expected), house);
    for (const auto& way : mWays) {
        const std::string file = mFolder.put("s/house.zel", house);
        const std::string text = mFolder.put("s/text.zel", "no document");
        const std::string out = path("out");
        fs::remove_all(out);

        CRun run = runTool(std::vector<std::string>{"rewrite", "--json", "--output-dir", out,
                                                    "--recursive", mRoot} +
                           way);
        EXPECT_EQ(run.code, 65) << run.messages;
        EXPECT_EQ(codesOf(run.output).size(), mFound.size() + 2);
        EXPECT_EQ(contents(file), house);
        EXPECT_EQ(contents(out + file), contents(expected));
        EXPECT_FALSE(fs::exists(out + text));
        for (const std::string& each : mFound)
            EXPECT_TRUE(fs::is_regular_file(out + each)) << each;

        run = runTool(std::vector<std::string>{"rewrite", "--in-place", text, file} + way);
        EXPECT_EQ(run.code, 65) << run.messages;
        EXPECT_THAT(run.output, IsEmpty());
        EXPECT_THAT(run.messages, HasSubstr(text + ": not readable"));
        EXPECT_EQ(contents(file), contents(expected));
        EXPECT_EQ(contents(text), "no document");
        fs::remove(file);
        fs::remove(text);
    }
}

TEST_F(ToolBatch, AFileKeepsItsPathBelowTheFolder)
{
    const struct {
        const char* file;
        const char* target; // null if refused
    } cases[] = {
        {"a.zel", "a.zel"},
        {"./m/../a.zel", "a.zel"},
        {"m//deep/d.zel", "m/deep/d.zel"},
        {"m/deep/../../a.zel", "a.zel"},
        {"../s/a.zel", nullptr},
        {"m/../../s/a.zel", nullptr},
        {"m/loop/../top.zel", nullptr}, // by the link it is not in m
        {"m/loop/a.zel", "m/loop/a.zel"},
    };
    put("top.zel");
    for (const auto& [file, target] : cases) {
        fs::remove_all(path("out"));
        const CRun run =
            runProgram({"sh", "-c", "cd \"$1\" && exec \"$0\" rewrite --output-dir ../out -- $2",
                        toolPath(), mRoot, file});
        EXPECT_EQ(run.code, target ? 0 : 74) << file << run.messages;
        if (target)
            EXPECT_TRUE(fs::is_regular_file(path("out/") + target)) << file;
        else
            EXPECT_FALSE(fs::exists(path("out"))) << file;
    }
}

TEST_F(ToolBatch, NoTwoFilesGetOnePlaceBelowTheFolder)
{
    for (const auto& way : mWays) {
        fs::remove_all(path("out"));
        // /x/a.zel and x/a.zel would.
        const CRun run =
            runProgram(std::vector<std::string>{
                           "sh", "-c",
                           "cd \"$1\" && shift && exec \"$0\" rewrite --output-dir ../out "
                           "--json \"$@\"",
                           toolPath(), mRoot, "a.zel", mFound[4], "n.zel"} +
                       way);
        EXPECT_EQ(run.code, 74);
        EXPECT_EQ(codesOf(run.output), (CCodes{{"a.zel", 0}, {mFound[4], 74}, {"n.zel", 0}}));
        EXPECT_EQ(run.messages,
                  "zel: " + mFound[4] + ": is a whole path, unlike those ahead of it\n");
        EXPECT_TRUE(fs::exists(path("out/a.zel")));
        EXPECT_TRUE(fs::exists(path("out/n.zel")));
        EXPECT_FALSE(fs::exists(path("out") + mFound[4]));
    }
}

TEST_F(ToolBatch, RewriteDoesNotTakeWhatItMade)
{
    const std::string out = path("s/m/out");
    for (int i = 0; i < 2; ++i) {
        const CRun run = runTool({"rewrite", "--json", "--output-dir", out, "--recursive", mRoot});
        EXPECT_EQ(codesOf(run.output).size(), mFound.size());
        EXPECT_EQ(runTool({"rewrite", "--output-dir", mRoot, "--recursive", mRoot}).code, 74);
    }
}

TEST_F(ToolBatch, RewritePassesItsOptionsOn)
{
    std::string text = contents(sample("minimal.zel"));
    const std::string versions = "library=\"6.0.6\" file=\"6.0\"";
    text.replace(text.find(versions), versions.size(), "library=\"6.9.0\" file=\"6.0\"");
    for (const auto& way : mWays) {
        const std::string file = mFolder.put("n.zel", text);
        const std::vector<std::string> inPlace = {"rewrite", "--in-place", file};
        EXPECT_EQ(runTool(inPlace + way).code, 65);
        EXPECT_EQ(contents(file), text);
        const CRun run =
            runTool(inPlace + way + std::vector<std::string>{"--force", "--min-version", "5.12.3"});
        EXPECT_EQ(run.code, 0) << run.messages;
        EXPECT_THAT(contents(file), HasSubstr("min_version=\"5.12.3\""));
    }
}

TEST_F(ToolBatch, RefusesWhatMakesNoSense)
{
    const std::string out = path("out");
    const std::string in = mFound[0];
    const std::vector<std::vector<std::string>> cases = {
        {"info", "--recursive"},
        {"info", "--jobs", "0", in},
        {"info", "--jobs", "513", in},
        {"info", "--jobs", "two", in},
        {"info", "--shard", "0/2", in},
        {"info", "--shard", "3/2", in},
        {"info", "--shard", "1/0", in},
        {"info", "--shard", "1", in},
        {"info", "--shard", "1/2/3", in},
        {"info", "--shard", "-1/2", in},
        {"info", "--resume", path("missing/log"), in},
        {"rewrite", "--in-place"},
        {"rewrite", "--in-place", "--output-dir", out, in},
        {"rewrite", "--output-dir", "", in, out}, // not a save of one file as the other
        {"info", in, "--resume", ""},
        {"rewrite", "--recursive", mRoot, out},
        {"rewrite", "--json", in, out},
        {"rewrite", "--jobs", "2", in, out},
        {"rewrite", "--resume", path("log"), in, out},
    };
    for (const std::vector<std::string>& arguments : cases) {
        const int code = arguments.back() == in && arguments[1] == "--resume" ? 74 : 64;
        EXPECT_EQ(runTool(arguments).code, code) << testing::PrintToString(arguments);
        EXPECT_FALSE(fs::exists(out));
    }
    EXPECT_EQ(runTool({"info", mRoot}).code, 74); // a folder, without --recursive
}

TEST_F(ToolBatch, AFullDiskStopsTheRun)
{
    const CRun run = runProgram(
        {"sh", "-c", "exec \"$0\" info \"$1\" \"$1\" > /dev/full", toolPath(), mFound[0]});
    EXPECT_EQ(run.code, 74);
    EXPECT_EQ(lines(run.messages).size(), 1U) << run.messages;
}

TEST_F(ToolBatch, AFullDiskOfTheLogStopsTheRun)
{
    constexpr int kNb = 60;
    std::string list;
    for (int i = 0; i < kNb; ++i)
        list += put("s/" + std::to_string(i) + ".zel") + "\n";
    const std::string input = mFolder.put("list", list);
    const std::string log = path("log");
    for (const auto& way : mWays) {
        fs::remove(log);
        // One block is 512 or 1024 bytes.
        const CRun run =
            runProgram(std::vector<std::string>{"sh", "-c",
                                                "ulimit -f 1; in=$1; shift; exec \"$0\" info "
                                                "--resume \"$@\" - < \"$in\" > /dev/null",
                                                toolPath(), input, log} +
                       way);
        EXPECT_EQ(run.code, 74);
        EXPECT_THAT(run.messages, testing::StartsWith("zel: " + log + ": can't write: "));
        EXPECT_EQ(lines(run.messages).size(), 1U) << run.messages;
        const std::size_t nbDone = loggedCodes(contents(log)).size();
        EXPECT_GT(nbDone, 1U);
        EXPECT_LT(nbDone, static_cast<std::size_t>(kNb));
        EXPECT_EQ(runOn(list, std::vector<std::string>{"info", "--resume", log, "-"} + way).code,
                  0);
        EXPECT_EQ(lines(contents(log)).size(), kNb + 1U); // each once, the head, and no pieces
    }
}

TEST_F(ToolBatch, FewFilesMayBeOpen)
{
    const CRun run =
        runProgram({"sh", "-c", "ulimit -n 64; exec timeout 20 \"$0\" info --jobs 512 $1",
                    toolPath(), mFound[0]});
    EXPECT_EQ(run.code, 0) << run.messages;
    EXPECT_EQ(namesIn(run.output), (std::vector<std::string>{mFound[0]}));
}

TEST_F(ToolBatch, ABigFolderComesInOrderToo)
{
    if (!std::getenv("ZEL_TEST_FULL"))
        GTEST_SKIP() << "only with ZEL_TEST_FULL set";
    constexpr int kNb = 70'000; // more than twice the names that are held at once
    fs::create_directory(path("big"));
    for (int i = 0; i < kNb; ++i)
        mFolder.put("big/" + std::to_string(i * 7919 % kNb) + ".zel", "");
    const std::vector<std::string> names =
        namesIn(runTool({"info", "--recursive", path("big")}).output);
    EXPECT_EQ(names.size(), static_cast<std::size_t>(kNb));
    EXPECT_TRUE(std::is_sorted(names.begin(), names.end()));
    EXPECT_EQ(std::adjacent_find(names.begin(), names.end()), names.end());
}

} // namespace

#endif
