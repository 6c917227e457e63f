#pragma once

#include <functional>
#include <string>
#include <sys/types.h>
#include <vector>

/// The tool while it runs.

/// A pipe that is full and that nobody reads, as standard error: the first message stops the tool
/// at a known place.
class CFullPipe {
public:
    explicit CFullPipe(const std::string& path);
    ~CFullPipe();
    CFullPipe(const CFullPipe&) = delete;
    CFullPipe& operator=(const CFullPipe&) = delete;

private:
    int mDescriptor;
};

/// The text of a document that gives a message in the middle of a save.
std::string textWithMessageOnSave();

/// A file that one of the standard descriptors of a process leads to.
struct CRedirection {
    int descriptor;
    std::string path;
};

/// Starts the tool, which answers to Ctrl-C and SIGTERM also where the tests may not.
pid_t startTool(std::vector<std::string> arguments, const std::vector<CRedirection>& redirections);

/// Waits for a state that must come; false when the process is gone or half a minute has passed.
bool waitFor(pid_t process, const std::function<bool()>& condition);
/// Whether the process has set its handler of the signal and stands still, as it waits for
/// something such as room in a pipe.
bool isHeld(pid_t process, int signal);
/// Waits for its end and gives its exit code, -1 if a signal killed it.
int exitCode(pid_t process);
