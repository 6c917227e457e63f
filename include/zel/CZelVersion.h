#pragma once

#include <cstdint>

namespace OvZel {

/// A version "major.minor.patch"; versions compare in this order.
struct CZelVersion {
    std::int32_t major = 0; ///< counts first
    std::int32_t minor = 0; ///< within a major version
    std::int32_t patch = 0; ///< within a minor version
};

/// By major, minor and patch, in this order.
constexpr bool operator==(const CZelVersion& a, const CZelVersion& b)
{
    return a.major == b.major && a.minor == b.minor && a.patch == b.patch;
}
constexpr bool operator!=(const CZelVersion& a, const CZelVersion& b)
{
    return !(a == b);
}
constexpr bool operator<(const CZelVersion& a, const CZelVersion& b)
{
    if (a.major != b.major)
        return a.major < b.major;
    if (a.minor != b.minor)
        return a.minor < b.minor;
    return a.patch < b.patch;
}
constexpr bool operator>(const CZelVersion& a, const CZelVersion& b)
{
    return b < a;
}
constexpr bool operator<=(const CZelVersion& a, const CZelVersion& b)
{
    return !(b < a);
}
constexpr bool operator>=(const CZelVersion& a, const CZelVersion& b)
{
    return !(a < b);
}

} // namespace OvZel
