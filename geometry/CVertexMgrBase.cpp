#include "geometry/CVertexMgrBase.h"

#include "core/CZelMgrRef.h"
#include "core/changeCount.h"
#include "core/query.h"

#include <exception>
#include <memory>

namespace OvZel {

CVertexMgrBase::~CVertexMgrBase()
{
    if (mHasLinks)
        delete mLinks;
}

std::int32_t CVertexMgrBase::QueryInterface(const CZelUUID& iid, void** out)
{
    return query(static_cast<TZelObjectMgr<CZelVertex>*>(this), IZelObjectMgrBase::sIID, iid, out);
}

std::uint32_t CVertexMgrBase::AddRef()
{
    if (changeCount(mHolders, 1, 1))
        return 1;
    const Orvane::XCMutexRecursive::CLock lock(countMutex());
    if (mHolders.fetch_add(1, std::memory_order_acq_rel) == 0 && mHasLinks)
        mLinks->self.addRef();
    return 1;
}

std::uint32_t CVertexMgrBase::Release()
{
    if (changeCount(mHolders, 2, kMinusOne))
        return 1;
    const Orvane::XCMutexRecursive::CLock lock(countMutex());
    if (mHolders.fetch_sub(1, std::memory_order_acq_rel) != 1)
        return 1;
    if (mHasLinks)
        mLinks->self.release();
    else
        delete this;
    return 1;
}

CZelMgrRef* CVertexMgrBase::getWarningTarget() const
{
    if (mHasLinks)
        return CZelMgrRef::from(mLinks->base->getMgrRef());
    return mOwner != nullptr ? CZelMgrRef::from(mOwner->getMgrRef()) : nullptr;
}

void CVertexMgrBase::loseOwner() noexcept
{
    if (mHasLinks)
        return;
    try {
        // Who keeps the list finds the document through it even now.
        if (mHolders.load(std::memory_order_acquire) > 1) {
            links();
            return;
        }
    } catch (const std::exception&) {
        // Without memory it is a list without an owner.
    }
    mOwner = nullptr;
}

void CVertexMgrBase::warning(const char* text) const
{
    if (CZelMgrRef* target = getWarningTarget())
        target->warning(text);
}

CVertexMgrBase::CLinks& CVertexMgrBase::links() const
{
    if (mHasLinks)
        return *mLinks;
    auto made = std::make_unique<CLinks>(const_cast<CVertexMgrBase*>(this), mOwner);
    const Orvane::XCMutexRecursive::CLock lock(countMutex());
    if (mHolders.load(std::memory_order_acquire) > 0)
        made->self.addRef();
    mLinks = made.release();
    mHasLinks = true;
    return *mLinks;
}

} // namespace OvZel
