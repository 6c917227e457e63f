#pragma once

#include <stdexcept>
#include <string>

namespace tool {

/// What the tool ends with.
enum EExit : int {
    eDone = 0,
    eFindings = 1,
    eUsage = 64,
    eNotReadable = 65,
    eUnavailable = 69, // built without what it takes
    eCrashed = 70,     // a worker process ended in the middle of a file
    eIoError = 74,
    eInterrupted = 130, // by Ctrl-C
    eTerminated = 143,  // by SIGTERM
};

/// A failure that ends a command, with its exit code and the text for standard error.
class CToolError : public std::runtime_error {
public:
    CToolError(EExit code, const std::string& text) : std::runtime_error(text), mCode(code) {}

    EExit code() const { return mCode; }

private:
    EExit mCode;
};

/// A failure that ends a run over many files too, since it is not about one of them.
class CRunError : public CToolError {
public:
    using CToolError::CToolError;
};

/// Puts one line on standard error, whatever the names in the text hold.
void complain(const std::string& text);

} // namespace tool
