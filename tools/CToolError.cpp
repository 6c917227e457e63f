#include "tools/CToolError.h"

#include <cstdio>

namespace tool {

void complain(const std::string& text)
{
    std::fputs(("zel: " + text + '\n').c_str(), stderr); // in one piece
}

} // namespace tool
