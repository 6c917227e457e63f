#include "geometry/CLoopVertices.h"

#include <algorithm>

namespace OvZel {

std::span<const CZelVertex> CLoopVertices::records() const
{
    const CVertexMgr* manager = mSlot.get();
    if (manager == nullptr)
        return {};
    return {manager->data(), static_cast<std::size_t>(manager->size())};
}

bool CLoopVertices::assign(std::span<const CZelVertex> records) const
{
    clear();
    if (records.empty())
        return true;
    const auto count = static_cast<std::int32_t>(records.size());
    CVertexMgr& manager = mSlot ? *mSlot.get() : make(count);
    return manager.append(records.data(), count);
}

void CLoopVertices::clear() const
{
    if (CVertexMgr* manager = mSlot.get())
        manager->removeAllObjects();
}

void CLoopVertices::loseOwner() const
{
    if (CVertexMgr* manager = mSlot.get())
        manager->loseOwner();
}

CVertexMgr& CLoopVertices::make(std::int32_t count) const
{
    // A link has operations that change nothing, and the holder of a loop that is only looked at
    // is no less its owner.
    auto* owner = const_cast<IZelObjectLink*>(mOwner);
    mSlot = CSlot(CVertexMgr::make(owner, std::max(mCapacity, count)));
    return *mSlot.get();
}

} // namespace OvZel
