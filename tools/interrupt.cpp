#include "tools/interrupt.h"

#include <csignal>

namespace tool {

static volatile std::sig_atomic_t signalSeen = 0;

static void remember(int signal)
{
    signalSeen = signal;
}

static void watch(int signal)
{
    struct sigaction old = {};
    if (::sigaction(signal, nullptr, &old) != 0 || old.sa_handler == SIG_IGN)
        return;
    struct sigaction action = {};
    action.sa_handler = remember;
    // Without SA_RESTART, so that a write to a pipe that nobody reads ends too.
    action.sa_flags = static_cast<int>(SA_RESETHAND);
    ::sigaction(signal, &action, nullptr);
}

void watchInterrupts()
{
    watch(SIGINT);
    watch(SIGTERM);
    // A write beyond the limit of the file size then fails like one to a full disk.
    std::signal(SIGXFSZ, SIG_IGN);
}

bool isInterrupted()
{
    return signalSeen != 0;
}

EExit interruptExit()
{
    const int signal = signalSeen;
    if (signal == 0)
        return eDone;
    return signal == SIGINT ? eInterrupted : eTerminated;
}

void checkInterrupt()
{
    if (isInterrupted())
        throw CToolError(interruptExit(), "stopped");
}

} // namespace tool
