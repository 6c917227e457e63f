#include "core/obsoleteSlot.h"

#include <cstdio>
#include <cstdlib>

namespace OvZel {

void obsoleteSlot()
{
    std::fputs("ZEL Library is obsolete\n"
               "Please update ZEL Library and relaunch the application.\n",
               stderr);
    std::fflush(stderr);
    std::exit(0);
}

} // namespace OvZel
