#include "core/CObjectPool.h"

#include "core/largePages.h"

#include <algorithm>
#include <atomic>
#include <new>
#include <utility>

#if defined(__SANITIZE_ADDRESS__)
#define ZEL_SANITIZES_ADDRESSES
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define ZEL_SANITIZES_ADDRESSES
#endif
#endif

#ifdef ZEL_SANITIZES_ADDRESSES
extern "C" void __asan_poison_memory_region(const volatile void* begin, std::size_t size);
extern "C" void __asan_unpoison_memory_region(const volatile void* begin, std::size_t size);
#endif

namespace OvZel {

namespace {

constexpr std::size_t kFirstBlock = std::size_t{4} << 10;
constexpr std::size_t kMaxBlock = std::size_t{16} << 20;

// The address sanitizer finds who still looks at an object that has gone.
void forbid([[maybe_unused]] void* begin, [[maybe_unused]] std::size_t size)
{
#ifdef ZEL_SANITIZES_ADDRESSES
    __asan_poison_memory_region(begin, size);
#endif
}

void allow([[maybe_unused]] void* begin, [[maybe_unused]] std::size_t size)
{
#ifdef ZEL_SANITIZES_ADDRESSES
    __asan_unpoison_memory_region(begin, size);
#endif
}

} // namespace

/// What stands in front of an object, and what lies in its place once it has gone.
struct alignas(8) CObjectPool::SRoom {
    SBlock* block; // null for an object alone
    union {
        SRoom* next;
        alignas(8) char object[8];
    };

    static constexpr std::size_t kHead = 8;

    static std::size_t sizeFor(std::size_t objectSize)
    {
        return (kHead + std::max(objectSize, sizeof object) + 7) & ~std::size_t{7};
    }
    static SRoom* of(void* object)
    {
        static_assert(offsetof(SRoom, object) == kHead);
        return reinterpret_cast<SRoom*>(static_cast<char*>(object) - kHead);
    }
};

/// Rooms follow. The pool uses a block until it lets go, and so does each object.
struct alignas(8) CObjectPool::SBlock {
    std::size_t roomSize;
    std::atomic<std::size_t> nbUsers{1};
    std::atomic<SRoom*> returned{nullptr};

    /// Only the thread that takes takes out, and all at once, so that nothing can come back between
    /// two steps that looks like what was there.
    void giveBack(SRoom* room) noexcept
    {
        forbid(room + 1, roomSize - sizeof(SRoom));
        room->next = returned.load(std::memory_order_relaxed);
        while (!returned.compare_exchange_weak(room->next, room, std::memory_order_release,
                                               std::memory_order_relaxed))
            ;
        leave();
    }
    void leave() noexcept
    {
        if (nbUsers.fetch_sub(1, std::memory_order_acq_rel) != 1)
            return;
        this->~SBlock();
        ::operator delete(this);
    }
};

CObjectPool::CObjectPool(std::size_t size)
    : mRoomSize(SRoom::sizeFor(size)), mBlockSize(kFirstBlock)
{
}

void* CObjectPool::take(std::size_t size)
{
    if (SRoom::kHead + size > mRoomSize)
        return takeAlone(size);
    if (mFree == nullptr)
        mFree = takeReturned();
    SRoom* room = mFree;
    if (room != nullptr)
        mFree = room->next;
    else
        room = takeNew();
    allow(room, mRoomSize);
    room->block->nbUsers.fetch_add(1, std::memory_order_relaxed);
    return room->object;
}

CObjectPool::SRoom* CObjectPool::takeReturned() noexcept
{
    // Mostly there is none, and to see that takes no exchange.
    for (SBlock* block : mBlocks)
        if (block->returned.load(std::memory_order_relaxed) != nullptr)
            return block->returned.exchange(nullptr, std::memory_order_acquire);
    return nullptr;
}

CObjectPool::SRoom* CObjectPool::takeNew()
{
    if (mLeft < mRoomSize) {
        const std::size_t size = std::max(mBlockSize, sizeof(SBlock) + mRoomSize);
        mBlocks.reserve(mBlocks.size() + 1);
        void* const memory = ::operator new(size);
        adviseLargePages(memory, size);
        mBlocks.push_back(new (memory) SBlock{mRoomSize});
        mNext = static_cast<char*>(memory) + sizeof(SBlock);
        mLeft = size - sizeof(SBlock);
        mBlockSize = std::min(mBlockSize * 2, kMaxBlock);
    }
    mLeft -= mRoomSize;
    auto* const room = new (std::exchange(mNext, mNext + mRoomSize)) SRoom;
    room->block = mBlocks.back();
    return room;
}

void* CObjectPool::takeAlone(std::size_t size)
{
    auto* const room = new (::operator new(SRoom::sizeFor(size))) SRoom;
    room->block = nullptr;
    return room->object;
}

void CObjectPool::giveBack(void* object) noexcept
{
    SRoom* const room = SRoom::of(object);
    if (room->block != nullptr)
        room->block->giveBack(room);
    else
        ::operator delete(room);
}

void CObjectPool::letGo() noexcept
{
    for (SBlock* block : std::exchange(mBlocks, {}))
        block->leave();
    mBlockSize = kFirstBlock;
    mLeft = 0;
    mFree = nullptr;
}

} // namespace OvZel
