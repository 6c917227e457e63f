#pragma once

#include "xml/CZelLabel.h"

namespace OvZel {

/// How an object stands on a surface; definitions and instances share it.
inline constexpr CZelLabel kPlacements[] = {{"Perpendicular", 0}, {"Vertical", 1}, {nullptr, 0}};
inline constexpr int kVertical = 1;

} // namespace OvZel
