#include "core/localTime.h"

namespace OvZel {

bool toLocalTime(std::int64_t seconds, std::tm& parts)
{
    const auto time = static_cast<std::time_t>(seconds);
    return localtime_r(&time, &parts) != nullptr;
}

std::int64_t fromUniversalTime(std::tm parts)
{
    return static_cast<std::int64_t>(timegm(&parts));
}

} // namespace OvZel
