#pragma once

#include "tools/CResumeLog.h"

#include <nlohmann/json.hpp>
#include <optional>
#include <string>

namespace tool {

struct CFileRun;
class CToolOutput;

/// What became of one file: the exit code, and what is to be written about it.
struct CFileResult {
    std::string file;
    EExit code = eDone;
    std::string text;
};

/// Tells of a failure, if any, on standard error and, where the run gives objects, in the object.
CFileResult makeResult(const CFileRun& run, const std::string& file, EExit code,
                       const std::string& failure,
                       const nlohmann::ordered_json& fields = nlohmann::ordered_json::object());

/// The outcomes of a run: writes them, keeps the log, and knows what need not be done again.
class CFileResults {
public:
    /// Throws CRunError as CResumeLog does.
    CFileResults(const CFileRun& run, CToolOutput& output);

    bool isDone(const std::string& file) const { return mLog && mLog->has(file); }
    /// Throws CRunError(eIoError) when the result can't be written or noted.
    void add(const CFileResult& result);
    EExit getWorst() const { return mWorst; }

private:
    CToolOutput& mOutput;
    std::optional<CResumeLog> mLog;
    EExit mWorst = eDone;
};

} // namespace tool
