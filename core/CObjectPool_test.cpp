#include "core/CObjectPool.h"

#include "tests/support/peakMemory.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <memory>
#include <set>
#include <vector>

using namespace OvZel;

namespace {

constexpr std::size_t kSize = 40;

class CThing : public CPooled {
public:
    explicit CThing(int given) : value(given)
    {
        if (given < 0)
            throw given;
    }

    int value;
    char rest[100]{};
};

} // namespace

TEST(ObjectPool, GivesEachObjectRoomOfItsOwn)
{
    CObjectPool pool(kSize);
    std::vector<char*> rooms;
    for (int i = 0; i < 10'000; ++i) {
        rooms.push_back(static_cast<char*>(pool.take(kSize)));
        EXPECT_EQ(reinterpret_cast<std::uintptr_t>(rooms.back()) % 8, 0U);
        std::memset(rooms.back(), i % 128, kSize);
    }
    for (std::size_t i = 0; i < rooms.size(); ++i)
        EXPECT_EQ(std::count(rooms[i], rooms[i] + kSize, i % 128), kSize);
    for (char* room : rooms)
        CObjectPool::giveBack(room);
}

TEST(ObjectPool, UsesRoomAgain)
{
    CObjectPool pool(kSize);
    std::set<void*> first;
    for (int round = 0; round < 3; ++round) {
        std::set<void*> rooms;
        for (int i = 0; i < 1000; ++i)
            rooms.insert(pool.take(kSize));
        for (void* room : rooms)
            CObjectPool::giveBack(room);
        if (round == 0)
            first = rooms;
        EXPECT_EQ(rooms, first);
    }
}

TEST(ObjectPool, HasRoomForWhatIsSmallerThanItsOwnNotes)
{
    CObjectPool pool(1);
    void* const a = pool.take(1);
    void* const b = pool.take(1);
    EXPECT_NE(a, b);
    CObjectPool::giveBack(a);
    CObjectPool::giveBack(b);
    CObjectPool::giveBack(CObjectPool::takeAlone(1));
}

TEST(ObjectPool, WhatIsTooLargeForItHasRoomAlone)
{
    CObjectPool pool(kSize);
    auto* const large = static_cast<char*>(pool.take(2 * kSize));
    auto* const behind = static_cast<char*>(pool.take(kSize));
    std::memset(behind, 1, kSize);
    std::memset(large, 2, 2 * kSize);
    EXPECT_EQ(std::count(behind, behind + kSize, 1), kSize);
    CObjectPool::giveBack(large);
    CObjectPool::giveBack(behind);
}

TEST(ObjectPool, BeginsAnewWhenItHasLetGo)
{
    CObjectPool pool(sizeof(CThing));
    for (int round = 0; round < 3; ++round) {
        std::vector<std::unique_ptr<CThing>> things;
        for (int i = 0; i < 1000; ++i)
            things.emplace_back(new (pool) CThing(i));
        pool.letGo();
        things.emplace_back(new (pool) CThing(1000));
        for (int i = 0; i <= 1000; ++i)
            EXPECT_EQ(things[static_cast<std::size_t>(i)]->value, i);
    }
}

TEST(ObjectPool, GivesMemoryBackWithTheLastObjectOfABlock)
{
    constexpr std::size_t kCount = 10'000, kMegabyte = 1'000'000;
    std::vector<std::unique_ptr<CThing>> things(kCount);
    const std::size_t before = ZelTest::heapInUse();
    CObjectPool pool(sizeof(CThing));
    for (auto& thing : things)
        thing.reset(new (pool) CThing(1));
    EXPECT_GT(ZelTest::heapInUse() - before, kMegabyte);
    pool.letGo();
    const std::unique_ptr<CThing> kept = std::move(things.front());
    things.clear();
    EXPECT_LT(ZelTest::heapInUse() - before, kMegabyte / 100);
}

TEST(ObjectPool, ItsObjectsOutliveIt)
{
    auto pool = std::make_unique<CObjectPool>(sizeof(CThing));
    const std::unique_ptr<CThing> thing(new (*pool) CThing(7));
    const std::unique_ptr<CThing> other(new (*pool) CThing(8));
    pool.reset();
    EXPECT_EQ(thing->value, 7);
    EXPECT_EQ(other->value, 8);
}

TEST(ObjectPool, AnObjectMayBeAlone)
{
    const std::unique_ptr<CThing> thing(new CThing(7));
    EXPECT_EQ(thing->value, 7);
}

TEST(ObjectPool, RoomOfAnObjectThatCannotBeMadeIsUsedAgain)
{
    CObjectPool pool(sizeof(CThing));
    void* const room = pool.take(sizeof(CThing));
    CObjectPool::giveBack(room);
    EXPECT_THROW(new (pool) CThing(-1), int);
    EXPECT_THROW(new CThing(-1), int);
    const std::unique_ptr<CThing> thing(new (pool) CThing(1));
    EXPECT_EQ(thing.get(), room);
}
