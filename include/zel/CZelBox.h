#pragma once

#include <zel/CZelPoint.h>

namespace OvZel {

/// A box with sides along the axes, as it was given: nothing puts its corners in order.
struct CZelBox {
    CZelPoint minimum; ///< lowest corner
    CZelPoint maximum; ///< highest corner
};

static_assert(sizeof(CZelBox) == 48, "boxes cross the boundary as six doubles");

} // namespace OvZel
