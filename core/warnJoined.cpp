#include "core/warnJoined.h"

#include <zel/IZelWarning.h>

#include <new>
#include <string>

namespace OvZel {

void warnJoined(IZelWarning& target, std::initializer_list<const char*> parts, const char* shorter)
{
    std::string text;
    try {
        for (const char* part : parts)
            text += part;
        shorter = text.c_str();
    } catch (const std::bad_alloc&) {
        // The shorter text stays.
    }
    target.warning(shorter);
}

} // namespace OvZel
