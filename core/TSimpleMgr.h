#pragma once

#include "core/TObjectMgrBase.h"
#include "core/elementId.h"
#include "core/largePages.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <type_traits>

namespace OvZel {

/// A list of plain records in one flat buffer. A new record is all zero bytes. Base is what carries
/// the count, the basic data and the owner, and where the buffer comes from.
template <class T, class Base = TObjectMgrBase<T>>
class TSimpleMgr : public Base {
    static_assert(std::is_trivially_copyable_v<T>, "records are moved as bytes");

public:
    explicit TSimpleMgr(IZelObjectLink* owner, std::int32_t capacity = 0) : Base(owner)
    {
        if (capacity > 0)
            TSimpleMgr::reserve(capacity);
    }
    ~TSimpleMgr() override { this->freeRecords(mRecords, bufferSize()); }

    const CZelUUID* getObjectIID() const override { return elementId<T>(); }
    std::int32_t getNbObjects() const override { return mCount; }
    void removeObject(std::int32_t index) override;
    void moveObject(std::int32_t from, std::int32_t to) override;
    /// Keeps the buffer.
    void removeAllObjects() override { mCount = 0; }
    bool reserve(std::int32_t count) override;
    T* getZelObject(std::int32_t index) override;
    T* newZelObject(std::int32_t index) override;

    std::int32_t size() const { return mCount; }
    std::int32_t capacity() const { return mCapacity; }
    T* data() { return mRecords; }
    const T* data() const { return mRecords; }

    /// A zeroed record behind the last; null when memory runs out.
    T* append()
    {
        if (mCount == mCapacity && !grow())
            return nullptr;
        T* record = mRecords + mCount++;
        std::memset(static_cast<void*>(record), 0, sizeof(T));
        return record;
    }
    /// Keeps the memory when a smaller buffer cannot be had.
    void releaseSpareRoom() noexcept;
    /// Copies records behind the last; false when memory runs out.
    bool append(const T* records, std::int32_t count);

protected:
    /// For a new list: a buffer to begin with.
    void useRoom(T* room, std::int32_t capacity)
    {
        this->recordsStartInRoom();
        mRecords = room;
        mCapacity = capacity;
    }

private:
    bool grow();
    std::size_t bufferSize() const { return static_cast<std::size_t>(mCapacity) * sizeof(T); }

    std::int32_t mCount = 0;
    std::int32_t mCapacity = 0;
    T* mRecords = nullptr;
};

template <class T, class Base>
void TSimpleMgr<T, Base>::removeObject(std::int32_t index)
{
    if (index == -1) {
        if (mCount == 0)
            return this->warning("removeObject: no more object to remove");
        index = mCount - 1;
    }
    if (!this->isBelow(index, static_cast<std::size_t>(mCount)))
        return this->warning("removeObject: Bad index value");
    --mCount;
    std::memmove(static_cast<void*>(mRecords + index), mRecords + index + 1,
                 static_cast<std::size_t>(mCount - index) * sizeof(T));
}

template <class T, class Base>
void TSimpleMgr<T, Base>::moveObject(std::int32_t from, std::int32_t to)
{
    if (from == to)
        return;
    const auto count = static_cast<std::size_t>(mCount);
    if (!this->isBelow(from, count) || !this->isBelow(to, count))
        return this->warning("moveObject: Bad index value");
    const T record = mRecords[from];
    this->removeObject(from);
    if (T* place = this->newZelObject(to))
        *place = record;
}

template <class T, class Base>
bool TSimpleMgr<T, Base>::reserve(std::int32_t count)
{
    if (count < 0)
        return false;
    if (count < mCount)
        count = mCount;
    if (count == mCapacity)
        return true;
    const auto size = static_cast<std::size_t>(count) * sizeof(T);
    void* records = count > 0 ? this->resizeRecords(mRecords, bufferSize(), size) : nullptr;
    if (records == nullptr)
        this->freeRecords(mRecords, bufferSize());
    mRecords = static_cast<T*>(records);
    mCapacity = count;
    if (records != nullptr || count == 0)
        return true;
    mCount = mCapacity = 0;
    this->warning("No memory availiable");
    return false;
}

template <class T, class Base>
T* TSimpleMgr<T, Base>::getZelObject(std::int32_t index)
{
    if (this->isBelow(index, static_cast<std::size_t>(mCount)))
        return mRecords + index;
    this->warning("getZelObject: Bad index value");
    return nullptr;
}

template <class T, class Base>
T* TSimpleMgr<T, Base>::newZelObject(std::int32_t index)
{
    if (mCount == mCapacity && !grow())
        return nullptr;
    if (index == -1)
        index = mCount;
    if (!this->isBelow(index, static_cast<std::size_t>(mCount) + 1)) {
        this->warning("newZelObject: Bad index value");
        return nullptr;
    }
    T* record = mRecords + index;
    std::memmove(static_cast<void*>(record + 1), record,
                 static_cast<std::size_t>(mCount - index) * sizeof(T));
    std::memset(static_cast<void*>(record), 0, sizeof(T));
    ++mCount;
    return record;
}

template <class T, class Base>
void TSimpleMgr<T, Base>::releaseSpareRoom() noexcept
{
    if (mCount == mCapacity)
        return;
    const auto size = static_cast<std::size_t>(mCount > 0 ? mCount : 1) * sizeof(T);
    if (void* records = this->resizeRecords(mRecords, bufferSize(), size)) {
        mRecords = static_cast<T*>(records);
        mCapacity = mCount > 0 ? mCount : 1;
    }
}

template <class T, class Base>
bool TSimpleMgr<T, Base>::append(const T* records, std::int32_t count)
{
    if (count <= 0)
        return true;
    if (count > std::numeric_limits<std::int32_t>::max() - mCount)
        return false;
    if (mCount + count > mCapacity && !reserve(mCount + count))
        return false;
    std::memcpy(static_cast<void*>(mRecords + mCount), records,
                static_cast<std::size_t>(count) * sizeof(T));
    mCount += count;
    return true;
}

template <class T, class Base>
bool TSimpleMgr<T, Base>::grow()
{
    constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();
    if (mCapacity == kMost)
        return false;
    const std::size_t wanted =
        nextBufferSize(mCapacity == 0 ? sizeof(T) : bufferSize()) / sizeof(T);
    return this->reserve(static_cast<std::int32_t>(std::min<std::size_t>(wanted, kMost)));
}

} // namespace OvZel
