#include <gtest/gtest.h>

TEST(GenerateId, DiffersBetweenAProcessAndItsFork)
{
    GTEST_SKIP() << "Windows has no fork";
}
