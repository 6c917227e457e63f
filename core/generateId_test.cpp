#include "core/generateId.h"

#include <gtest/gtest.h>

#include <set>
#include <thread>

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
