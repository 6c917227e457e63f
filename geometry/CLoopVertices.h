#pragma once

#include "core/TSimpleMgr.h"
#include "core/TZelComPtr.h"

#include <zel/CZelVertex.h>

#include <memory>
#include <span>

namespace OvZel {

/// The vertices of one loop.
///
/// A mesh has a million loops, and few of them are ever looked at. The records lie in a plain array
/// until somebody asks for the manager, which then takes them over for good.
class CLoopVertices {
public:
    /// The owner is the link of the object that holds the loop. The capacity is that of a new
    /// manager.
    CLoopVertices(IZelObjectLink* owner, std::int32_t capacity) : mOwner(owner), mCapacity(capacity)
    {
    }
    CLoopVertices(const CLoopVertices&) = delete;
    CLoopVertices& operator=(const CLoopVertices&) = delete;

    TSimpleMgr<CZelVertex>& manager() const { return mManager ? *mManager.get() : makeManager(); }
    /// Good until the loop changes.
    std::span<const CZelVertex> records() const;
    /// Replaces the records; false when memory runs out, with no record left.
    bool assign(std::span<const CZelVertex> records);
    /// Keeps the memory.
    void clear();

private:
    TSimpleMgr<CZelVertex>& makeManager() const;

    IZelObjectLink* mOwner;
    std::int32_t mCapacity;
    mutable std::int32_t mCount = 0;
    mutable std::unique_ptr<CZelVertex[]> mRecords;
    mutable TZelComPtr<TSimpleMgr<CZelVertex>> mManager;
};

} // namespace OvZel
