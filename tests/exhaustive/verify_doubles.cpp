#include "geometry/decimals.h"

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <string_view>

/// verify_doubles [COUNT [SEED]]: compares the two ways of writing decimals, number by number.
///
/// The quick way must give the texts of the one that defines them, for every number there is. A run
/// of hundreds of millions takes a minute; the tests take a few million.

namespace {

/// A magnitude of one of the kinds that meshes hold, or that lie on an edge.
double magnitude(std::mt19937_64& random)
{
    const auto bits = random();
    const double unit = static_cast<double>(bits >> 11) * 0x1p-53;
    switch (bits & 7) {
    case 0: // six decimals, as a modeller exports them
        return std::floor(unit * 1e9) / 1e6;
    case 1: // few decimals
        return std::floor(unit * 1e6) / 1e3;
    case 2: // half way between two texts, and a few steps beside
        return (std::floor(unit * 1e9) + 0.5) / 1e6 *
               (1.0 + static_cast<double>(bits >> 3 & 7) * 1e-16);
    case 3: // tiny
        return unit * 1e-5;
    case 4: // large
        return unit * 2147483647.0;
    case 5: // just below a whole number
        return std::floor(unit * 1e4) + 1.0 - std::ldexp(unit, -static_cast<int>(bits >> 3 & 31));
    default:
        return unit * 1e4;
    }
}

bool agree(double value)
{
    const double rounded = std::fabs(value) + 5e-7;
    const double fraction = rounded - static_cast<double>(static_cast<std::uint32_t>(rounded));
    char quick[8], defining[8];
    const std::string_view a(quick,
                             static_cast<std::size_t>(OvZel::putDecimals(quick, fraction) - quick));
    const std::string_view b(
        defining,
        static_cast<std::size_t>(OvZel::putDecimalsDigitByDigit(defining, fraction) - defining));
    if (a == b)
        return true;
    std::printf("%.17g: %.*s instead of %.*s\n", value, static_cast<int>(a.size()), a.data(),
                static_cast<int>(b.size()), b.data());
    return false;
}

} // namespace

int main(int argc, char** argv)
{
    const std::uint64_t count = argc > 1 ? std::strtoull(argv[1], nullptr, 10) : 300'000'000;
    const std::uint64_t seed = argc > 2 ? std::strtoull(argv[2], nullptr, 10) : 1;
    std::mt19937_64 random(seed);
    std::uint64_t bad = 0;
    for (std::uint64_t i = 0; i < count && bad < 20; ++i)
        bad += agree(magnitude(random)) ? 0 : 1;
    std::printf("%llu numbers, seed %llu, %llu differences\n",
                static_cast<unsigned long long>(count), static_cast<unsigned long long>(seed),
                static_cast<unsigned long long>(bad));
    return bad == 0 ? 0 : 1;
}
