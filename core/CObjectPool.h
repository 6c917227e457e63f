#pragma once

#include <cstddef>
#include <vector>

namespace OvZel {

/// Room for the objects of a list of which there are tens of thousands: they lie in large blocks,
/// in large pages, and the heap has no work with each.
///
/// One thread at a time takes room. It may be given back on any thread, since any may let go of an
/// object last, and after the pool is gone. The room of an object that has gone is for a later one;
/// a block that the pool has let go of goes back to the system with its last object.
class CObjectPool {
public:
    /// For objects of that size, of which the pool has none at first.
    explicit CObjectPool(std::size_t size);
    ~CObjectPool() { letGo(); }
    CObjectPool(const CObjectPool&) = delete;
    CObjectPool& operator=(const CObjectPool&) = delete;

    /// Aligned to 8. A larger object than the pool is for has room alone. Raises when memory runs
    /// out.
    void* take(std::size_t size);
    /// The same from the heap, for an object that is in no list.
    static void* takeAlone(std::size_t size);
    static void giveBack(void* object) noexcept;
    /// Lets go of all blocks, and begins anew with the next object.
    void letGo() noexcept;

private:
    struct SRoom;
    struct SBlock;

    SRoom* takeReturned() noexcept;
    SRoom* takeNew();

    const std::size_t mRoomSize;
    std::vector<SBlock*> mBlocks;
    std::size_t mBlockSize;
    char* mNext = nullptr; // in the last block
    std::size_t mLeft = 0;
    SRoom* mFree = nullptr;
};

/// The base of a class whose objects may lie in a pool: new (pool) C(..), or new C(..) alone.
class CPooled {
public:
    static void* operator new(std::size_t size) { return CObjectPool::takeAlone(size); }
    static void* operator new(std::size_t size, CObjectPool& pool) { return pool.take(size); }
    static void operator delete(void* object) { CObjectPool::giveBack(object); }
    static void operator delete(void* object, CObjectPool&) { CObjectPool::giveBack(object); }

protected:
    ~CPooled() = default;
};

} // namespace OvZel
