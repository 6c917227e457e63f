#include "tools/CToolFeedback.h"

#include <algorithm>
#include <cstdio>
#include <string>

namespace tool {

void CToolFeedback::message(OvZel::IZelMgr*, const char* text)
{
    std::string line = text ? text : "";
    // Names out of the file may stand in a message, line ends included.
    std::replace(line.begin(), line.end(), '\n', ' ');
    std::replace(line.begin(), line.end(), '\r', ' ');
    std::fprintf(stderr, "%s\n", line.c_str());
}

} // namespace tool
