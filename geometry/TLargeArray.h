#pragma once

#include "core/TLargeAllocator.h"

#include <type_traits>
#include <utility>

namespace OvZel {

/// Room for plain records, none of which is touched before somebody writes to it.
template <class T>
class TLargeArray {
    static_assert(std::is_trivially_copyable_v<T>, "records are neither made nor destroyed");

public:
    TLargeArray() = default;
    /// Raises std::bad_alloc.
    explicit TLargeArray(std::size_t room)
        : mRecords(TLargeAllocator<T>().allocate(room)), mRoom(room)
    {
    }
    TLargeArray(TLargeArray&& other) noexcept
        : mRecords(std::exchange(other.mRecords, nullptr)), mRoom(std::exchange(other.mRoom, 0))
    {
    }
    TLargeArray& operator=(TLargeArray&& other) noexcept
    {
        std::swap(mRecords, other.mRecords);
        std::swap(mRoom, other.mRoom);
        return *this;
    }
    ~TLargeArray()
    {
        if (mRecords != nullptr)
            TLargeAllocator<T>().deallocate(mRecords, mRoom);
    }

    T* data() const { return mRecords; }

private:
    T* mRecords = nullptr;
    std::size_t mRoom = 0;
};

} // namespace OvZel
