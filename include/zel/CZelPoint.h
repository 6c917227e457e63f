#pragma once

#include <zel/CZelUUID.h>

namespace OvZel {

/// A point or vector, the record of point lists.
struct CZelPoint {
    static constexpr CZelUUID sIID{"C821EB72833F4FFDBB6A3122214E5B64"};

    double x = 0.0; ///< along the X axis
    double y = 0.0; ///< along the Y axis
    double z = 0.0; ///< along the Z axis
};

static_assert(sizeof(CZelPoint) == 24, "points cross the boundary as three doubles");

} // namespace OvZel
