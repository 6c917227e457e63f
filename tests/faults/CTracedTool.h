#pragma once

#include <string>
#include <sys/types.h>
#include <vector>

namespace ZelTest {

/// A program that stands still at the beginning and at the end of each of its system calls.
class CTracedTool {
public:
    /// Whether this machine lets a process trace its children.
    static bool isPossible();

    explicit CTracedTool(const std::vector<std::string>& arguments);
    /// Kills what still runs.
    ~CTracedTool() { end(); }
    CTracedTool(const CTracedTool&) = delete;
    CTracedTool& operator=(const CTracedTool&) = delete;

    /// Goes on to the next stop; false when the program has ended instead.
    bool goToNextStop();
    /// Its exit code once it has ended by itself; -1 before, or when a signal has ended it.
    int exitCode() const { return mExitCode; }
    /// Sends it a signal, which it gets when it goes on.
    void send(int signal);
    /// Kills it where it stands: a call at whose beginning it stands is not made.
    void end();

private:
    pid_t mProcess;
    int mExitCode = -1;
};

} // namespace ZelTest
