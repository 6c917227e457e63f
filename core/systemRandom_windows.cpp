#include "core/systemRandom.h"

#include <algorithm>
#include <limits>
#include <windows.h>

#include <bcrypt.h>

namespace OvZel {

bool systemRandom(void* buffer, std::size_t size)
{
    auto* bytes = static_cast<unsigned char*>(buffer);
    while (size > 0) {
        const auto piece =
            static_cast<ULONG>(std::min<std::size_t>(size, std::numeric_limits<ULONG>::max()));
        if (BCryptGenRandom(nullptr, bytes, piece, BCRYPT_USE_SYSTEM_PREFERRED_RNG) < 0)
            return false;
        bytes += piece;
        size -= piece;
    }
    return true;
}

unsigned forkCount()
{
    return 0; // there is no fork
}

} // namespace OvZel
