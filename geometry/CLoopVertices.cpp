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
    const std::int32_t capacity = std::max(mCapacity, count);
    // A loop that is made vertex by vertex would soon leave the room behind the list.
    CVertexMgr* const made = CVertexMgr::make(owner, count > 0 ? capacity : 0);
    mSlot = CSlot(made);
    // Last, since a failure is told to the client, who may then do anything with the holder, and
    // the slot may be elsewhere behind that.
    if (made->capacity() < capacity)
        made->reserve(capacity);
    return *made;
}

} // namespace OvZel
