#pragma once

#include "core/CBaseObjectMgr.h"
#include "core/CSelfBlock.h"
#include "core/CZelBasicData.h"
#include "core/TZelComPtr.h"
#include "core/TZelFrontier.h"

#include <zel/CZelVertex.h>
#include <zel/TZelObjectMgr.h>

#include <atomic>

namespace OvZel {

/// What TObjectMgrBase is to other lists, for one of which there are a million.
///
/// Nobody asks a loop's vertices for their link or control block, so the list counts by itself
/// until somebody does; then the block holds one count for all of that count's holders.
class CVertexMgrBase : public TZelFrontier<TZelObjectMgr<CZelVertex>>, public CZelBasicData {
public:
    using CBlockObject = CVertexMgrBase;

    ~CVertexMgrBase() override;
    CVertexMgrBase(const CVertexMgrBase&) = delete;
    CVertexMgrBase& operator=(const CVertexMgrBase&) = delete;

    std::int32_t QueryInterface(const CZelUUID& iid, void** out) override;
    std::uint32_t AddRef() override;
    std::uint32_t Release() override;
    IZelObjectLink* getObjectLink() override { return links().base.get(); }
    IZelBasicData* getBasicData() override { return this; }
    CZelMgrRef* getWarningTarget() const override;

    /// Called by the owner when it goes, with its own block still there.
    void loseOwner() noexcept;

protected:
    /// The owner may be null; until it calls loseOwner it outlives this.
    explicit CVertexMgrBase(IZelObjectLink* owner) : mOwner(owner) {}

    void warning(const char* text) const;

    /// Indices are compared unsigned, so that a negative one is simply too large.
    static bool isBelow(std::int32_t index, std::size_t count)
    {
        return static_cast<std::size_t>(static_cast<std::uint32_t>(index)) < count;
    }

    // The buffer of the records. They may start in room that belongs to the list and goes with it.
    void recordsStartInRoom() { mAreInRoom = true; }
    void* resizeRecords(void* records, std::size_t oldSize, std::size_t newSize) noexcept;
    void freeRecords(void* records, std::size_t size) noexcept;

private:
    struct CLinks {
        CLinks(CVertexMgrBase* manager, IZelObjectLink* owner)
            : self(manager), base(new CBaseObjectMgr(self.get(), owner))
        {
        }

        CSelfBlock<CVertexMgrBase> self;
        TZelComPtr<CBaseObjectMgr> base;
    };

    CLinks& links() const;

    /// The links know the owner once they are made.
    union {
        mutable IZelObjectLink* mOwner;
        mutable CLinks* mLinks;
    };
    std::atomic<std::uint32_t> mHolders{0};
    mutable bool mHasLinks = false;
    bool mAreInRoom = false;
};

} // namespace OvZel
