#include "tools/folders.h"

#include "tools/platform.h"

#include <system_error>
#include <vector>
#include <windows.h>

// Folders of the standard library end at 260 characters.

namespace tool {

namespace fs = std::filesystem;

static std::string reason(DWORD failure)
{
    return std::system_category().message(static_cast<int>(failure));
}

static CFolderEntry entryOf(const WIN32_FIND_DATAW& found)
{
    const bool isFolder = (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
    const bool isSpecial = (found.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
    const bool isLink = isSpecial && (found.dwReserved0 == IO_REPARSE_TAG_SYMLINK ||
                                      found.dwReserved0 == IO_REPARSE_TAG_MOUNT_POINT);
    return {fileName(found.cFileName), !isFolder, isFolder && !isLink};
}

std::string readFolder(const std::string& folder,
                       const std::function<bool(const std::string&)>& isWanted,
                       const std::function<void(const CFolderEntry&)>& visit)
{
    WIN32_FIND_DATAW found = {};
    const HANDLE search = FindFirstFileW((filePath(folder) / L"*").c_str(), &found);
    if (search == INVALID_HANDLE_VALUE)
        return reason(GetLastError());
    try {
        do {
            const CFolderEntry entry = entryOf(found);
            if (entry.name != "." && entry.name != ".." && isWanted(entry.name))
                visit(entry);
        } while (FindNextFileW(search, &found) != 0);
    } catch (...) {
        FindClose(search);
        throw;
    }
    const DWORD end = GetLastError();
    FindClose(search);
    return end == ERROR_NO_MORE_FILES ? std::string() : reason(end);
}

std::string makeFolders(const std::string& folder)
{
    std::vector<std::string> missing;
    for (fs::path path = plainPath(folder); !path.empty() && !isFolder(fileName(path));
         path = path.parent_path()) {
        missing.push_back(fileName(path));
        if (!path.has_relative_path())
            break; // a drive that isn't there
    }
    for (; !missing.empty(); missing.pop_back()) {
        if (CreateDirectoryW(filePath(missing.back()).c_str(), nullptr) != 0)
            continue;
        const DWORD failure = GetLastError();
        if (!isFolder(missing.back())) // another process may have been faster
            return reason(failure);
    }
    return {};
}

bool isFolder(const std::string& path)
{
    const DWORD attributes = GetFileAttributesW(filePath(path).c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

static bool exists(const std::string& path)
{
    return GetFileAttributesW(filePath(path).c_str()) != INVALID_FILE_ATTRIBUTES;
}

std::optional<bool> isSameFile(const std::string& a, const std::string& b)
{
    if (!exists(a) || !exists(b))
        return std::nullopt;
    return wholePath(a) == wholePath(b);
}

} // namespace tool
