#include "geometry/CVertexMgrBase.h"

#include "core/CZelMgrRef.h"
#include "core/changeCount.h"
#include "core/largePages.h"
#include "core/query.h"

#include <cstring>
#include <exception>
#include <memory>
#include <utility>

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

void* CVertexMgrBase::resizeRecords(void* records, std::size_t oldSize,
                                    std::size_t newSize) noexcept
{
    if (!mAreInRoom)
        return resizeBuffer(records, oldSize, newSize);
    if (newSize <= oldSize)
        return records;
    void* const moved = resizeBuffer(nullptr, 0, newSize);
    if (moved == nullptr)
        return nullptr;
    std::memcpy(moved, records, oldSize);
    mAreInRoom = false;
    return moved;
}

void CVertexMgrBase::freeRecords(void* records, std::size_t size) noexcept
{
    if (!std::exchange(mAreInRoom, false))
        freeBuffer(records, size);
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
