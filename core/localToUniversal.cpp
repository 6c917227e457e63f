#include "core/localToUniversal.h"

#include <ctime>

namespace OvZel {

std::int64_t localToUniversal(std::int64_t seconds)
{
    const auto local = static_cast<std::time_t>(seconds);
    std::tm parts{};
    if (localtime_r(&local, &parts) == nullptr)
        return seconds;
    parts.tm_hour -= parts.tm_isdst;
    if (parts.tm_hour < 0) {
        parts.tm_hour += 24;
        --parts.tm_mday;
    }
    return static_cast<std::int64_t>(timegm(&parts));
}

} // namespace OvZel
