#pragma once

#include "core/CSection.h"

#include <atomic>

namespace Orvane {

/// A lock with an owner thread and a counter: the thread that holds it may take it again.
class XCMutexRecursive {
public:
    constexpr XCMutexRecursive() = default;
    XCMutexRecursive(const XCMutexRecursive&) = delete;
    XCMutexRecursive& operator=(const XCMutexRecursive&) = delete;

    void lock()
    {
        const void* self = thisThread();
        if (mOwner.load(std::memory_order_relaxed) != self) {
            mSection.lock();
            mOwner.store(self, std::memory_order_relaxed);
        }
        ++mCount;
    }

    void unlock()
    {
        if (--mCount == 0) {
            mOwner.store(nullptr, std::memory_order_relaxed);
            mSection.unlock();
        }
    }

    /// Holds the lock for a scope, also when an exception leaves it.
    class CLock {
    public:
        explicit CLock(XCMutexRecursive& mutex) : mMutex(mutex) { mMutex.lock(); }
        ~CLock() { mMutex.unlock(); }
        CLock(const CLock&) = delete;
        CLock& operator=(const CLock&) = delete;

    private:
        XCMutexRecursive& mMutex;
    };

private:
    /// An address that no other living thread has.
    static const void* thisThread()
    {
        static thread_local char marker;
        return &marker;
    }

    CSection mSection;
    std::atomic<const void*> mOwner{nullptr};
    int mCount = 0;
};

} // namespace Orvane
