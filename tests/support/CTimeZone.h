#pragma once

#include "tests/support/environment.h"

#include <cstdlib>
#include <optional>
#include <string>

namespace ZelTest {

/// Noon by daylight time is one hour ahead of noon by standard time, which is one hour ahead of
/// universal time.
inline constexpr char kParis[] = "CET-1CEST,M3.5.0,M10.5.0/3";

/// The time zone of the process for the length of a test.
class CTimeZone {
public:
    explicit CTimeZone(const char* zone)
    {
        if (const char* before = std::getenv("TZ"))
            mBefore = before;
        setTimeZone(zone);
    }
    ~CTimeZone() { setTimeZone(mBefore ? mBefore->c_str() : nullptr); }
    CTimeZone(const CTimeZone&) = delete;
    CTimeZone& operator=(const CTimeZone&) = delete;

private:
    std::optional<std::string> mBefore;
};

} // namespace ZelTest
