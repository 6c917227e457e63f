#pragma once

#include <ctime>

namespace OvZel {

/// The local time of now; false when the system has none.
bool localNow(std::tm& now);

} // namespace OvZel
