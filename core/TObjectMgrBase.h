#pragma once

#include "core/CBaseObjectMgr.h"
#include "core/CSelfBlock.h"
#include "core/CZelBasicData.h"
#include "core/CZelMgrRef.h"
#include "core/TZelFrontier.h"
#include "core/largePages.h"
#include "core/query.h"

#include <zel/TZelObjectMgr.h>

#include <cstddef>

namespace OvZel {

/// What all managers share: their count, their basic data and the owner of their elements.
template <class T>
class TObjectMgrBase : public TZelFrontier<TZelObjectMgr<T>>, public CZelBasicData {
public:
    using CBlockObject = TObjectMgrBase;

    ~TObjectMgrBase() override = default;

    std::int32_t QueryInterface(const CZelUUID& iid, void** out) override
    {
        return query(static_cast<TZelObjectMgr<T>*>(this), IZelObjectMgrBase::sIID, iid, out);
    }
    std::uint32_t AddRef() override { return mSelf.addRef(); }
    std::uint32_t Release() override { return mSelf.release(); }
    IZelObjectLink* getObjectLink() override { return mBase.get(); }
    IZelBasicData* getBasicData() override { return this; }
    CZelMgrRef* getWarningTarget() const override { return CZelMgrRef::from(mBase->getMgrRef()); }

    TZelSharedPtr<TObjectMgrBase>* getBlock() const { return mSelf.get(); }
    /// The owner that elements are made with.
    CBaseObjectMgr* getBase() const { return mBase.get(); }

protected:
    /// The link of the manager's owner may be null.
    explicit TObjectMgrBase(IZelObjectLink* owner)
        : mSelf(this), mBase(new CBaseObjectMgr(mSelf.get(), owner))
    {
    }

    void warning(const char* text) const { mBase->warning(text); }

    /// Indices are compared unsigned, so that a negative one is simply too large.
    static bool isBelow(std::int32_t index, std::size_t count)
    {
        return static_cast<std::size_t>(static_cast<std::uint32_t>(index)) < count;
    }

    // The buffer of a list of records.
    static void* resizeRecords(void* records, std::size_t oldSize, std::size_t newSize) noexcept
    {
        return resizeBuffer(records, oldSize, newSize);
    }
    static void freeRecords(void* records, std::size_t size) noexcept { freeBuffer(records, size); }

private:
    CSelfBlock<TObjectMgrBase> mSelf;
    TZelComPtr<CBaseObjectMgr> mBase;
};

} // namespace OvZel
