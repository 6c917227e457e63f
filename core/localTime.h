#pragma once

#include <cstdint>
#include <ctime>

namespace OvZel {

/// What the clock of this machine shows at a time, given in seconds since the start of 1970. False
/// when the system can't tell.
bool toLocalTime(std::int64_t seconds, std::tm& parts);
/// The time at which a universal clock shows the parts, which may be out of their ranges.
std::int64_t fromUniversalTime(std::tm parts);

} // namespace OvZel
