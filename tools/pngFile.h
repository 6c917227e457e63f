#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace tool {

/// Rows from the top, four bytes a pixel: red, green, blue, alpha.
struct CPicture {
    std::uint32_t width = 0;
    std::uint32_t height = 0;
    std::vector<std::uint8_t> pixels;
};

/// Throws CToolError: eIoError when the file cannot be read, eNotReadable when it is no PNG picture
/// or has more than 2^28 pixels.
CPicture readPng(const std::string& path);
/// Replaces the file as a whole. Throws CToolError(eIoError), or eNotReadable for a picture that
/// PNG cannot hold.
void writePng(const CPicture& picture, const std::string& path);

} // namespace tool
