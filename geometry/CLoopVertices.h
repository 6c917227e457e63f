#pragma once

#include "core/TZelComPtr.h"
#include "geometry/CVertexMgr.h"

#include <span>

namespace OvZel {

/// A view on the vertices of one loop, whose manager is made at the first vertex or when somebody
/// asks for it. Lives no longer than the object that holds the loop.
class CLoopVertices {
public:
    using CSlot = TZelComPtr<CVertexMgr>;

    /// The owner is the link of the object that holds the loop. The capacity is that of a new
    /// manager.
    CLoopVertices(CSlot& slot, const IZelObjectLink* owner, std::int32_t capacity)
        : mSlot(slot), mOwner(owner), mCapacity(capacity)
    {
    }

    CVertexMgr& manager() const { return mSlot ? *mSlot.get() : make(0); }
    /// Good until the loop changes.
    std::span<const CZelVertex> records() const;
    /// Replaces the records; false when memory runs out, with no record left.
    bool assign(std::span<const CZelVertex> records) const;
    /// Keeps the memory.
    void clear() const;
    /// For the destructor of the holder.
    void loseOwner() const;

private:
    CVertexMgr& make(std::int32_t count) const;

    CSlot& mSlot;
    const IZelObjectLink* mOwner;
    std::int32_t mCapacity;
};

} // namespace OvZel
