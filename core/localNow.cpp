#include "core/localNow.h"

#include "core/localTime.h"

namespace OvZel {

bool localNow(std::tm& now)
{
    const std::time_t seconds = std::time(nullptr);
    return seconds != static_cast<std::time_t>(-1) && toLocalTime(seconds, now);
}

} // namespace OvZel
