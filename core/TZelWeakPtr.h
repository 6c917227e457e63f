#pragma once

#include "core/TSharedPtr.h"

#include <stdexcept>
#include <utility>

namespace OvZel {

/// Keeps the control block of an object, not the object.
template <class T>
class TZelWeakPtr {
public:
    TZelWeakPtr() = default;
    explicit TZelWeakPtr(TZelSharedPtr<T>* block) : mBlock(block)
    {
        if (mBlock != nullptr)
            mBlock->addWeakRef();
    }
    TZelWeakPtr(const TZelWeakPtr& other) : TZelWeakPtr(other.mBlock) {}
    TZelWeakPtr(TZelWeakPtr&& other) noexcept : mBlock(std::exchange(other.mBlock, nullptr)) {}
    TZelWeakPtr& operator=(TZelWeakPtr other) noexcept
    {
        std::swap(mBlock, other.mBlock);
        return *this;
    }
    ~TZelWeakPtr()
    {
        if (mBlock != nullptr)
            mBlock->releaseWeakRef();
    }

    /// The block, which may have lost its object; raises on an empty pointer.
    TZelSharedPtr<T>* getSharedPtr() const
    {
        if (mBlock == nullptr)
            throw std::runtime_error("TZelWeakPtr::getSharedPtr - Shared pointer is NULL");
        return mBlock;
    }

private:
    TZelSharedPtr<T>* mBlock = nullptr;
};

} // namespace OvZel
