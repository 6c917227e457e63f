#include "tools/interrupt.h"

#include <atomic>
#include <windows.h>

namespace tool {

static std::atomic<EExit> wanted{eDone};
static HANDLE mainThread = nullptr;

// Runs in a thread of its own.
static BOOL WINAPI remember(DWORD event)
{
    EExit expected = eDone;
    const EExit code = event == CTRL_C_EVENT ? eInterrupted : eTerminated;
    if (!wanted.compare_exchange_strong(expected, code))
        return FALSE; // a second one: the system ends the process
    // A write to a pipe that nobody reads ends too.
    CancelSynchronousIo(mainThread);
    // Behind this the system waits no longer for a process whose window was closed.
    if (event != CTRL_C_EVENT && event != CTRL_BREAK_EVENT)
        Sleep(INFINITE);
    return TRUE;
}

void watchInterrupts()
{
    DuplicateHandle(GetCurrentProcess(), GetCurrentThread(), GetCurrentProcess(), &mainThread, 0,
                    FALSE, DUPLICATE_SAME_ACCESS);
    SetConsoleCtrlHandler(remember, TRUE);
}

bool isInterrupted()
{
    return wanted != eDone;
}

EExit interruptExit()
{
    return wanted;
}

void checkInterrupt()
{
    if (isInterrupted())
        throw CToolError(interruptExit(), "stopped");
}

} // namespace tool
