#include "core/CTime.h"

#include <gtest/gtest.h>

#include <ctime>

using namespace OvZel;

namespace {

struct CCase {
    std::int32_t given, kept;
};

} // namespace

TEST(Time, ClampsMonthHourAndMinute)
{
    CTime time;
    for (auto [given, kept] : {CCase{0, 1}, {1, 1}, {12, 12}, {13, 12}, {-5, 1}}) {
        time.setMonth(given);
        EXPECT_EQ(time.getMonth(), kept) << "given " << given;
    }
    for (auto [given, kept] : {CCase{-1, 0}, {0, 0}, {23, 23}, {24, 23}}) {
        time.setHour(given);
        EXPECT_EQ(time.getHour(), kept) << "given " << given;
    }
    for (auto [given, kept] : {CCase{-1, 0}, {0, 0}, {59, 59}, {60, 59}}) {
        time.setMinute(given);
        EXPECT_EQ(time.getMinute(), kept) << "given " << given;
    }
}

TEST(Time, ClampsTheDayByTheStoredMonth)
{
    const std::int32_t lastDays[] = {31, 29, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    CTime time;
    for (std::int32_t month = 1; month <= 12; ++month) {
        const std::int32_t last = lastDays[month - 1];
        time.setMonth(month);
        for (auto [given, kept] : {CCase{0, 1}, {1, 1}, {last, last}, {last + 1, last}}) {
            time.setDay(given);
            EXPECT_EQ(time.getDay(), kept) << "given " << given << " in month " << month;
        }
    }
}

TEST(Time, ANewMonthLeavesTheDayAlone)
{
    CTime time;
    time.setMonth(1);
    time.setDay(31);
    time.setMonth(2);
    EXPECT_EQ(time.getDay(), 31);
}

TEST(Time, TakesEveryYear)
{
    CTime time;
    for (const std::int32_t year : {-1, 0, 2004, 1'000'000}) {
        time.setYear(year);
        EXPECT_EQ(time.getYear(), year);
    }
}

TEST(Time, IsNowAtFirst)
{
    const std::time_t before = std::time(nullptr);
    const CTime time;
    const std::time_t after = std::time(nullptr);
    std::tm fields{};
    fields.tm_year = time.getYear() - 1900;
    fields.tm_mon = time.getMonth() - 1;
    fields.tm_mday = time.getDay();
    fields.tm_hour = time.getHour();
    fields.tm_min = time.getMinute();
    fields.tm_isdst = -1;
    const std::time_t told = std::mktime(&fields);
    EXPECT_GT(told, before - 60);
    EXPECT_LE(told, after);
}

TEST(Time, WithAMonthIsItsFirstMidnightInTheCurrentYear)
{
    const CTime now;
    const CTime time(6);
    EXPECT_EQ(time.getMonth(), 6);
    EXPECT_EQ(time.getDay(), 1);
    EXPECT_EQ(time.getHour(), 0);
    EXPECT_EQ(time.getMinute(), 0);
    EXPECT_LE(time.getYear() - now.getYear(), 1);
    EXPECT_GE(time.getYear(), now.getYear());
}
