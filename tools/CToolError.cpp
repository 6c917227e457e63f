#include "tools/CToolError.h"

#include <cstdio>

namespace tool {

void complain(const std::string& text)
{
    std::fprintf(stderr, "zel: %s\n", text.c_str());
}

} // namespace tool
