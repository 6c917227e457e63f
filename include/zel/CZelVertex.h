#pragma once

#include <zel/CZelUUID.h>

#include <cstdint>

namespace OvZel {

/// One corner of a polygon's loop.
struct CZelVertex {
    static constexpr CZelUUID sIID{"39A68E1301F14D29AE55CDAB548A807E"};

    /// The two flags belong to the client; the library stores and copies them.
    static constexpr std::uint32_t kFlagI = 1;
    /// Says that u and v are saved.
    static constexpr std::uint32_t kFlagM = 2;

    /// Index into the points of the mesh; never checked.
    std::int32_t pointIndex = 0;
    std::uint32_t flags = 0; ///< kFlagI, kFlagM or both; 0 at first
    float u = 0.0F;          ///< across the texture, 0.0 at first
    float v = 0.0F;          ///< along the texture, 0.0 at first
};

static_assert(sizeof(CZelVertex) == 16, "vertices cross the boundary as 16 bytes");

} // namespace OvZel
