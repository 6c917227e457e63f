#pragma once

#include "tools/pngFile.h"

namespace tool {

/// The picture in a square of so many pixels a side, with its proportions kept. Each new pixel is
/// the mean of what it covers, where a transparent pixel lends no colour. A picture that fits is
/// given back as it is.
CPicture shrinkPicture(CPicture picture, std::uint32_t side);

} // namespace tool
