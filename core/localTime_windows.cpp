#include "core/localTime.h"

#include <limits>

namespace OvZel {

namespace {

// The runtime knows the years from 1970 to 3000. The calendar repeats itself every 400 years, so
// other times are taken from the years 1972 to 2371.
constexpr std::int64_t kDay = 24 * 60 * 60;
constexpr std::int64_t kFirst = 730 * kDay; // 1 January 1972
constexpr std::int64_t kCycle = 146097 * kDay;

struct CCycles {
    std::int64_t nb;
    std::int64_t rest;
};

CCycles divide(std::int64_t value, std::int64_t by)
{
    std::int64_t nb = value / by;
    if (value % by < 0)
        --nb;
    return {nb, value - nb * by};
}

} // namespace

bool toLocalTime(std::int64_t seconds, std::tm& parts)
{
    if (seconds < std::numeric_limits<std::int64_t>::min() + kCycle)
        return false;
    const auto [nb, rest] = divide(seconds - kFirst, kCycle);
    const __time64_t time = rest + kFirst;
    if (_localtime64_s(&parts, &time) != 0)
        return false;
    const std::int64_t year = parts.tm_year + 400 * nb;
    if (year < std::numeric_limits<int>::min() || year > std::numeric_limits<int>::max())
        return false;
    parts.tm_year = static_cast<int>(year);
    return true;
}

std::int64_t fromUniversalTime(std::tm parts)
{
    const auto [nb, rest] = divide(std::int64_t{parts.tm_year} - 72, 400);
    parts.tm_year = static_cast<int>(rest) + 72;
    return _mkgmtime64(&parts) + nb * kCycle;
}

} // namespace OvZel
