#pragma once

#include "core/TSharedPtr.h"
#include "core/TZelWeakPtr.h"

#include <cstdint>

namespace OvZel {

/// An object's own control block, made with the object. The destructor clears the object pointer
/// before it gives the block back, so that a weak pointer never sees a dead object.
template <class T>
class CSelfBlock {
public:
    explicit CSelfBlock(T* object) : mWeak(new TSharedPtr<T>(object)) {}
    ~CSelfBlock() { get()->resetPtr(); }
    CSelfBlock(const CSelfBlock&) = delete;
    CSelfBlock& operator=(const CSelfBlock&) = delete;

    TZelSharedPtr<T>* get() const { return mWeak.getSharedPtr(); }

    /// The count cannot be observed: both operations answer 1.
    std::uint32_t addRef() const
    {
        get()->addRef();
        return 1;
    }
    std::uint32_t release() const
    {
        get()->release();
        return 1;
    }

private:
    TZelWeakPtr<T> mWeak;
};

} // namespace OvZel
