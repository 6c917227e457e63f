#pragma once

#include <cstdint>

namespace OvZel {

/// A date and time of day, part of its owner. Values out of range are clipped in silence.
class IZelTime {
public:
    /// 1 in a new time.
    virtual std::int32_t getMonth() const = 0;
    /// 1 to 12. The day is left alone and may end up too large for the new month.
    virtual void setMonth(std::int32_t month) = 0;
    /// 1 in a new time.
    virtual std::int32_t getDay() const = 0;
    /// 1 to 29 in month 2, to 30 in months 4, 6, 9 and 11, to 31 otherwise.
    virtual void setDay(std::int32_t day) = 0;
    /// 0 in a new time.
    virtual std::int32_t getHour() const = 0;
    /// 0 to 23.
    virtual void setHour(std::int32_t hour) = 0;
    /// 0 in a new time.
    virtual std::int32_t getMinute() const = 0;
    /// 0 to 59.
    virtual void setMinute(std::int32_t minute) = 0;
    /// 2004 in a new time.
    virtual std::int32_t getYear() const = 0;
    /// Any number.
    virtual void setYear(std::int32_t year) = 0;

protected:
    ~IZelTime() = default;
};

} // namespace OvZel
