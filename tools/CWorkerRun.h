#pragma once

#include "tools/CFileList.h"
#include "tools/CFileResults.h"
#include "tools/CWorkers.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace tool {

/// A run by worker processes, each of which has one file at a time.
///
/// A worker is sent a path that ends with a null byte. It answers with a line of the exit code and
/// the size of the text that follows, and what it has to tell besides goes to standard error. A
/// worker that ends in between has failed on its file, and another one takes its place.
class CWorkerRun {
public:
    CWorkerRun(const CFileRun& run, CFileResults& results);

    /// Throws CRunError, or what checkInterrupt throws; the workers are gone with the object.
    void work();

private:
    struct CJob {
        std::uint64_t number = 0; // of the file in the run
        std::string file;
        std::string answer; // as far as it has come
    };

    bool hasRoom() const;
    bool giveOut();
    bool nextFile(CListedFile& file);
    bool isAnswered(int worker);
    void receive();
    void put(std::uint64_t number, CFileResult result);

    const CFileRun& mRun;
    CFileResults& mResults;
    CFileList mList;
    CWorkers mWorkers;
    std::vector<std::optional<CJob>> mJobs;        // of each worker
    std::map<std::uint64_t, CFileResult> mWaiting; // for the results of files ahead of theirs
    std::size_t mNbWaitingBytes = 0;
    std::uint64_t mNbListed = 0;
    std::uint64_t mNbTold = 0;
};

} // namespace tool
