#include "core/CPlace.h"

#include <gtest/gtest.h>

#include <limits>

using namespace OvZel;

TEST(Place, IsAllZeroAtFirst)
{
    const CPlace place;
    EXPECT_EQ(place.getLongitude(), 0);
    EXPECT_EQ(place.getLatitude(), 0);
    EXPECT_EQ(place.getTimeZone(), 0);
    EXPECT_FALSE(place.getDaylight());
}

TEST(Place, KeepsWhateverItIsGiven)
{
    using CLimits = std::numeric_limits<std::int32_t>;
    CPlace place;
    place.setLongitude(CLimits::max());
    place.setLatitude(CLimits::min());
    place.setTimeZone(-100'000);
    place.setDaylight(true);
    EXPECT_EQ(place.getLongitude(), CLimits::max());
    EXPECT_EQ(place.getLatitude(), CLimits::min());
    EXPECT_EQ(place.getTimeZone(), -100'000);
    EXPECT_TRUE(place.getDaylight());
}
