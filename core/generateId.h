#pragma once

#include <zel/CZelUUID.h>

namespace OvZel {

/// A new random identifier; raises "Can't create UUID" when the system has no random source. Any
/// thread; a forked process never repeats its parent's identifiers.
CZelUUID generateId();

} // namespace OvZel
