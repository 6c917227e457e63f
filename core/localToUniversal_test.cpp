#include "core/localToUniversal.h"

#include "tests/support/CTimeZone.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>

using OvZel::localToUniversal;
using ZelTest::CTimeZone;
using ZelTest::kParis;

namespace {

constexpr std::int64_t kHour = 3600;
constexpr std::int64_t kWinter = 1104580800;      // 1 January 2005, 12:00 universal time
constexpr std::int64_t kSummer = 1120219200;      // 1 July 2005, 12:00 universal time
constexpr std::int64_t kSummerNight = 1120170600; // 30 June 2005, 22:30, in Paris 1 July, 0:30

} // namespace

TEST(LocalToUniversal, AddsTheOffsetOfStandardTime)
{
    struct {
        const char* zone;
        std::int64_t given, offset;
    } const cases[] = {
        {"UTC0", kWinter, 0},
        {"UTC0", 0, 0},
        {kParis, kWinter, kHour},
        {kParis, kSummer, kHour},      // the daylight hour is taken off
        {kParis, kSummerNight, kHour}, // and with it the day before
        {"EST5EDT,M3.2.0,M11.1.0", kWinter, -5 * kHour},
        {"EST5EDT,M4.1.0,M10.5.0", kSummer, -5 * kHour},
        {"<+0530>-5:30", kWinter, 5 * kHour + kHour / 2},
        {"<+14>-14", kSummer, 14 * kHour},
        {"<-12>12", 0, -12 * kHour}, // before 1970
        {"<-12>12", std::numeric_limits<std::int32_t>::min(), -12 * kHour},
        {"<+14>-14", std::numeric_limits<std::int32_t>::max(), 14 * kHour}, // wider than 32 bits
    };
    for (const auto& [zone, given, offset] : cases) {
        const CTimeZone set(zone);
        EXPECT_EQ(localToUniversal(given), given + offset) << zone << " " << given;
    }
}

TEST(LocalToUniversal, TheFirstHourOfAMonthInSummerFallsBackToTheMonthBefore)
{
    const CTimeZone set(kParis);
    // 0:30 on 1 July by the clock, 23:30 on 30 June without the daylight hour.
    EXPECT_EQ(localToUniversal(kSummerNight), kSummerNight + kHour);
}

TEST(LocalToUniversal, WhatCannotBeBrokenDownStays)
{
    const CTimeZone set(kParis);
    for (const std::int64_t given :
         {std::numeric_limits<std::int64_t>::max(), std::numeric_limits<std::int64_t>::min()})
        EXPECT_EQ(localToUniversal(given), given);
}
