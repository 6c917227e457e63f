#pragma once

#include "tools/CTransform.h"

struct aiNode;

namespace tool {

/// From a node of an imported scene into its parent. Throws CToolError(eNotReadable) for one with
/// what isn't a number.
CTransform transformOf(const aiNode& node);

} // namespace tool
