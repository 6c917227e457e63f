#pragma once

#include <cstdint>

namespace OvZel {

/// Counts in a file are claims: no more room than for this many records is made before the records
/// have arrived.
inline constexpr std::int32_t kRoomAhead = 65'536;

} // namespace OvZel
