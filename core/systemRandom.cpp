#include "core/systemRandom.h"

#include <sys/random.h>
#include <unistd.h>

namespace OvZel {

bool systemRandom(void* buffer, std::size_t size)
{
    constexpr std::size_t kLargestPiece = 256;
    auto* bytes = static_cast<unsigned char*>(buffer);
    while (size > 0) {
        const std::size_t piece = size < kLargestPiece ? size : kLargestPiece;
        if (getentropy(bytes, piece) != 0)
            return false;
        bytes += piece;
        size -= piece;
    }
    return true;
}

long processNumber()
{
    return static_cast<long>(getpid());
}

} // namespace OvZel
