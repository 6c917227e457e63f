#include "tools/CFileList.h"

#include "tools/CFileRun.h"
#include "tools/CToolError.h"
#include "tools/interrupt.h"
#include "tools/platform.h"
#include "tools/stableHash.h"

#include <cstdio>

namespace tool {

bool readPath(char separator, std::string& path)
{
    path.clear();
    for (int c = std::getc(stdin); c != EOF; c = std::getc(stdin)) {
        if (c != separator)
            path += static_cast<char>(c);
        else if (!path.empty())
            return true;
    }
    checkInterrupt();
    if (std::ferror(stdin))
        throw CRunError(eIoError, "can't read standard input");
    return !path.empty(); // the last one needs no separator
}

CFileList::CFileList(const CFileRun& run) : mRun(run), mWalk(run.skippedFolder) {}

bool CFileList::nextGiven(std::string& path)
{
    for (;;) {
        if (mIsInInput && readPath(mRun.isNullSeparated ? '\0' : '\n', path))
            return true;
        mIsInInput = false;
        if (mNbTaken == mRun.files.size())
            return false;
        path = mRun.files[mNbTaken++];
        if (path != "-")
            return true;
        mIsInInput = true;
    }
}

bool CFileList::nextOfAll(CListedFile& file)
{
    file.failure.clear();
    while (!mWalk.next(file.path)) {
        if (!nextGiven(file.path))
            return false;
        std::error_code error;
        if (!mRun.isRecursive || !std::filesystem::is_directory(filePath(file.path), error))
            return true;
        mWalk.start(file.path);
    }
    return true;
}

bool CFileList::isInShard(const std::string& path) const
{
    return mRun.nbShards == 0 || stableHash(path) % mRun.nbShards == mRun.shard;
}

bool CFileList::next(CListedFile& file)
{
    for (;; checkInterrupt()) {
        try {
            if (!nextOfAll(file))
                return false;
        } catch (const CRunError&) {
            throw;
        } catch (const CToolError& error) {
            file.failure = error.what();
        }
        if (isInShard(file.path))
            return true;
    }
}

} // namespace tool
