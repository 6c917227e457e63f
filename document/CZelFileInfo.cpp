#include "document/CZelFileInfo.h"

#include <algorithm>

namespace OvZel {

void CZelFileInfo::setOrigin(const double* origin)
{
    if (origin != nullptr)
        std::copy_n(origin, 3, mOrigin);
}

} // namespace OvZel
