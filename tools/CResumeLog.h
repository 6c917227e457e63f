#pragma once

#include "tools/CToolError.h"

#include <array>
#include <cstdint>
#include <fstream>
#include <string>
#include <vector>

namespace tool {

struct CFileRun;

/// The files that earlier runs of a command are done with, and those of this one.
///
/// The first line of the log names the command with what it was told about each file, each line
/// behind it holds an exit code and a path, in which a line end stands as "\n" and a backslash as
/// "\\". A line that a kill cut short is taken away. What failed for a reason that may pass, such
/// as a disk, counts as not done.
class CResumeLog {
public:
    /// Reads the log of the run, which need not exist yet, and opens it for what follows. Throws
    /// CRunError: eUsage for the log of another command or another kind of file, eIoError.
    CResumeLog(const CFileRun& run);

    /// Whether an earlier run is done with the file. 16 bytes of memory stand for each such file.
    bool has(const std::string& file) const;
    /// The worst of what earlier runs are done with.
    EExit getWorst() const { return mWorst; }
    /// Throws CRunError(eIoError) when the line can't be written.
    void add(const std::string& file, EExit code);

private:
    using CKey = std::array<std::uint64_t, 2>;

    static CKey keyOf(const std::string& file);
    std::uintmax_t read(const std::string& head);
    void take(const std::string& line);
    [[noreturn]] void refuse(const std::string& why) const;

    std::string mPath;
    std::vector<CKey> mDone; // sorted
    EExit mWorst = eDone;
    std::ofstream mFile;
};

} // namespace tool
