#ifndef _WIN32

#include "tests/toolProcess.h"

#include "tests/toolRun.h"

#include <chrono>
#include <csignal>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <spawn.h>
#include <sstream>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

// It is about the document's own mesh beside a component.
std::string textWithMessageOnSave()
{
    constexpr const char* kMesh =
        "<Points><![CDATA[\n3 \n0.0 0.0 0.0 \n1.0 0.0 0.0 \n0.0 1.0 0.0 \n]]></Points>"
        "<Polygons><![CDATA[\n1 \np\t0 3 0 1 2 \n]]></Polygons>";
    std::string text = contents(sample("legacy.zel"));
    return text.insert(text.rfind("</Zel.File>"), kMesh);
}

CFullPipe::CFullPipe(const std::string& path)
{
    mkfifo(path.c_str(), 0600);
    mDescriptor = open(path.c_str(), O_RDWR | O_NONBLOCK | O_CLOEXEC);
    const std::string block(4096, ' ');
    for (const std::size_t size : {block.size(), std::size_t{1}})
        while (write(mDescriptor, block.data(), size) > 0)
            ;
}

CFullPipe::~CFullPipe()
{
    close(mDescriptor);
}

pid_t startTool(std::vector<std::string> arguments, const std::vector<CRedirection>& redirections)
{
    arguments.insert(arguments.begin(), toolPath());
    std::vector<char*> pointers;
    for (std::string& argument : arguments)
        pointers.push_back(argument.data());
    pointers.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    for (const CRedirection& each : redirections)
        posix_spawn_file_actions_addopen(
            &actions, each.descriptor, each.path.c_str(),
            each.descriptor == STDIN_FILENO ? O_RDONLY : O_WRONLY | O_CREAT, 0600);
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

bool waitFor(pid_t process, const std::function<bool()>& condition)
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
static bool catches(pid_t process, int signal)
{
    std::istringstream status(contents("/proc/" + std::to_string(process) + "/status"));
    for (std::string line; std::getline(status, line);)
        if (line.rfind("SigCgt:", 0) == 0)
            return std::stoull(line.substr(7), nullptr, 16) >> (signal - 1) & 1;
    return false;
}

bool isHeld(pid_t process, int signal)
{
    const std::string stat = contents("/proc/" + std::to_string(process) + "/stat");
    return catches(process, signal) && stat.find(") S ") != std::string::npos;
}

int exitCode(pid_t process)
{
    int status = 0;
    waitpid(process, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

#endif
