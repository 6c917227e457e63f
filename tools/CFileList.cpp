#include "tools/CFileList.h"

#include "tools/CFileRun.h"
#include "tools/CToolError.h"
#include "tools/folders.h"
#include "tools/interrupt.h"
#include "tools/platform.h"
#include "tools/stableHash.h"

#include <cstdio>

namespace tool {

bool readPath(char separator, std::string& path)
{
    path.clear();
    for (int c = std::getc(stdin); c != EOF; c = std::getc(stdin)) {
        if (c == separator && !path.empty())
            return true;
        if (c == '\0' && separator != '\0')
            throw CRunError(eUsage, "a list with null bytes in it needs the option --null");
        if (c != separator)
            path += static_cast<char>(c);
    }
    checkInterrupt();
    if (std::ferror(stdin))
        throw CRunError(eIoError, "can't read standard input");
    return !path.empty(); // the last one needs no separator
}

CFileList::CFileList(const CFileRun& run) : mRun(run), mWalk(run.outputDir) {}

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
        if (!mRun.isRecursive || !isFolder(file.path))
            return true;
        mWalk.start(file.path);
    }
    return true;
}

// Below a folder /a.zel and a.zel would get one place.
void CFileList::checkStart(CListedFile& file)
{
    if (mRun.outputDir.empty() || !file.failure.empty())
        return;
    const bool isWhole = plainPath(file.path).has_root_directory();
    if (mIsWhole.value_or(isWhole) != isWhole)
        file.failure = file.path + (isWhole ? ": is a whole path, unlike those ahead of it"
                                            : ": is no whole path, unlike those ahead of it");
    mIsWhole = mIsWhole.value_or(isWhole);
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
            checkInterrupt(); // is about no file
            file.failure = error.what();
        }
        checkStart(file);
        if (isInShard(file.path))
            return true;
    }
}

} // namespace tool
