#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace tool {

/// A run of one command over files, as the command line asks for it.
struct CFileRun {
    std::string command;            ///< its name on the command line
    std::vector<std::string> files; ///< files, folders, and "-" for a list on standard input
    bool isRecursive = false;       ///< folders are walked
    bool isNullSeparated = false;   ///< the paths of the list end with a null byte, not a line end
    int nbJobs = 0;                 ///< worker processes; with 0 this process does the work
    std::uint32_t shard = 0;        ///< from 0
    std::uint32_t nbShards = 0;     ///< 0 for all files
    std::string log;                ///< of the files that are done, or empty for none
    std::string outputDir;          ///< for a file of each path, left out of walks; empty for none
    bool asJson = false;
    bool hasOneFormOfJson = false; ///< prints objects about a few named files too
    bool isWorker = false; ///< takes paths from another process of the tool, and answers to it
    std::vector<std::string> workerArguments; ///< what the command of a worker is told besides

    /// Whether one JSON object tells all about a file. A command on a few named files that prints
    /// something else as JSON keeps doing so.
    bool givesObjects() const { return asJson && (hasOneFormOfJson || isOfMany()); }
    /// Whether any of the options for many files is used.
    bool isOfMany() const;
};

} // namespace tool
