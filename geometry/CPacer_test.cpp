#include "geometry/CPacer.h"

#include "tests/support/CTestBlockHost.h"

#include <gtest/gtest.h>

using namespace OvZel;
using ZelTest::CTestBlockHost;

namespace {

std::int64_t theTime = 0;
int theQuestions = 0;

std::int64_t testClock()
{
    ++theQuestions;
    return theTime;
}

struct CStep {
    std::int32_t index;
    std::int64_t time;
};

std::vector<CTestBlockHost::CReport> reports(std::int32_t base, std::int32_t count,
                                             const std::vector<CStep>& steps)
{
    CTestBlockHost host;
    CPacer pacer(host, base, count, testClock);
    for (const auto& [index, time] : steps) {
        theTime = time;
        pacer.step(index);
    }
    return host.reports;
}

using CReports = std::vector<CTestBlockHost::CReport>;

} // namespace

TEST(Pacer, ReportsOncePerHundredRecordsAndMilliseconds)
{
    const std::vector<CStep> steps = {
        {0, 1000},   // the first record
        {99, 2000},  // too few records
        {100, 1100}, // exactly 100 ms are too few
        {199, 1200}, // the check at 100 has put the next one off
        {200, 1101}, {300, 1202}, {400, 1203},
    };
    EXPECT_EQ(reports(0, 400, steps), (CReports{{0, 2000}, {500, 2000}, {750, 2000}}));
}

TEST(Pacer, EndIsReportedUnderTheSameCondition)
{
    EXPECT_EQ(reports(0, 150, {{0, 101}, {100, 150}, {150, 202}}),
              (CReports{{0, 2000}, {1000, 2000}}));
    EXPECT_EQ(reports(0, 150, {{0, 101}, {100, 150}, {150, 201}}), (CReports{{0, 2000}}));
}

TEST(Pacer, EmptyBlockReportsItsEnd)
{
    EXPECT_EQ(reports(1000, 0, {{0, 500}}), (CReports{{1000, 2000}}));
    EXPECT_EQ(reports(1000, -4, {{0, 500}}), (CReports{{1000, 2000}}));
    EXPECT_EQ(reports(0, 0, {{0, 100}}), CReports{});
}

TEST(Pacer, PositionsDoNotOverflow)
{
    const std::int32_t count = 2'147'483'647;
    EXPECT_EQ(reports(1000, count, {{0, 500}, {count - 1, 1000}, {count, 2000}}),
              (CReports{{1000, 2000}, {1999, 2000}, {2000, 2000}}));
}

TEST(Pacer, AsksTheClockOncePerHundredRecords)
{
    CTestBlockHost host;
    CPacer pacer(host, 0, 10'000, testClock);
    theQuestions = 0;
    for (std::int32_t i = 0; i <= 10'000; ++i)
        pacer.step(i);
    EXPECT_EQ(theQuestions, 101);
}

TEST(Pacer, CancelPassesThrough)
{
    CTestBlockHost host;
    host.cancel = true;
    theTime = 1000;
    CPacer pacer(host, 0, 10, testClock);
    EXPECT_THROW(pacer.step(0), CZelCancelled);
}
