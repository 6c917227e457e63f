#include "core/systemRandom.h"

#include <atomic>
#include <pthread.h>
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

unsigned forkCount()
{
    // Asking the system for the process number each time would cost more than an identifier.
    static std::atomic<unsigned> count{0};
    static const int registered =
        pthread_atfork(nullptr, nullptr, [] { count.fetch_add(1, std::memory_order_relaxed); });
    static_cast<void>(registered);
    return count.load(std::memory_order_relaxed);
}

} // namespace OvZel
