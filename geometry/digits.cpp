#include "geometry/digits.h"

namespace OvZel {

constinit const std::array<std::uint32_t, 10'000> kDigitFours = [] {
    std::array<std::uint32_t, 10'000> fours{};
    for (unsigned i = 0; i < 10'000; ++i)
        fours[i] = kDigitPairs[i / 100] | std::uint32_t{kDigitPairs[i % 100]} << 16;
    return fours;
}();

} // namespace OvZel
