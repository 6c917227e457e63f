#pragma once

#include <zel/CZelVersion.h>

namespace OvZel {

/// This library, as files name it.
inline constexpr CZelVersion kLibraryVersion{6, 0, 6};
/// From here on older libraries read our files without loss.
inline constexpr CZelVersion kSafeVersion{6, 0, 4};
/// From here on older libraries read our files at all.
inline constexpr CZelVersion kMinVersion{6, 0, 0};

} // namespace OvZel
