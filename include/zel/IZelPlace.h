#pragma once

#include <cstdint>

namespace OvZel {

/// A place on the earth, part of its owner. Nothing is clipped; a new place has zeros and no
/// daylight time.
class IZelPlace {
public:
    /// As the client counts it.
    virtual std::int32_t getLongitude() const = 0;
    virtual void setLongitude(std::int32_t longitude) = 0;
    /// As the client counts it.
    virtual std::int32_t getLatitude() const = 0;
    virtual void setLatitude(std::int32_t latitude) = 0;
    /// Minutes.
    virtual std::int32_t getTimeZone() const = 0;
    virtual void setTimeZone(std::int32_t minutes) = 0;
    /// Whether daylight saving time holds.
    virtual bool getDaylight() const = 0;
    virtual void setDaylight(bool daylight) = 0;

protected:
    ~IZelPlace() = default;
};

} // namespace OvZel
