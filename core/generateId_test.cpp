#include "core/generateId.h"

#include <gtest/gtest.h>

#include <set>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

using namespace OvZel;

TEST(GenerateId, NeverRepeatsAndMarksTheVersion)
{
    std::set<CZelUUID> ids;
    for (int i = 0; i < 100'000; ++i) {
        const CZelUUID id = generateId();
        ASSERT_EQ(id.bytes[6] & 0xF0, 0x40);
        ASSERT_EQ(id.bytes[8] & 0xC0, 0x80);
        ids.insert(id);
    }
    EXPECT_EQ(ids.size(), 100'000u);
}

TEST(GenerateId, ChangesEveryOtherBit)
{
    CZelUUID seenOnes, seenZeros;
    for (int i = 0; i < 1000; ++i) {
        const CZelUUID id = generateId();
        for (std::size_t k = 0; k < 16; ++k) {
            seenOnes.bytes[k] = static_cast<std::uint8_t>(seenOnes.bytes[k] | id.bytes[k]);
            seenZeros.bytes[k] = static_cast<std::uint8_t>(seenZeros.bytes[k] | ~id.bytes[k]);
        }
    }
    EXPECT_EQ(seenOnes, CZelUUID("FFFFFFFFFFFF4FFFBFFFFFFFFFFFFFFF"));
    EXPECT_EQ(seenZeros, CZelUUID("FFFFFFFFFFFFBFFF7FFFFFFFFFFFFFFF"));
}

TEST(GenerateId, DiffersBetweenThreads)
{
    CZelUUID other;
    std::thread([&] { other = generateId(); }).join();
    EXPECT_NE(other, generateId());
}

TEST(GenerateId, DiffersBetweenAProcessAndItsFork)
{
    constexpr int kNbIds = 100; // more than are drawn at once
    generateId();
    int pipeEnds[2];
    ASSERT_EQ(pipe(pipeEnds), 0);
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        bool written = true;
        for (int i = 0; i < kNbIds; ++i) {
            const CZelUUID id = generateId();
            written = written && write(pipeEnds[1], &id, sizeof id) == sizeof id;
        }
        _exit(written ? 0 : 1);
    }
    close(pipeEnds[1]);
    std::set<CZelUUID> ids;
    CZelUUID id;
    while (read(pipeEnds[0], &id, sizeof id) == sizeof id)
        ids.insert(id);
    close(pipeEnds[0]);
    int status = -1;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    EXPECT_EQ(status, 0);
    for (int i = 0; i < kNbIds; ++i)
        ids.insert(generateId());
    EXPECT_EQ(ids.size(), 2u * kNbIds);
}
