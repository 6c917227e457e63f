#pragma once

#include <string>

namespace ZelTest {

/// The format instruction of a file by this very library.
inline constexpr const char* kFormat =
    "<?Zel library=\"6.0.6\" file=\"6.0\" min_version=\"6.0.0\" safe_version=\"6.0.4\"?>";

/// A file with these sections and the one that every file must have.
inline std::string zelFile(const std::string& sections, const std::string& head = kFormat)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>" + head + "<Zel.File>" + sections +
           "<Working.Window/></Zel.File>";
}

} // namespace ZelTest
