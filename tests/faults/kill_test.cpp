#ifdef ZEL_TOOL // without the tool there is nothing to test

#include "tests/faults/CRounds.h"
#include "tests/faults/CTracedTool.h"
#include "tests/toolRun.h"

#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <spawn.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

// A save in place that is killed, or that finds no room: the old file or the new one is there,
// whole.

namespace {

using ZelTest::CTracedTool;
using CClock = std::chrono::steady_clock;

/// A sanitized tool is several times slower.
int nbKills()
{
    return ZelTest::isSanitized() ? 5 : 50;
}

constexpr int kIoError = 74;

/// A file of a megabyte and what a save in place makes of it.
class CInPlace {
public:
    CInPlace()
    {
        std::string elements;
        for (int i = 0; i < 20'000; ++i)
            elements += "<Piece Number=\"" + std::to_string(i) + "\">some text</Piece>";
        path = mFolder.put("scene.zel", minimalWith("<Other>" + elements + "</Other>"));
        EXPECT_EQ(rewrite().code, 0); // what had no identifier has one now
        next = contents(path);
        old = next;
        old.insert(old.find("<Zel.File>"), "<!-- to be kept -->\n\n\n");
        putOld();
        EXPECT_EQ(rewrite().code, 0);
        next = contents(path);
        EXPECT_NE(next, old);
        putOld();
    }

    void putOld() const { mFolder.put("scene.zel", old); }
    CRun rewrite() const { return runTool({"rewrite", path, path}); }
    std::vector<std::string> arguments() const { return {toolPath(), "rewrite", path, path}; }
    std::string folder() const { return path.substr(0, path.rfind('/')); }

    /// "old", "new" or what else.
    std::string state() const
    {
        const std::string now = contents(path);
        return now == old ? "old" : now == next ? "new" : std::to_string(now.size()) + " bytes";
    }
    bool hasTemporary() const { return mFolder.names().size() > 1; }
    void removeTemporaries() const
    {
        for (const std::string& name : mFolder.names())
            if (name != "scene.zel")
                unlink(mFolder.file(name).c_str());
    }

    std::string path;
    std::string old;
    std::string next;

private:
    CTempFolder mFolder;
};

/// What the kills of one test left.
class CKills {
public:
    explicit CKills(const CInPlace& file) : mFile(file) {}

    /// Looks at the file behind a kill, and saves once more.
    void check(const std::string& where)
    {
        SCOPED_TRACE(where);
        const std::string state = mFile.state();
        EXPECT_TRUE(state == "old" || state == "new") << state;
        ++(state == "old" ? mNbOld : mNbNew);
        mNbTemporaries += mFile.hasTemporary();
        EXPECT_EQ(mFile.rewrite().code, 0);
        EXPECT_EQ(mFile.state(), "new");
        mFile.removeTemporaries();
        mFile.putOld();
    }

    int nbOld() const { return mNbOld; }
    int nbNew() const { return mNbNew; }
    void report(const char* by) const
    {
        std::printf("killed %s: %d times, %d old, %d new, %d files beside it\n", by,
                    mNbOld + mNbNew, mNbOld, mNbNew, mNbTemporaries);
    }

private:
    const CInPlace& mFile;
    int mNbOld = 0;
    int mNbNew = 0;
    int mNbTemporaries = 0;
};

pid_t start(const std::vector<std::string>& arguments)
{
    std::vector<char*> pointers;
    for (const std::string& argument : arguments)
        pointers.push_back(const_cast<char*>(argument.c_str()));
    pointers.push_back(nullptr);
    pid_t process = -1;
    EXPECT_EQ(posix_spawn(&process, pointers[0], nullptr, nullptr, pointers.data(), environ), 0);
    return process;
}

void end(pid_t process)
{
    kill(process, SIGKILL);
    waitpid(process, nullptr, 0);
}

} // namespace

TEST(Kill, AtAnyTimeLeavesTheOldFileOrTheNewOne)
{
    const CInPlace file;
    CKills kills(file);
    const auto before = CClock::now();
    ASSERT_EQ(file.rewrite().code, 0);
    const auto whole = CClock::now() - before;
    file.putOld();
    for (int i = 0; i < nbKills(); ++i) {
        const pid_t process = start(file.arguments());
        std::this_thread::sleep_for(whole * i / nbKills());
        end(process);
        kills.check(std::to_string(i));
    }
    kills.report("by time");
    EXPECT_GT(kills.nbOld(), 0);
}

TEST(Kill, AtEachSystemCallOfTheSaveLeavesTheOldFileOrTheNewOne)
{
    const CInPlace file;
    if (!CTracedTool::isPossible())
        GTEST_SKIP() << "no process may be traced here";
    int nbStops = 0, firstOfSave = 0;
    {
        CTracedTool tool(file.arguments());
        while (tool.goToNextStop()) {
            ++nbStops;
            if (firstOfSave == 0 && file.hasTemporary())
                firstOfSave = nbStops;
        }
    }
    ASSERT_EQ(file.state(), "new");
    ASSERT_GT(firstOfSave, 0);
    file.putOld();
    CKills kills(file);
    const int step = ZelTest::isSanitized() ? (nbStops - firstOfSave) / nbKills() | 1 : 1;
    for (int stop = firstOfSave - 1; stop <= nbStops; stop += step) {
        CTracedTool tool(file.arguments());
        for (int i = 0; i < stop; ++i)
            ASSERT_TRUE(tool.goToNextStop());
        tool.end();
        kills.check("stop " + std::to_string(stop));
    }
    kills.report("at system calls");
    EXPECT_GT(kills.nbOld(), ZelTest::isSanitized() ? 1 : 10);
    EXPECT_GT(kills.nbNew(), 0);
}

namespace {

/// A shell command with the tool as $1, the file as $2 and a number as $3.
CRun shell(const std::string& command, const CInPlace& file, std::size_t number)
{
    return runProgram({"sh", "-c", command, "sh", toolPath(), file.path, std::to_string(number)});
}

void expectRefused(const CInPlace& file, const CRun& run, const char* why)
{
    EXPECT_EQ(run.code, kIoError) << run.output;
    EXPECT_EQ(run.messages, "zel: " + file.path + ": can't write: " + why + "\n");
}

} // namespace

TEST(FullDisk, LeavesTheOldFileAndSaysSo)
{
    // The disk is one of its own in a name space of its own, gone with the shell. Its messages
    // begin with what it holds behind the save.
    const std::string onSmallDisk = R"(
        mount -t tmpfs -o "size=$3k" none "$4" && cp "$5" "$2" || exit 99
        "$1" rewrite "$2" "$2"; code=$?
        cmp -s "$2" "$5" && echo old || echo new
        ls -A "$4"
        exit $code)";
    const CInPlace file;
    const CTempFolder outside;
    const std::string copy = outside.put("old.zel", file.old);
    const auto save = [&](std::size_t room) {
        return runProgram({"unshare", "-m", "sh", "-c", onSmallDisk, "sh", toolPath(), file.path,
                           std::to_string(room), file.folder(), copy});
    };
    const std::size_t oldSize = file.old.size() / 1024 + 4, newSize = file.next.size() / 1024 + 4;
    const CRun roomy = save(4 * (oldSize + newSize));
    if (roomy.code != 0)
        GTEST_SKIP() << "no file system may be mounted here: " << roomy.messages;
    EXPECT_EQ(roomy.output, "new\nscene.zel\n");
    constexpr std::size_t kNbSizes = 12;
    for (std::size_t i = 0; i < kNbSizes; ++i) {
        const std::size_t room = oldSize + 8 + (newSize - 16) * i / kNbSizes;
        SCOPED_TRACE(std::to_string(room) + " kilobytes");
        const CRun run = save(room);
        EXPECT_EQ(run.output, "old\nscene.zel\n");
        expectRefused(file, run, "No space left on device");
    }
    std::printf("full disk: %zu sizes, the old file each time\n", kNbSizes);
}

TEST(FileSizeLimit, LeavesTheOldFileAndSaysSo)
{
    const CInPlace file;
    constexpr std::size_t kNbSizes = 12;
    for (std::size_t i = 0; i < kNbSizes; ++i) {
        const std::size_t blocks = file.next.size() / 512 * i / kNbSizes; // as POSIX counts
        SCOPED_TRACE(std::to_string(blocks) + " blocks");
        const CRun run = shell(R"(ulimit -f "$3"; exec "$1" rewrite "$2" "$2")", file, blocks);
        // Output and messages of the tool are files too.
        if (i > 0)
            expectRefused(file, run, "File too large");
        else
            EXPECT_EQ(run.code, kIoError);
        EXPECT_EQ(file.state(), "old");
        EXPECT_FALSE(file.hasTemporary());
    }
}

#endif
