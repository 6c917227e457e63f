#pragma once

#include "core/TZelFrontier.h"

#include <zel/IZelPlace.h>

namespace OvZel {

/// A place on the earth.
class CPlace : public TZelFrontier<IZelPlace> {
public:
    virtual ~CPlace() = default;

    std::int32_t getLongitude() const override { return mLongitude; }
    void setLongitude(std::int32_t longitude) override { mLongitude = longitude; }
    std::int32_t getLatitude() const override { return mLatitude; }
    void setLatitude(std::int32_t latitude) override { mLatitude = latitude; }
    std::int32_t getTimeZone() const override { return mTimeZone; }
    void setTimeZone(std::int32_t minutes) override { mTimeZone = minutes; }
    bool getDaylight() const override { return mDaylight; }
    void setDaylight(bool daylight) override { mDaylight = daylight; }

private:
    std::int32_t mLongitude = 0;
    std::int32_t mLatitude = 0;
    std::int32_t mTimeZone = 0;
    bool mDaylight = false;
};

} // namespace OvZel
