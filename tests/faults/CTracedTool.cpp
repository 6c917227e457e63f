#include "tests/faults/CTracedTool.h"

#include <csignal>
#include <cstdlib>
#include <stdexcept>
#include <string>
#include <sys/ptrace.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

namespace ZelTest {

bool CTracedTool::isPossible()
{
    try {
        return CTracedTool({"true"}).goToNextStop();
    } catch (const std::exception&) {
        return false;
    }
}

CTracedTool::CTracedTool(const std::vector<std::string>& arguments)
{
    std::vector<char*> pointers;
    for (const std::string& argument : arguments)
        pointers.push_back(const_cast<char*>(argument.c_str()));
    pointers.push_back(nullptr);
    // A check for leaks traces the program itself, which can be done by one alone.
    const char* given = std::getenv("ASAN_OPTIONS");
    const std::string options = std::string(given != nullptr ? given : "") + ":detect_leaks=0";
    mProcess = fork();
    if (mProcess == 0) {
        setenv("ASAN_OPTIONS", options.c_str(), 1);
        if (ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) == 0)
            execvp(pointers[0], pointers.data());
        _exit(127);
    }
    int status = 0;
    waitpid(mProcess, &status, 0);
    if (!WIFSTOPPED(status)) // it stops where its program begins
        throw std::runtime_error("no process may be traced");
    ptrace(PTRACE_SETOPTIONS, mProcess, nullptr, PTRACE_O_TRACESYSGOOD | PTRACE_O_EXITKILL);
}

bool CTracedTool::goToNextStop()
{
    for (int signal = 0, status = 0;;) {
        const bool isThere = ptrace(PTRACE_SYSCALL, mProcess, nullptr, signal) == 0 &&
                             waitpid(mProcess, &status, 0) == mProcess;
        if (!isThere || !WIFSTOPPED(status)) {
            mProcess = -1;
            if (isThere && WIFEXITED(status))
                mExitCode = WEXITSTATUS(status);
            return false;
        }
        if (WSTOPSIG(status) == (SIGTRAP | 0x80))
            return true;
        // That another program begins in the process is told by a signal that would end it.
        signal = WSTOPSIG(status) == SIGTRAP ? 0 : WSTOPSIG(status);
    }
}

void CTracedTool::send(int signal)
{
    if (mProcess > 0)
        kill(mProcess, signal);
}

void CTracedTool::end()
{
    const pid_t process = std::exchange(mProcess, -1);
    if (process <= 0)
        return;
    kill(process, SIGKILL);
    waitpid(process, nullptr, 0);
}

} // namespace ZelTest
