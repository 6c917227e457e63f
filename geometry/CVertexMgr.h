#pragma once

#include "core/TSimpleMgr.h"
#include "geometry/CVertexMgrBase.h"

namespace OvZel {

/// The vertices of a loop. Most loops keep the vertices that they begin with, so the first ones
/// stand in one block of memory with the list.
///
///     CVertexMgr | CZelVertex .. to the capacity
class CVertexMgr final : public TSimpleMgr<CZelVertex, CVertexMgrBase> {
public:
    /// Without room. The owner may be null; until it calls loseOwner it outlives this.
    explicit CVertexMgr(IZelObjectLink* owner) : TSimpleMgr(owner) {}
    /// On the heap, with room for so many, but without any if they are too many to stand there.
    static CVertexMgr* make(IZelObjectLink* owner, std::int32_t capacity);

    static void* operator new(std::size_t size) { return ::operator new(size); }
    // What is behind the list goes with it.
    static void operator delete(void* list) { ::operator delete(list); }

private:
    struct CRoom {
        std::int32_t capacity;
    };

    CVertexMgr(IZelObjectLink* owner, CRoom room);
    static void* operator new(std::size_t size, CRoom room);
    static void operator delete(void* list, CRoom) { ::operator delete(list); }
};

} // namespace OvZel
