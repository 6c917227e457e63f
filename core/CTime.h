#pragma once

#include "core/TZelFrontier.h"

#include <zel/IZelTime.h>

namespace OvZel {

/// A date and time of day, without seconds.
class CTime : public TZelFrontier<IZelTime> {
public:
    /// Now, in local time.
    CTime();
    /// The first of that month at midnight, in the current year.
    explicit CTime(std::int32_t month);
    virtual ~CTime() = default;

    std::int32_t getMonth() const override { return mMonth; }
    void setMonth(std::int32_t month) override;
    std::int32_t getDay() const override { return mDay; }
    void setDay(std::int32_t day) override;
    std::int32_t getHour() const override { return mHour; }
    void setHour(std::int32_t hour) override;
    std::int32_t getMinute() const override { return mMinute; }
    void setMinute(std::int32_t minute) override;
    std::int32_t getYear() const override { return mYear; }
    void setYear(std::int32_t year) override { mYear = year; }

private:
    std::int32_t mDay = 1;
    std::int32_t mMonth = 1;
    std::int32_t mHour = 0;
    std::int32_t mMinute = 0;
    std::int32_t mYear = 2004;
};

} // namespace OvZel
