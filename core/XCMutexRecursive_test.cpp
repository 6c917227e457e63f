#include "core/XCMutexRecursive.h"

#include <gtest/gtest.h>

#include <atomic>
#include <stdexcept>
#include <thread>

using Orvane::XCMutexRecursive;

namespace {

/// Whether another thread gets the lock; it waits for nobody when it does.
bool isFree(XCMutexRecursive& mutex)
{
    std::atomic<bool> taken{false};
    std::thread other([&] {
        const XCMutexRecursive::CLock lock(mutex);
        taken = true;
    });
    other.join();
    return taken;
}

} // namespace

TEST(MutexRecursive, IsTakenAgainByItsThreadAndFreeAfterTheLastUnlock)
{
    XCMutexRecursive mutex;
    for (int round = 0; round < 2; ++round) {
        for (int i = 0; i < 3; ++i)
            mutex.lock();
        for (int i = 0; i < 3; ++i)
            mutex.unlock();
        EXPECT_TRUE(isFree(mutex));
    }
}

TEST(MutexRecursive, KeepsOtherThreadsOutUntilTheLastUnlock)
{
    XCMutexRecursive mutex;
    int value = 0;
    mutex.lock();
    mutex.lock();
    std::thread other([&] {
        const XCMutexRecursive::CLock lock(mutex);
        value = value * 10 + 2;
    });
    mutex.unlock();
    for (int i = 0; i < 100; ++i)
        std::this_thread::yield();
    value = 1;
    mutex.unlock();
    other.join();
    EXPECT_EQ(value, 12);
}

TEST(MutexRecursive, IsGivenBackWhenAnExceptionPasses)
{
    XCMutexRecursive mutex;
    EXPECT_THROW(
        {
            const XCMutexRecursive::CLock lock(mutex);
            throw std::runtime_error("passes");
        },
        std::runtime_error);
    EXPECT_TRUE(isFree(mutex));
}
