#include "tools/pngFile.h"

#include "tools/CToolError.h"

namespace tool {

// In place of the pictures, where the library for them is missing.
[[noreturn]] static void fail(const std::string& path)
{
    throw CToolError(eUnavailable, path + ": this zel is built without libpng");
}

CPicture readPng(const std::string& path)
{
    fail(path);
}

void writePng(const CPicture&, const std::string& path)
{
    fail(path);
}

} // namespace tool
