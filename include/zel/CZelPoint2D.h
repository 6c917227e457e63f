#pragma once

namespace OvZel {

/// A point in a plane, in normalised coordinates unless said otherwise.
struct CZelPoint2D {
    double x = 0.0; ///< along the width
    double y = 0.0; ///< along the height
};

static_assert(sizeof(CZelPoint2D) == 16, "plane points cross the boundary as two doubles");

} // namespace OvZel
