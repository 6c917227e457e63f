#include "core/localToUniversal.h"

#include "core/localTime.h"

namespace OvZel {

std::int64_t localToUniversal(std::int64_t seconds)
{
    std::tm parts{};
    if (!toLocalTime(seconds, parts))
        return seconds;
    parts.tm_hour -= parts.tm_isdst;
    if (parts.tm_hour < 0) {
        parts.tm_hour += 24;
        --parts.tm_mday;
    }
    return fromUniversalTime(parts);
}

} // namespace OvZel
