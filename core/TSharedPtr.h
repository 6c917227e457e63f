#pragma once

#include "core/XCMutexRecursive.h"
#include "core/changeCount.h"
#include "core/inlined.h"

#include <zel/IZelSharedPtrBase.h>

#include <atomic>
#include <cstdint>
#include <utility>

namespace OvZel {

/// The library-wide lock of all reference counts.
Orvane::XCMutexRecursive& countMutex();

/// The interface part of a control block: the object, without its type.
class CZelSharedPtrObject : public IZelSharedPtrBase {
public:
    bool isAlive() const { return mObject.load(std::memory_order_acquire) != nullptr; }
    void resetPtr() override { mObject.store(nullptr, std::memory_order_release); }

    /// Every control block is one of these; clients make none.
    static const CZelSharedPtrObject* from(const IZelSharedPtrBase* block)
    {
        return static_cast<const CZelSharedPtrObject*>(block);
    }

protected:
    explicit CZelSharedPtrObject(void* object) : mObject(object) {}
    ~CZelSharedPtrObject() = default;

    std::atomic<void*> mObject;
};

/// The same with the type of the object.
template <class T>
class TZelSharedPtr : public CZelSharedPtrObject {
public:
    /// Null once the object is gone.
    T* get() const { return static_cast<T*>(mObject.load(std::memory_order_acquire)); }

protected:
    explicit TZelSharedPtr(T* object) : CZelSharedPtrObject(object) {}
    ~TZelSharedPtr() = default;
};

/// The count part of a control block.
///
/// The strong side as a whole holds one weak count. A count that stays at one or more changes by
/// compare-exchange; 0 to 1, 1 to 0 and destruction happen under the library-wide lock, which is
/// recursive since the death of one object gives up references to others. While the process has
/// one thread, plain operations do.
class CZelSharedPtrBase {
public:
    virtual void destroyObject() = 0;
    virtual void destroyBlock() { delete this; }
    virtual ~CZelSharedPtrBase() = default;

protected:
    ZEL_INLINED void raiseStrong()
    {
        if (!changeCount(mStrong, 1, 1))
            raiseStrongFromZero();
    }
    ZEL_INLINED void lowerStrong(bool destroy)
    {
        if (!changeCount(mStrong, 2, kMinusOne))
            lowerStrongToZero(destroy);
    }
    void raiseWeak();
    void lowerWeak();

private:
    void raiseStrongFromZero();
    void lowerStrongToZero(bool destroy);

    std::atomic<std::uint32_t> mStrong{0};
    std::atomic<std::uint32_t> mWeak{0};
};

/// The control block of a T: its counts, and the object until it dies. One heap block, apart from
/// the object, since a weak pointer may outlive it.
template <class T>
class TSharedPtr final : public TZelSharedPtr<T>, public CZelSharedPtrBase {
public:
    explicit TSharedPtr(T* object) : TZelSharedPtr<T>(object) {}

    void addRef() override { raiseStrong(); }
    void release() override { lowerStrong(true); }
    void addWeakRef() override { raiseWeak(); }
    void releaseWeakRef() override { lowerWeak(); }
    void detachRef() override { lowerStrong(false); }

    void destroyObject() override
    {
        delete static_cast<T*>(this->mObject.exchange(nullptr, std::memory_order_acq_rel));
    }
};

/// The library-wide block whose object is always null.
IZelSharedPtrBase* nullBlock();

} // namespace OvZel
