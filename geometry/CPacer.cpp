#include "geometry/CPacer.h"

#include "xml/IBlockHost.h"

#include <algorithm>
#include <chrono>

namespace OvZel {

namespace {

constexpr std::int64_t kRecords = 100;
constexpr std::int64_t kMilliseconds = 100;

} // namespace

CPacer::CPacer(IBlockHost& host, std::int32_t base, std::int32_t count, Clock clock)
    : mHost(host), mClock(clock), mBase(base), mCount(std::max(count, 1))
{
}

void CPacer::check(std::int32_t index)
{
    mNext = static_cast<std::int32_t>(std::min<std::int64_t>(index + kRecords, mCount));
    const std::int64_t now = mClock();
    if (now - mLast <= kMilliseconds)
        return;
    mLast = now;
    const std::int64_t done = std::int64_t{kSpan} * index / mCount;
    mHost.reportProgress(static_cast<std::int32_t>(mBase + done), kTotal);
}

std::int64_t CPacer::steadyClock()
{
    using namespace std::chrono;
    return duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
}

} // namespace OvZel
