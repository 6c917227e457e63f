#pragma once

#include "tools/CToolError.h"

#include <functional>
#include <nlohmann/json_fwd.hpp>
#include <string>

namespace tool {

struct CFileRun;
class CToolOutput;

/// A file that a command is to work on.
struct CFileTask {
    const std::string& file;
    /// Takes what the command tells of the file, which then writes nothing. Null where it writes.
    nlohmann::ordered_json* object;
};

/// A command on one file. What stops it is thrown as CToolError.
using CFileCommand = std::function<EExit(const CFileTask&)>;

/// Runs a command on each file of a run. What stops it on one file is told on standard error and
/// does not keep it from the others, except for a request to stop and a CRunError. The worst
/// outcome is the result.
///
/// With worker processes text comes in the order of the files, JSON objects as they are ready.
EExit eachFile(const CFileRun& run, const CFileCommand& command, CToolOutput& output);

} // namespace tool
