#pragma once

#include <cstddef>

namespace OvZel {

/// Room for the objects of a list of which there are tens of thousands: they lie in large blocks,
/// in large pages, and the heap has no work with each.
///
/// One thread at a time takes room. It may be given back on any thread, since any may let go of an
/// object last, and after the pool is gone. The memory goes back to the system behind the pool and
/// the last object; until then the room of an object that has gone is for a later one.
class CObjectPool {
public:
    /// For objects of that size, of which the pool has none at first.
    explicit CObjectPool(std::size_t size) : mSize(size) {}
    ~CObjectPool();
    CObjectPool(const CObjectPool&) = delete;
    CObjectPool& operator=(const CObjectPool&) = delete;

    /// Raises when memory runs out. Aligned to 8.
    void* take();
    /// The same from the heap, for an object that is in no list.
    static void* takeAlone(std::size_t size);
    static void giveBack(void* room) noexcept;

private:
    struct SRoom;
    class CBlocks;

    std::size_t mSize;
    CBlocks* mBlocks = nullptr; // until the last that uses them is gone
};

/// The base of a class whose objects may lie in a pool: new (pool) C(..), or new C(..) alone.
class CPooled {
public:
    static void* operator new(std::size_t size) { return CObjectPool::takeAlone(size); }
    /// The pool is for objects of that very class.
    static void* operator new(std::size_t, CObjectPool& pool) { return pool.take(); }
    static void operator delete(void* room) { CObjectPool::giveBack(room); }
    static void operator delete(void* room, CObjectPool&) { CObjectPool::giveBack(room); }

protected:
    ~CPooled() = default;
};

} // namespace OvZel
