#ifdef ZEL_TOOL // without the tool there is nothing to test

#include "tests/toolRun.h"

#include <chrono>
#include <csignal>
#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <spawn.h>
#include <sstream>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

// A pipe that is full and that nobody reads, as standard error: the first message stops the tool
// at a known place.
class CFullPipe {
public:
    explicit CFullPipe(const std::string& path)
    {
        mkfifo(path.c_str(), 0600);
        mDescriptor = open(path.c_str(), O_RDWR | O_NONBLOCK | O_CLOEXEC);
        const std::string block(4096, ' ');
        for (const std::size_t size : {block.size(), std::size_t{1}})
            while (write(mDescriptor, block.data(), size) > 0)
                ;
    }
    ~CFullPipe() { close(mDescriptor); }
    CFullPipe(const CFullPipe&) = delete;
    CFullPipe& operator=(const CFullPipe&) = delete;

private:
    int mDescriptor;
};

// Standard error or output, by its number, leads to the pipe.
pid_t start(std::vector<std::string> arguments, const std::string& pipe,
            int descriptor = STDERR_FILENO)
{
    arguments.insert(arguments.begin(), toolPath());
    std::vector<char*> pointers;
    for (std::string& argument : arguments)
        pointers.push_back(argument.data());
    pointers.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, descriptor, pipe.c_str(), O_WRONLY, 0);
    posix_spawnattr_t attributes; // the tests may run where Ctrl-C is ignored
    posix_spawnattr_init(&attributes);
    sigset_t signals;
    sigemptyset(&signals);
    sigaddset(&signals, SIGINT);
    sigaddset(&signals, SIGTERM);
    posix_spawnattr_setsigdefault(&attributes, &signals);
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGDEF);
    pid_t process = -1;
    EXPECT_EQ(posix_spawn(&process, pointers[0], &actions, &attributes, pointers.data(), environ),
              0);
    posix_spawnattr_destroy(&attributes);
    posix_spawn_file_actions_destroy(&actions);
    return process;
}

// Waits for a state that must come; false when the process is gone or half a minute has passed.
template <class TCondition>
bool waitFor(pid_t process, TCondition condition)
{
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(30);
    while (!condition()) {
        siginfo_t info = {};
        waitid(P_PID, static_cast<id_t>(process), &info, WEXITED | WNOHANG | WNOWAIT);
        if (info.si_pid == process || std::chrono::steady_clock::now() > end)
            return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    return true;
}

// Whether the process has a handler for the signal, by the mask that the kernel shows.
bool catches(pid_t process, int signal)
{
    std::istringstream status(contents("/proc/" + std::to_string(process) + "/status"));
    for (std::string line; std::getline(status, line);)
        if (line.rfind("SigCgt:", 0) == 0)
            return std::stoull(line.substr(7), nullptr, 16) >> (signal - 1) & 1;
    return false;
}

// Whether the process has set its handlers and stands still: it waits for room in the pipe.
bool isHeld(pid_t process, int signal)
{
    const std::string stat = contents("/proc/" + std::to_string(process) + "/stat");
    return catches(process, signal) && stat.find(") S ") != std::string::npos;
}

constexpr const char* kMesh =
    "<Points><![CDATA[\n3 \n0.0 0.0 0.0 \n1.0 0.0 0.0 \n0.0 1.0 0.0 \n]]></Points>"
    "<Polygons><![CDATA[\n1 \np\t0 3 0 1 2 \n]]></Polygons>";
constexpr const char* kUnknownSection = "<Foreign><![CDATA[ a ]]></Foreign>";

class ToolInterrupt : public testing::TestWithParam<int> {
protected:
    /// Ends the process by the signal and gives its exit code, -1 if the signal killed it.
    static int stop(pid_t process)
    {
        kill(process, GetParam());
        int status = 0;
        waitpid(process, &status, 0);
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
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
        const pid_t process = start(arguments, errors);
        EXPECT_TRUE(waitFor(process, [&] { return isHeld(process, GetParam()); }));
        EXPECT_EQ(stop(process), 128 + GetParam()) << testing::PrintToString(arguments);
        EXPECT_EQ(contents(out), "as it was");
        EXPECT_THAT(mFolder.names(), ElementsAre("errors", "in.zel", "out"));
    }
}

TEST_P(ToolInterrupt, StopsASaveAndRemovesTheFileBesideTheTarget)
{
    // The document's own mesh beside a component gives a message in the middle of the save.
    std::string text = contents(sample("legacy.zel"));
    text.insert(text.rfind("</Zel.File>"), kMesh);
    const std::string in = mFolder.put("in.zel", text);
    const std::string out = mFolder.put("out", "as it was");
    const std::string errors = mFolder.file("errors");
    const CFullPipe pipe(errors);
    const pid_t process = start({"rewrite", "--bare", in, out}, errors);
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
        const pid_t process = start({command, sample("minimal.zel")}, output, STDOUT_FILENO);
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
    const std::string in = mFolder.put("in.zel", minimalWith(kMesh));
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
