#pragma once

#include <cstdint>

namespace OvZel {

/// The time at which a universal clock shows what the clock of this machine shows at the given
/// one, its daylight hour taken off. Both in seconds since the start of 1970.
///
/// A time that the system cannot break down comes back as it is.
std::int64_t localToUniversal(std::int64_t seconds);

} // namespace OvZel
