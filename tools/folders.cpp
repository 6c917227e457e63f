#include "tools/folders.h"

#include "tools/platform.h"

namespace tool {

namespace fs = std::filesystem;

std::string readFolder(const std::string& folder,
                       const std::function<bool(const std::string&)>& isWanted,
                       const std::function<void(const CFolderEntry&)>& visit)
{
    std::error_code failure;
    std::error_code error; // a link that leads nowhere is neither file nor folder
    fs::directory_iterator entries(filePath(folder), failure);
    for (; !failure && entries != fs::directory_iterator(); entries.increment(failure)) {
        CFolderEntry entry{fileName(entries->path().filename())};
        if (!isWanted(entry.name))
            continue;
        entry.isFile = entries->is_regular_file(error);
        entry.isFolder = entries->is_directory(error) && !entries->is_symlink(error);
        visit(entry);
    }
    return failure ? failure.message() : std::string();
}

std::string makeFolders(const std::string& folder)
{
    std::error_code failure;
    fs::create_directories(filePath(folder), failure);
    return failure ? failure.message() : std::string();
}

bool isFolder(const std::string& path)
{
    std::error_code error;
    return fs::is_directory(filePath(path), error);
}

std::optional<bool> isSameFile(const std::string& a, const std::string& b)
{
    std::error_code error;
    const bool isSame = fs::equivalent(filePath(a), filePath(b), error);
    return error ? std::nullopt : std::optional(isSame);
}

} // namespace tool
