#pragma once

#include <functional>
#include <optional>
#include <string>

namespace tool {

/// What the tool asks of the operating system about folders. Names are those that a user gives; a
/// failure is told by the reason of the system, and no failure by an empty text.

struct CFolderEntry {
    std::string name;
    bool isFile = false;   ///< or a link to one
    bool isFolder = false; ///< and no link
};

/// Visits the entries whose names are wanted, in no order.
std::string readFolder(const std::string& folder,
                       const std::function<bool(const std::string&)>& isWanted,
                       const std::function<void(const CFolderEntry&)>& visit);
/// Makes a folder, and those above it that are missing.
std::string makeFolders(const std::string& folder);
bool isFolder(const std::string& path);
/// Whether two paths lead to one file or folder; nothing when one of them leads to none.
std::optional<bool> isSameFile(const std::string& a, const std::string& b);

} // namespace tool
