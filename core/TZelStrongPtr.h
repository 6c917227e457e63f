#pragma once

#include "core/TSharedPtr.h"
#include "core/TZelWeakPtr.h"

#include <stdexcept>
#include <utility>

namespace OvZel {

/// Keeps an object through its control block. C names the type of its block C::CBlockObject and
/// gives the block by getBlock().
template <class C>
class TZelStrongPtr {
public:
    using CBlock = TZelSharedPtr<typename C::CBlockObject>;

    TZelStrongPtr() = default;
    explicit TZelStrongPtr(CBlock* block) : mBlock(block)
    {
        if (mBlock != nullptr)
            mBlock->addRef();
    }
    explicit TZelStrongPtr(C* object)
        : TZelStrongPtr(object != nullptr ? object->getBlock() : nullptr)
    {
    }
    TZelStrongPtr(const TZelStrongPtr& other) : TZelStrongPtr(other.mBlock) {}
    TZelStrongPtr(TZelStrongPtr&& other) noexcept : mBlock(std::exchange(other.mBlock, nullptr)) {}
    /// Takes the new reference before it gives up the old one.
    TZelStrongPtr& operator=(TZelStrongPtr other) noexcept
    {
        std::swap(mBlock, other.mBlock);
        return *this;
    }
    ~TZelStrongPtr() { reset(); }

    void reset()
    {
        if (CBlock* block = std::exchange(mBlock, nullptr))
            block->release();
    }

    explicit operator bool() const { return mBlock != nullptr; }

    /// The object; raises on an empty pointer and on a block whose object is gone.
    C* getPtr() const
    {
        if (mBlock == nullptr)
            throw std::runtime_error("TZelStrongPtr::getPtr - Shared pointer is NULL");
        C* object = peek();
        if (object == nullptr)
            throw std::runtime_error("TZelStrongPtr::getPtr - Pointer is NULL");
        return object;
    }
    C* operator->() const { return getPtr(); }

    /// The object or null, for code that decides itself what a missing one means.
    C* peek() const { return mBlock != nullptr ? static_cast<C*>(mBlock->get()) : nullptr; }

private:
    CBlock* mBlock = nullptr;
};

} // namespace OvZel
