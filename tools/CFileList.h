#pragma once

#include "tools/CFolderWalk.h"

#include <cstddef>
#include <optional>
#include <string>

namespace tool {

struct CFileRun;

/// A path of a run, with what is wrong if it can't be asked for at all.
struct CListedFile {
    std::string path;
    std::string failure;
};

/// The files of a run, one after the other: those on the command line, on standard input and in
/// folders, as far as they belong to the shard. They are found while the run goes on, so that their
/// number costs no memory.
class CFileList {
public:
    explicit CFileList(const CFileRun& run);

    /// False behind the last. Throws CToolError for what ends the whole run.
    bool next(CListedFile& file);

private:
    bool nextOfAll(CListedFile& file);
    bool nextGiven(std::string& path);
    void checkStart(CListedFile& file);
    bool isInShard(const std::string& path) const;

    const CFileRun& mRun;
    CFolderWalk mWalk;
    std::size_t mNbTaken = 0;
    bool mIsInInput = false;
    std::optional<bool> mIsWhole; // the first path
};

/// Takes a path from standard input, up to the separator; false at its end. Paths of no bytes are
/// left out. Throws CRunError when standard input can't be read (eIoError) or has null bytes that
/// are no separators (eUsage), or what checkInterrupt throws.
bool readPath(char separator, std::string& path);

} // namespace tool
