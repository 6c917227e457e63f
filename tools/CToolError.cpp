#include "tools/CToolError.h"

#include "tools/oneLine.h"

#include <cstdio>

namespace tool {

void complain(const std::string& text)
{
    std::fputs(("zel: " + oneLine(text) + '\n').c_str(), stderr); // in one piece
}

} // namespace tool
