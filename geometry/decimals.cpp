#include "geometry/decimals.h"

#include <array>
#include <cstdint>
#include <cstring>

namespace OvZel {

namespace {

constexpr int kMost = 6;

/// "00" to "99".
constexpr std::array<char, 200> makePairs()
{
    std::array<char, 200> pairs{};
    for (unsigned i = 0; i < 100; ++i) {
        pairs[2 * i] = static_cast<char>('0' + i / 10);
        pairs[2 * i + 1] = static_cast<char>('0' + i % 10);
    }
    return pairs;
}

constexpr auto kPairs = makePairs();

} // namespace

char* putDecimalsDigitByDigit(char* out, double fraction)
{
    double rest = fraction;
    double tolerance = 1e-6;
    do {
        rest *= 10.0;
        tolerance *= 10.0;
        const int digit = static_cast<int>(rest);
        *out++ = static_cast<char>('0' + digit);
        rest -= digit;
    } while (rest > tolerance && tolerance < 0.9);
    return out;
}

char* putDecimals(char* out, double fraction)
{
    // The loop above stops where the digits behind would all be zeros, but for a rest on the very
    // edge. Its own rounding is far below the margin within which it is left to decide itself.
    constexpr double kMargin = 1e-8;
    const double scaled = fraction * 1e6;
    const auto whole = static_cast<std::uint32_t>(scaled);
    const double over = scaled - whole;
    if (over < kMargin || over > 1.0 - kMargin)
        return putDecimalsDigitByDigit(out, fraction);
    std::memcpy(out, &kPairs[whole / 10'000 * 2], 2);
    std::memcpy(out + 2, &kPairs[whole / 100 % 100 * 2], 2);
    std::memcpy(out + 4, &kPairs[whole % 100 * 2], 2);
    int count = kMost;
    while (count > 1 && out[count - 1] == '0')
        --count;
    return out + count;
}

} // namespace OvZel
