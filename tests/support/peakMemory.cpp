#include "tests/support/peakMemory.h"

#include <fstream>
#include <malloc.h>
#include <stdexcept>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
#define ZEL_TEST_OWN_ALLOCATOR
#elif defined(__has_feature)
#if __has_feature(address_sanitizer) || __has_feature(thread_sanitizer)
#define ZEL_TEST_OWN_ALLOCATOR
#endif
#endif

#ifdef ZEL_TEST_OWN_ALLOCATOR
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();
#endif

namespace ZelTest {

namespace {

/// The largest size that the address space of this process has had.
std::size_t peakSize()
{
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);)
        if (line.rfind("VmPeak:", 0) == 0)
            return std::stoul(line.substr(7)) * 1024;
    throw std::runtime_error("The system does not tell the size of a process");
}

/// In the new process.
[[noreturn]] void measure(const std::function<void()>& action, int out)
{
    const std::size_t before = peakSize();
    try {
        action();
    } catch (...) {
        _exit(1);
    }
    const std::size_t grown = peakSize() - before;
    _exit(write(out, &grown, sizeof grown) == static_cast<ssize_t>(sizeof grown) ? 0 : 1);
}

} // namespace

bool canMeterMemory()
{
#ifdef ZEL_TEST_OWN_ALLOCATOR
    return false;
#else
    return true;
#endif
}

bool canMeterPeaks()
{
    return canMeterMemory();
}

std::size_t peakMemoryOf(const std::function<void()>& action)
{
    int ends[2];
    if (pipe(ends) != 0)
        throw std::runtime_error("No pipe");
    // Here, since what a process gives back does not lower its peak, and a new one has none yet.
    malloc_trim(0);
    const pid_t child = fork();
    if (child < 0)
        throw std::runtime_error("No process");
    if (child == 0)
        measure(action, ends[1]);
    close(ends[1]);
    std::size_t grown = 0;
    const bool isTold = read(ends[0], &grown, sizeof grown) == static_cast<ssize_t>(sizeof grown);
    close(ends[0]);
    int status = 0;
    waitpid(child, &status, 0);
    if (!isTold || status != 0)
        throw std::runtime_error("The metered action failed");
    return grown;
}

std::size_t heapInUse()
{
#ifdef ZEL_TEST_OWN_ALLOCATOR
    return __sanitizer_get_current_allocated_bytes();
#else
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
#endif
}

} // namespace ZelTest
