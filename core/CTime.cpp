#include "core/CTime.h"

#include "core/localNow.h"

#include <algorithm>

namespace OvZel {

namespace {

std::int32_t daysOf(std::int32_t month)
{
    switch (month) {
    case 2:
        return 29; // the year may be set later
    case 4:
    case 6:
    case 9:
    case 11:
        return 30;
    default:
        return 31;
    }
}

} // namespace

CTime::CTime()
{
    std::tm now{};
    if (!localNow(now))
        return;
    mDay = now.tm_mday;
    mMonth = now.tm_mon + 1;
    mHour = now.tm_hour;
    mMinute = now.tm_min;
    mYear = now.tm_year + 1900;
    if (mHour < 0) {
        mHour += 24;
        --mDay;
    }
}

CTime::CTime(std::int32_t month) : CTime()
{
    mDay = 1;
    mMonth = month;
    mHour = 0;
    mMinute = 0;
}

void CTime::setMonth(std::int32_t month)
{
    mMonth = std::clamp(month, 1, 12);
}

void CTime::setDay(std::int32_t day)
{
    mDay = std::clamp(day, 1, daysOf(mMonth));
}

void CTime::setHour(std::int32_t hour)
{
    mHour = std::clamp(hour, 0, 23);
}

void CTime::setMinute(std::int32_t minute)
{
    mMinute = std::clamp(minute, 0, 59);
}

} // namespace OvZel
