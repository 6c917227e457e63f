#include "core/CObjectPool.h"

#include <gtest/gtest.h>

#include <atomic>
#include <set>
#include <thread>
#include <vector>

using namespace OvZel;

// One thread takes while others give back, and the last of them ends the pool's memory.
TEST(PoolThread, RoomComesBackFromAnyThread)
{
    constexpr int kNbRounds = 200, kNbRooms = 64;
    std::set<void*> different;
    std::thread last;
    {
        CObjectPool pool(2 * sizeof(int));
        std::atomic<bool> isChanged{false};
        for (int round = 0; round < kNbRounds; ++round) {
            std::vector<int*> rooms;
            for (int i = 0; i < kNbRooms; ++i) {
                rooms.push_back(static_cast<int*>(pool.take(2 * sizeof(int))));
                rooms.back()[0] = round;
                rooms.back()[1] = i;
            }
            different.insert(rooms.begin(), rooms.end());
            if (last.joinable())
                last.join();
            last = std::thread([rooms, round, &isChanged] {
                for (int i = 0; i < kNbRooms; ++i) {
                    int* const room = rooms[static_cast<std::size_t>(i)];
                    if (room[0] != round || room[1] != i)
                        isChanged = true;
                    CObjectPool::giveBack(room);
                }
            });
        }
        last.join();
        EXPECT_FALSE(isChanged);
        last = std::thread([room = pool.take(2 * sizeof(int))] { CObjectPool::giveBack(room); });
    }
    last.join();
    // Room is taken while as much is on its way back, and none is lost.
    EXPECT_LE(different.size(), 2U * kNbRooms + 1);
}
