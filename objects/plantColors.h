#pragma once

#include "xml/CZelLabel.h"

namespace OvZel {

/// The colours of plants; definitions and instances share them.
inline constexpr CZelLabel kPlantColors[] = {
    {"Undefined", -1}, {"White", 0},    {"Red", 1},    {"Orange", 2}, {"Rose", 3}, {"Purple", 4},
    {"LightBlue", 5},  {"DarkBlue", 6}, {"Yellow", 7}, {"Brown", 8},  {nullptr, 0}};
inline constexpr int kUndefinedColor = -1;

} // namespace OvZel
