#pragma once

namespace OvZel {

/// A point in a picture, in pixels.
struct CZelPixel2D {
    double x = 0.0; ///< along the width
    double y = 0.0; ///< along the height
};

static_assert(sizeof(CZelPixel2D) == 16, "pixel points cross the boundary as two doubles");

} // namespace OvZel
