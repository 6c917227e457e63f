#include "geometry/CVertexMgr.h"

#include <new>

namespace OvZel {

static_assert(sizeof(CVertexMgr) % alignof(CZelVertex) == 0, "vertices stand behind the list");

CVertexMgr* CVertexMgr::make(IZelObjectLink* owner, std::int32_t capacity)
{
    // A large buffer has ways of its own to grow.
    constexpr std::int32_t kMostBehind = 64;
    if (capacity > 0 && capacity <= kMostBehind) {
        const CRoom room{capacity};
        return new (room) CVertexMgr(owner, room);
    }
    return new CVertexMgr(owner);
}

CVertexMgr::CVertexMgr(IZelObjectLink* owner, CRoom room) : TSimpleMgr(owner)
{
    useRoom(reinterpret_cast<CZelVertex*>(this + 1), room.capacity);
}

void* CVertexMgr::operator new(std::size_t size, CRoom room)
{
    return ::operator new(size + static_cast<std::size_t>(room.capacity) * sizeof(CZelVertex));
}

} // namespace OvZel
