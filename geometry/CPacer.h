#pragma once

#include <cstdint>

namespace OvZel {

class IBlockHost;

/// Decides when a geometry block reports its progress: the clock is asked once in a hundred
/// records, and a report is made when more than 100 milliseconds have passed since the last one.
class CPacer {
public:
    /// Gives milliseconds from an arbitrary start.
    using Clock = std::int64_t (*)();

    /// A document's geometry counts as 2000: 1000 for its points, 1000 for its polygons.
    static constexpr std::int32_t kSpan = 1000;
    static constexpr std::int32_t kTotal = 2000;

    CPacer(IBlockHost& host, std::int32_t base, std::int32_t count, Clock clock = steadyClock);

    /// To be called with every index and once more with the number of records. Raises what the host
    /// raises to cancel.
    void step(std::int32_t index)
    {
        if (index >= mNext)
            check(index);
    }

    static std::int64_t steadyClock();

private:
    void check(std::int32_t index);

    IBlockHost& mHost;
    Clock mClock;
    std::int64_t mLast = 0;
    std::int32_t mBase;
    std::int32_t mCount; // at least 1
    std::int32_t mNext = 0;
};

} // namespace OvZel
