#include "core/CObjectPool.h"

#include "core/largePages.h"

#include <algorithm>
#include <atomic>
#include <new>
#include <utility>
#include <vector>

namespace OvZel {

/// What stands in front of an object, and what lies in its place once it has gone.
struct CObjectPool::SRoom {
    CBlocks* blocks; // null for an object alone
    SRoom* next;     // where the object is, while there is one

    static constexpr std::size_t kHead = sizeof(CBlocks*);

    void* object() { return reinterpret_cast<char*>(this) + kHead; }
    static SRoom* of(void* object)
    {
        return reinterpret_cast<SRoom*>(static_cast<char*>(object) - kHead);
    }
};

/// The memory of a pool. The pool uses it, and so does each object.
class CObjectPool::CBlocks {
public:
    explicit CBlocks(std::size_t size) : mRoomSize(std::max(SRoom::kHead + size, sizeof(SRoom))) {}
    ~CBlocks()
    {
        for (void* block : mBlocks)
            ::operator delete(block);
    }

    SRoom* take()
    {
        if (mFree == nullptr)
            mFree = mReturned.exchange(nullptr, std::memory_order_acquire);
        SRoom* room = mFree;
        if (room != nullptr)
            mFree = room->next;
        else
            room = takeNew();
        room->blocks = this;
        mNbUsers.fetch_add(1, std::memory_order_relaxed);
        return room;
    }
    /// Only the thread that takes takes out, and all at once, so that nothing can come back
    /// between the two steps that looks like what was there.
    void giveBack(SRoom* room)
    {
        room->next = mReturned.load(std::memory_order_relaxed);
        while (!mReturned.compare_exchange_weak(room->next, room, std::memory_order_release,
                                                std::memory_order_relaxed))
            ;
        leave();
    }
    void leave()
    {
        if (mNbUsers.fetch_sub(1, std::memory_order_acq_rel) == 1)
            delete this;
    }

private:
    static constexpr std::size_t kFirstBlock = std::size_t{4} << 10;
    static constexpr std::size_t kMaxBlock = std::size_t{16} << 20;

    SRoom* takeNew()
    {
        if (mLeft < mRoomSize) {
            const std::size_t size = std::max(mBlockSize, mRoomSize);
            mBlocks.reserve(mBlocks.size() + 1);
            mNext = static_cast<char*>(::operator new(size));
            adviseLargePages(mNext, size);
            mBlocks.push_back(mNext);
            mLeft = size;
            mBlockSize = std::min(mBlockSize * 2, kMaxBlock);
        }
        mLeft -= mRoomSize;
        return new (std::exchange(mNext, mNext + mRoomSize)) SRoom;
    }

    const std::size_t mRoomSize;
    std::vector<void*> mBlocks;
    std::size_t mBlockSize = kFirstBlock;
    char* mNext = nullptr; // in the last block
    std::size_t mLeft = 0;
    SRoom* mFree = nullptr;
    std::atomic<SRoom*> mReturned{nullptr};
    std::atomic<std::size_t> mNbUsers{1};
};

CObjectPool::~CObjectPool()
{
    if (mBlocks != nullptr)
        mBlocks->leave();
}

void* CObjectPool::take()
{
    if (mBlocks == nullptr)
        mBlocks = new CBlocks((mSize + 7) & ~std::size_t{7});
    return mBlocks->take()->object();
}

void* CObjectPool::takeAlone(std::size_t size)
{
    auto* room = static_cast<SRoom*>(::operator new(std::max(SRoom::kHead + size, sizeof(SRoom))));
    room->blocks = nullptr;
    return room->object();
}

void CObjectPool::giveBack(void* object) noexcept
{
    SRoom* const room = SRoom::of(object);
    if (room->blocks != nullptr)
        room->blocks->giveBack(room);
    else
        ::operator delete(room);
}

} // namespace OvZel
