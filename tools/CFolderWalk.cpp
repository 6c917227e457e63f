#include "tools/CFolderWalk.h"

#include "tools/CToolError.h"
#include "tools/platform.h"

#include <algorithm>

namespace tool {

namespace fs = std::filesystem;

static bool isDocument(const fs::directory_entry& entry, const std::string& name)
{
    std::error_code error;
    return name.ends_with(".zel") && entry.is_regular_file(error);
}

static bool isFolder(const fs::directory_entry& entry)
{
    std::error_code error;
    return entry.is_directory(error) && !entry.is_symlink(error);
}

bool CFolderWalk::isSkipped(const std::string& folder) const
{
    std::error_code error;
    return !mSkipped.empty() && fs::equivalent(filePath(folder), filePath(mSkipped), error) &&
           !error;
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
    std::error_code error;
    fs::directory_iterator entries(filePath(level.folder), error);
    for (; !error && entries != fs::directory_iterator(); entries.increment(error)) {
        std::string name = fileName(entries->path().filename());
        if (!level.isAtStart && name <= level.last)
            continue;
        if (isDocument(*entries, name))
            keep(level, {std::move(name), false});
        else if (isFolder(*entries))
            keep(level, {std::move(name), true});
    }
    level.isAtStart = false;
    std::sort(level.entries.rbegin(), level.entries.rend());
    if (error) {
        const std::string folder = level.folder;
        mLevels.pop_back();
        throw CToolError(eIoError, folder + ": can't read: " + error.message());
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
        path = fileName(filePath(level.folder) / filePath(entry.name));
        if (!entry.isFolder)
            return true;
        if (!isSkipped(path))
            mLevels.emplace_back().folder = path;
    }
    return false;
}

} // namespace tool
