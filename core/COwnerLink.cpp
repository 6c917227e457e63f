#include "core/COwnerLink.h"

#include "core/TSharedPtr.h"

namespace OvZel {

COwnerLink::COwnerLink(IZelObjectLink* owner)
    : mOwner(owner), mCounted(dynamic_cast<IZelObjectLinkRef*>(owner))
{
    if (mOwner == nullptr || mCounted)
        return;
    mOwnerBlock = mOwner->getSelfWeakPtr();
    if (mOwnerBlock != nullptr)
        mOwnerBlock->addWeakRef();
}

COwnerLink::~COwnerLink()
{
    if (mOwnerBlock != nullptr)
        mOwnerBlock->releaseWeakRef();
}

IZelObjectLink* COwnerLink::get() const
{
    if (mCounted || mOwner == nullptr)
        return mOwner;
    const bool alive = mOwnerBlock != nullptr && CZelSharedPtrObject::from(mOwnerBlock)->isAlive();
    return alive ? mOwner : nullptr;
}

IZelMgrRef* COwnerLink::getMgrRef() const
{
    IZelObjectLink* owner = get();
    return owner != nullptr ? owner->getMgrRef() : nullptr;
}

} // namespace OvZel
