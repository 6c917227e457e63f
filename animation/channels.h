#pragma once

#include "xml/CZelLabel.h"

namespace OvZel {

/// Everything that can be animated, in the order of the format. The numbers are 1 to 279. One name
/// stands for 189 and for 190, so that 190 comes back as 189.
extern const CZelLabel kChannels[];

} // namespace OvZel
