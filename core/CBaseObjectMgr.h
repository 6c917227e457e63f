#pragma once

#include "core/COwnerLink.h"
#include "core/CSelfBlock.h"
#include "core/TZelComPtr.h"
#include "core/TZelFrontier.h"

#include <zel/IZelMgrRef.h>
#include <zel/IZelObjectLinkRef.h>

namespace OvZel {

/// The small counted owner that a manager gives to its elements: they keep this, not the manager,
/// and so still find the document's reference object when the manager is gone.
class CBaseObjectMgr : public TZelFrontier<IZelObjectLinkRef> {
public:
    using CBlockObject = CBaseObjectMgr;

    /// Takes the block of the manager and the link of the manager's owner, which may be null.
    CBaseObjectMgr(IZelSharedPtrBase* managerBlock, IZelObjectLink* owner);
    virtual ~CBaseObjectMgr();
    CBaseObjectMgr(const CBaseObjectMgr&) = delete;
    CBaseObjectMgr& operator=(const CBaseObjectMgr&) = delete;

    std::int32_t QueryInterface(const CZelUUID& iid, void** out) override;
    std::uint32_t AddRef() override { return mSelf.addRef(); }
    std::uint32_t Release() override { return mSelf.release(); }
    IZelMgrRef* getMgrRef() const override { return mMgrRef.get(); }
    IZelObjectLink* getOwnerLink() const override { return mOwner.get(); }
    IZelSharedPtrBase* getCOMWeakPtr() const override { return mManagerBlock; }
    IZelSharedPtrBase* getSelfWeakPtr() const override { return mManagerBlock; }

    /// Nothing is said without a document.
    void warning(const char* text) const;

private:
    CSelfBlock<CBaseObjectMgr> mSelf;
    IZelSharedPtrBase* mManagerBlock;
    TZelComPtr<IZelMgrRef> mMgrRef;
    COwnerLink mOwner;
};

} // namespace OvZel
