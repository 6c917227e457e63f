#ifdef ZEL_TOOL // without the tool there is nothing to test; processes are looked at in /proc

#include "tests/support/peakMemory.h"
#include "tests/toolProcess.h"
#include "tests/toolRun.h"

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <map>
#include <nlohmann/json.hpp>
#include <sstream>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

// What becomes of a run over many files when processes of it are ended from outside, and how much
// memory they take.

namespace {

namespace fs = std::filesystem;
using nlohmann::json;
using testing::HasSubstr;
using testing::IsEmpty;

std::string proc(pid_t process, const char* name)
{
    return contents("/proc/" + std::to_string(process) + "/" + name);
}

std::vector<pid_t> workersOf(pid_t process)
{
    const std::string list = "task/" + std::to_string(process) + "/children";
    std::istringstream text(proc(process, list.c_str()));
    std::vector<pid_t> workers;
    for (pid_t worker = 0; text >> worker;)
        workers.push_back(worker);
    return workers;
}

/// Whether the process waits in a call of open, as it does at a pipe that nobody writes to.
bool isOpening(pid_t process)
{
    return proc(process, "syscall").rfind(std::to_string(SYS_openat) + " ", 0) == 0;
}

bool isGone(pid_t process)
{
    const std::string stat = proc(process, "stat");
    return stat.empty() || stat.find(") Z ") != std::string::npos;
}

std::size_t nbLines(const std::string& text)
{
    return static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
}

class ToolBatchWorkers : public testing::Test {
protected:
    void SetUp() override
    {
        if (proc(getpid(), "syscall").empty())
            GTEST_SKIP() << "no /proc/PID/syscall here";
    }

    std::string put(const std::string& name) const
    {
        return mFolder.put(name, contents(sample("minimal.zel")));
    }

    /// A pipe that stops who opens it.
    std::string putTrap(const std::string& name) const
    {
        EXPECT_EQ(mkfifo(mFolder.file(name).c_str(), 0600), 0);
        return mFolder.file(name);
    }

    pid_t start(const std::vector<std::string>& arguments) const
    {
        return startTool(arguments, {{STDOUT_FILENO, mOutput}, {STDERR_FILENO, mErrors}});
    }

    /// The worker that stands in front of the trap; -1 if that does not happen.
    pid_t awaitTrapped(pid_t process) const
    {
        pid_t trapped = -1;
        waitFor(process, [&] {
            for (const pid_t worker : workersOf(process))
                if (isOpening(worker))
                    trapped = worker;
            return trapped >= 0;
        });
        // An open of another file would be over by now.
        return trapped >= 0 && isOpening(trapped) ? trapped : -1;
    }

    CTempFolder mFolder;
    const std::string mOutput = mFolder.file("output");
    const std::string mErrors = mFolder.file("errors");
    const std::string mLog = mFolder.file("log");
};

TEST_F(ToolBatchWorkers, ACrashIsAboutOneFileAlone)
{
    const std::string a = put("a.zel");
    const std::string trap = putTrap("b.zel");
    const std::string c = put("c.zel");
    const std::string d = put("d.zel");
    for (const char* const jobs : {"1", "2", "4"}) {
        fs::remove(mLog);
        const pid_t process =
            start({"info", "--json", "--jobs", jobs, "--resume", mLog, a, trap, c, d});
        // With several workers the others finish first; a log of its head, a, c and d has 4 lines.
        const std::size_t nbDone = *jobs == '1' ? 2 : 4;
        EXPECT_TRUE(waitFor(process, [&] { return nbLines(contents(mLog)) == nbDone; }));
        const pid_t worker = awaitTrapped(process);
        ASSERT_GE(worker, 0);
        kill(worker, SIGKILL);
        EXPECT_EQ(exitCode(process), 70);
        std::map<std::string, json> objects;
        std::istringstream lines(contents(mOutput));
        for (std::string line; std::getline(lines, line);)
            objects[json::parse(line)["file"]] = json::parse(line);
        ASSERT_EQ(objects.size(), 4U);
        for (const std::string& file : {a, c, d})
            EXPECT_EQ(objects[file]["exit"], 0);
        EXPECT_EQ(objects[trap]["exit"], 70);
        EXPECT_EQ(objects[trap]["error"], trap + ": the worker process ended by signal 9 (Killed)");
        EXPECT_THAT(contents(mErrors), HasSubstr(": the worker process ended by signal 9"));
        fs::remove(mOutput);
        fs::remove(mErrors);
    }
}

TEST_F(ToolBatchWorkers, AWorkerThatDiesWithoutWorkIsReplaced)
{
    const std::string input = mFolder.file("input");
    EXPECT_EQ(mkfifo(input.c_str(), 0600), 0);
    const int list = open(input.c_str(), O_RDWR | O_CLOEXEC);
    const std::string line = put("a.zel") + "\n";
    const auto give = [&] { return write(list, line.data(), line.size()); };
    EXPECT_GT(give(), 0);
    const pid_t process =
        startTool({"info", "--jobs", "1", "--resume", mLog, "-"},
                  {{STDIN_FILENO, input}, {STDOUT_FILENO, mOutput}, {STDERR_FILENO, mErrors}});
    // The second path makes the tool ask for the answer to the first, and so on.
    EXPECT_GT(give(), 0);
    EXPECT_TRUE(waitFor(process, [&] { return nbLines(contents(mLog)) >= 2; }));
    EXPECT_EQ(workersOf(process).size(), 1U);
    EXPECT_TRUE(waitFor(process, [&] { return nbLines(contents(mLog)) == 3; }));
    for (const pid_t worker : workersOf(process)) {
        kill(worker, SIGKILL);
        EXPECT_TRUE(waitFor(process, [&] { return isGone(worker); }));
    }
    EXPECT_GT(give(), 0);
    close(list); // and the tool, which has it open too, finds the end
    EXPECT_EQ(exitCode(process), 0) << contents(mErrors);
    EXPECT_EQ(nbLines(contents(mOutput)), 3U);
}

TEST_F(ToolBatchWorkers, ResumeAfterAKillTakesTheRest)
{
    const std::string a = put("a.zel");
    const std::string b = mFolder.file("b.zel");
    const std::string c = put("c.zel");
    for (const std::vector<std::string>& way :
         {std::vector<std::string>{}, {"--jobs", "1"}, {"--jobs", "2"}}) {
        fs::remove(mLog);
        fs::remove(b);
        putTrap("b.zel");
        std::vector<std::string> arguments = {"info", "--resume", mLog, a, b, c};
        arguments.insert(arguments.end(), way.begin(), way.end());
        const pid_t process = start(arguments);
        pid_t worker = process;
        if (way.empty())
            EXPECT_TRUE(waitFor(process, [&] { return isOpening(process); }));
        else
            worker = awaitTrapped(process);
        EXPECT_TRUE(waitFor(process, [&] { return nbLines(contents(mLog)) == 2; }));
        kill(process, SIGKILL);
        EXPECT_EQ(exitCode(process), -1);
        // A worker does not stay behind.
        EXPECT_TRUE(waitFor(getpid(), [&] { return isGone(worker); }));

        fs::remove(b);
        put("b.zel");
        const CRun rest = runTool(arguments);
        EXPECT_EQ(rest.code, 0);
        EXPECT_THAT(rest.output, HasSubstr(b + "\t"));
        EXPECT_EQ(nbLines(rest.output), 2U); // b and c
        EXPECT_EQ(nbLines(contents(mLog)), 4U);
        EXPECT_THAT(runTool(arguments).output, IsEmpty());
        fs::remove(mOutput);
        fs::remove(mErrors);
    }
}

TEST_F(ToolBatchWorkers, AStopEndsAllWorkersAndLeavesTheTargets)
{
    // Standard error has no room for what a save has to tell in its middle.
    const std::string text = textWithMessageOnSave();
    const std::string pipePath = mFolder.file("pipe");
    const CFullPipe pipe(pipePath);
    for (const int signal : {SIGINT, SIGTERM}) {
        const std::string a = mFolder.put("a.zel", text);
        const std::string b = mFolder.put("b.zel", text);
        const pid_t process = startTool({"rewrite", "--bare", "--in-place", "--jobs", "2", a, b},
                                        {{STDERR_FILENO, pipePath}});
        std::vector<pid_t> workers;
        const std::vector<std::string> before = {"a.zel", "b.zel", "pipe"};
        EXPECT_TRUE(waitFor(process, [&] {
            workers = workersOf(process);
            return mFolder.names().size() == before.size() + 2 && workers.size() == 2 &&
                   isHeld(workers[0], signal) && isHeld(workers[1], signal);
        }));
        kill(process, signal);
        EXPECT_EQ(exitCode(process), 128 + signal);
        for (const pid_t worker : workers)
            EXPECT_TRUE(isGone(worker));
        EXPECT_EQ(contents(a), text);
        EXPECT_EQ(contents(b), text);
        EXPECT_EQ(mFolder.names(), before);
    }
}

TEST_F(ToolBatchWorkers, AStopWhileAListIsReadIsAboutNoFile)
{
    const std::string input = mFolder.file("input");
    EXPECT_EQ(mkfifo(input.c_str(), 0600), 0);
    const std::string text = put("a.zel") + "\n" + put("b.zel") + "\nhalf a pa";
    for (const std::vector<std::string>& way :
         {std::vector<std::string>{}, {"--jobs", "1"}, {"--jobs", "2"}}) {
        const int list = open(input.c_str(), O_RDWR | O_CLOEXEC);
        EXPECT_EQ(write(list, text.data(), text.size()), static_cast<ssize_t>(text.size()));
        std::vector<std::string> arguments = {"info", "--json", "--resume", mLog, "-"};
        arguments.insert(arguments.end(), way.begin(), way.end());
        const pid_t process = startTool(
            arguments, {{STDIN_FILENO, input}, {STDOUT_FILENO, mOutput}, {STDERR_FILENO, mErrors}});
        int nbLeft = 1;
        EXPECT_TRUE(waitFor(process, [&] {
            return ioctl(list, FIONREAD, &nbLeft) == 0 && nbLeft == 0 && isHeld(process, SIGTERM);
        }));
        kill(process, SIGTERM);
        EXPECT_EQ(exitCode(process), 143);
        close(list);
        EXPECT_THAT(contents(mErrors), testing::Not(HasSubstr("zel: ")));
        EXPECT_THAT(contents(mOutput), testing::Not(HasSubstr("error")));
        const std::string noted = contents(mLog);
        EXPECT_EQ(nbLines(noted), nbLines(contents(mOutput)) + 1);
        EXPECT_THAT(noted, testing::Not(HasSubstr("74\t")));
        for (const std::string& file : {mLog, mOutput, mErrors})
            fs::remove(file);
    }
}

TEST_F(ToolBatchWorkers, AWorkerThatHangsIsEnded)
{
    if (!std::getenv("ZEL_TEST_FULL"))
        GTEST_SKIP() << "only with ZEL_TEST_FULL set: the tool is patient";
    const std::string trap = putTrap("a.zel");
    const pid_t process = start({"info", "--jobs", "1", trap});
    const pid_t worker = awaitTrapped(process);
    ASSERT_GE(worker, 0);
    kill(worker, SIGSTOP);
    kill(process, SIGTERM);
    EXPECT_EQ(exitCode(process), 143);
    EXPECT_TRUE(isGone(worker));
}

// The most memory that a process had, in bytes.
std::size_t peakOf(pid_t process)
{
    const std::string status = proc(process, "status");
    const std::size_t at = status.find("VmHWM:");
    return at == std::string::npos ? 0 : std::stoul(status.substr(at + 6)) * 1024;
}

TEST_F(ToolBatchWorkers, MemoryDoesNotGrowWithTheNumberOfFiles)
{
    if (!ZelTest::canMeterPeaks())
        GTEST_SKIP() << "the sanitizer keeps what is freed";
    constexpr std::size_t kNbFew = 200;
    constexpr std::size_t kNbMany = 2000;
    fs::create_directory(mFolder.file("many"));
    std::vector<std::string> files;
    for (std::size_t i = 0; i < kNbMany; ++i)
        files.push_back(put("many/" + std::to_string(i) + ".zel"));
    const std::string input = mFolder.file("input");
    EXPECT_EQ(mkfifo(input.c_str(), 0600), 0);
    for (const std::vector<std::string>& way :
         {std::vector<std::string>{"info"}, {"check", "--jobs", "1"}, {"check", "--jobs", "2"}}) {
        fs::remove(mLog);
        const int list = open(input.c_str(), O_RDWR | O_CLOEXEC);
        std::vector<std::string> arguments = way;
        arguments.insert(arguments.end(), {"--json", "--resume", mLog, "-"});
        const pid_t process = startTool(
            arguments, {{STDIN_FILENO, input}, {STDOUT_FILENO, mOutput}, {STDERR_FILENO, mErrors}});
        // One file of each worker may wait for the path behind them.
        const auto peakAfter = [&](std::size_t begin, std::size_t end) {
            for (std::size_t i = begin; i < end; ++i) {
                const std::string line = files[i] + "\n";
                EXPECT_EQ(write(list, line.data(), line.size()), static_cast<ssize_t>(line.size()));
            }
            EXPECT_TRUE(waitFor(process, [&] { return nbLines(contents(mLog)) + 8 > end; }));
            std::size_t peak = peakOf(process);
            for (const pid_t worker : workersOf(process))
                peak = std::max(peak, peakOf(worker));
            return peak;
        };
        const std::size_t few = peakAfter(0, kNbFew);
        const std::size_t many = peakAfter(kNbFew, kNbMany);
        close(list);
        EXPECT_EQ(exitCode(process), 0);
        EXPECT_GT(few, 1U << 20);
        EXPECT_LT(many, few + (1U << 20)) << testing::PrintToString(way);
        EXPECT_EQ(nbLines(contents(mLog)), kNbMany + 1);
    }
}

} // namespace

#endif
