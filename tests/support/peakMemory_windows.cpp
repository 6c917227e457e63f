#include "tests/support/peakMemory.h"

#include <malloc.h>
#include <stdexcept>

namespace ZelTest {

bool canMeterMemory()
{
    return true;
}

bool canMeterPeaks()
{
    return false;
}

std::size_t peakMemoryOf(const std::function<void()>&)
{
    throw std::runtime_error("There is no fork to measure in");
}

std::size_t heapInUse()
{
    std::size_t size = 0;
    _HEAPINFO entry = {};
    while (_heapwalk(&entry) == _HEAPOK)
        if (entry._useflag == _USEDENTRY)
            size += entry._size;
    return size;
}

} // namespace ZelTest
