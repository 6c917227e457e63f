#pragma once

#include "core/TSharedPtr.h"

#include <cstdint>

namespace OvZel {

/// An object's own control block, made with the object. The destructor clears the object pointer
/// before it gives the block back, so that a weak pointer never sees a dead object.
template <class T>
class CSelfBlock {
public:
    explicit CSelfBlock(T* object) : mBlock(new TSharedPtr<T>(object)) { mBlock->addWeakRef(); }
    ~CSelfBlock()
    {
        mBlock->resetPtr();
        mBlock->releaseWeakRef();
    }
    CSelfBlock(const CSelfBlock&) = delete;
    CSelfBlock& operator=(const CSelfBlock&) = delete;

    TZelSharedPtr<T>* get() const { return mBlock; }

    /// The count cannot be observed: both operations answer 1.
    std::uint32_t addRef() const
    {
        mBlock->addRef();
        return 1;
    }
    std::uint32_t release() const
    {
        mBlock->release();
        return 1;
    }

private:
    TSharedPtr<T>* mBlock; // by its final type, so that counting takes no virtual call
};

} // namespace OvZel
