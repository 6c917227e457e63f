#include "core/CBaseObjectMgr.h"

#include "core/CZelMgrRef.h"
#include "core/query.h"

namespace OvZel {

CBaseObjectMgr::CBaseObjectMgr(IZelSharedPtrBase* managerBlock, IZelObjectLink* owner)
    : mSelf(this), mManagerBlock(managerBlock),
      mMgrRef(owner != nullptr ? owner->getMgrRef() : nullptr), mOwner(owner)
{
    mManagerBlock->addWeakRef();
}

CBaseObjectMgr::~CBaseObjectMgr()
{
    mManagerBlock->releaseWeakRef();
}

std::int32_t CBaseObjectMgr::QueryInterface(const CZelUUID& iid, void** out)
{
    return query(static_cast<IZelObjectLinkRef*>(this), IZelObjectLinkRef::sIID, iid, out);
}

void CBaseObjectMgr::warning(const char* text) const
{
    if (mMgrRef)
        CZelMgrRef::from(mMgrRef.get())->warning(text);
}

} // namespace OvZel
