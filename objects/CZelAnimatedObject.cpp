#include "objects/CZelAnimatedObject.h"

#include <algorithm>

namespace OvZel {

const char* CZelAnimatedObject::getExternalFile() const
{
    return mDefinition.data().getText("External.File");
}

void CZelAnimatedObject::setExternalFile(const char* file)
{
    mDefinition.data().setText("External.File", file);
}

void CZelAnimatedObject::setInitialMatrix(const double* matrix)
{
    if (matrix != nullptr)
        std::copy_n(matrix, 16, mInitialMatrix.begin());
}

} // namespace OvZel
