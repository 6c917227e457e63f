#include "materials/CParentLink.h"

#include "core/TSharedPtr.h"

#include <zel/ITCENode.h>
#include <zel/IZelObjectLink.h>

namespace OvZel {

ITCENode* CParentLink::get() const
{
    const bool alive = mBlock != nullptr && CZelSharedPtrObject::from(mBlock)->isAlive();
    return alive ? mParent : nullptr;
}

void CParentLink::set(ITCENode* parent)
{
    IZelSharedPtrBase* block =
        parent != nullptr ? parent->getObjectLink()->getSelfWeakPtr() : nullptr;
    if (block != nullptr)
        block->addWeakRef();
    if (mBlock != nullptr)
        mBlock->releaseWeakRef();
    mParent = parent;
    mBlock = block;
}

} // namespace OvZel
