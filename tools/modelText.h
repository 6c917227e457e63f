#pragma once

#include <string>

namespace tool {

/// A name out of a model as a document may hold it: UTF-8 stays, any other byte is taken for a
/// character of Latin 1, and control characters become question marks.
std::string modelText(const std::string& bytes);

} // namespace tool
