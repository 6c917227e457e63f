#include "tools/CFolderWalk.h"

#include "tools/CToolError.h"
#include "tools/folders.h"
#include "tools/platform.h"

#include <algorithm>

namespace tool {

bool CFolderWalk::isSkipped(const std::string& folder) const
{
    return !mSkipped.empty() && isSameFile(folder, mSkipped).value_or(false);
}

void CFolderWalk::start(const std::string& folder)
{
    if (isSkipped(folder))
        throw CToolError(eIoError, folder + ": is the folder of the output");
    mLevels.clear();
    mLevels.emplace_back().folder = folder;
}

// The entries are a heap with the greatest name in front, which gives way to a smaller one.
void CFolderWalk::keep(CLevel& level, CEntry entry)
{
    std::vector<CEntry>& kept = level.entries;
    if (kept.size() == mNbHeldNames) {
        level.hasMore = true;
        if (!(entry < kept.front()))
            return;
        std::pop_heap(kept.begin(), kept.end());
        kept.pop_back();
    }
    kept.push_back(std::move(entry));
    std::push_heap(kept.begin(), kept.end());
}

void CFolderWalk::read(CLevel& level)
{
    level.hasMore = false;
    const auto isLeft = [&](const std::string& name) {
        return level.isAtStart || name > level.last;
    };
    const std::string failure = readFolder(level.folder, isLeft, [&](const CFolderEntry& entry) {
        if (entry.isFolder || (entry.isFile && entry.name.ends_with(".zel")))
            keep(level, {entry.name, entry.isFolder});
    });
    level.isAtStart = false;
    std::sort(level.entries.rbegin(), level.entries.rend());
    if (!failure.empty()) {
        const std::string folder = level.folder;
        mLevels.pop_back();
        throw CToolError(eIoError, folder + ": can't read: " + failure);
    }
}

bool CFolderWalk::next(std::string& path)
{
    while (!mLevels.empty()) {
        CLevel& level = mLevels.back();
        if (level.entries.empty() && level.hasMore) {
            path = level.folder;
            read(level);
        }
        if (level.entries.empty()) {
            mLevels.pop_back();
            continue;
        }
        const CEntry entry = std::move(level.entries.back());
        level.entries.pop_back();
        level.last = entry.name;
        path = fileName(plainPath(level.folder) / plainPath(entry.name));
        if (!entry.isFolder)
            return true;
        if (!isSkipped(path))
            mLevels.emplace_back().folder = path;
    }
    return false;
}

} // namespace tool
