#include "tests/random/CRandomValues.h"

#include <cfloat>
#include <climits>
#include <iterator>

namespace ZelTest {

namespace {

constexpr double kMicro = 1e-6;

/// What a text is put together from.
constexpr const char* kPieces[] = {"a",
                                   "\r",
                                   "\r\n",
                                   "Wall",
                                   " ",
                                   "  ",
                                   "\n",
                                   "\t",
                                   "\"",
                                   "'",
                                   "&",
                                   "&amp;",
                                   "<",
                                   "</",
                                   ">",
                                   "]]>",
                                   "-->",
                                   "?>",
                                   "é",
                                   "Grüße",
                                   "日",
                                   "Ελλάς",
                                   "\xF0\x9F\x8F\xA0",
                                   "\xC2\xA0",
                                   "%s",
                                   "%d",
                                   "{}",
                                   "#1",
                                   "0",
                                   "-1",
                                   "1.5",
                                   "\\",
                                   "/",
                                   "file:///C:/a b.jpg",
                                   "=",
                                   "&#10;",
                                   ";",
                                   "\xEF\xBF\xBD",
                                   "long text that goes on for a while "};

constexpr const char* kNames[] = {"Data", "Value", "a", "x.y", "Maison", "Größe", "_1", "A-b"};

template <class T, std::size_t N>
T oneOf(CRandomValues& random, T const (&table)[N])
{
    return table[random.below(N)];
}

} // namespace

// The generator "splitmix64".
std::uint64_t CRandomValues::bits()
{
    std::uint64_t mixed = mState += 0x9E3779B97F4A7C15;
    mixed = (mixed ^ mixed >> 30) * 0xBF58476D1CE4E5B9;
    mixed = (mixed ^ mixed >> 27) * 0x94D049BB133111EB;
    return mixed ^ mixed >> 31;
}

std::uint32_t CRandomValues::below(std::uint32_t limit)
{
    return static_cast<std::uint32_t>((bits() >> 32) * limit >> 32);
}

std::uint32_t CRandomValues::word()
{
    constexpr std::uint32_t kLimits[] = {0, 1, INT_MAX, 0x80000000, UINT_MAX};
    return once(4) ? oneOf(*this, kLimits) : static_cast<std::uint32_t>(bits() >> below(32) >> 32);
}

std::int64_t CRandomValues::word64()
{
    constexpr std::int64_t kLimits[] = {0, -1, INT64_MAX, INT64_MIN, INT_MAX};
    return once(4) ? oneOf(*this, kLimits) : static_cast<std::int64_t>(bits()) >> below(64);
}

std::int32_t CRandomValues::integer()
{
    return static_cast<std::int32_t>(word());
}

std::int32_t CRandomValues::integer(std::int32_t least, std::int32_t most)
{
    if (once(6))
        return flag() ? least : most;
    const auto range = static_cast<std::uint64_t>(std::int64_t{most} - least + 1);
    return static_cast<std::int32_t>(least +
                                     static_cast<std::int64_t>((bits() >> 32) * range >> 32));
}

double CRandomValues::number()
{
    constexpr double kOdd[] = {
        0.0,  -0.0,    1.0,     -1.0,     1e-7, -1e-7,  0.1,          1.0 / 3.0,
        1e15, DBL_MAX, DBL_MIN, -DBL_MAX, 1e22, 0.5e-6, 2147483648.0, 99999999.9999995};
    return once(4) ? oneOf(*this, kOdd) : coordinate();
}

double CRandomValues::number(double least, double most)
{
    if (once(6))
        return flag() ? least : most;
    constexpr double kSteps = 1 << 20;
    return least + (most - least) * (below(1 << 20) / kSteps);
}

double CRandomValues::coordinate()
{
    const std::int64_t micros = static_cast<std::int64_t>(bits()) % 1'000'000'000'000'000;
    return static_cast<double>(micros >> below(50)) * kMicro;
}

OvZel::CZelColor CRandomValues::color()
{
    return {{0, byte(), byte(), byte()}};
}

OvZel::CZelPoint CRandomValues::point()
{
    return {number(), number(), number()};
}

OvZel::CZelPoint2D CRandomValues::point2D()
{
    return {number(), number()};
}

std::string CRandomValues::string()
{
    std::string made;
    const std::uint32_t nbPieces = once(50) ? 2000 : below(8);
    for (std::uint32_t i = 0; i < nbPieces; ++i)
        made += oneOf(*this, kPieces);
    return made;
}

std::string CRandomValues::name()
{
    return oneOf(*this, kNames) + std::to_string(below(10));
}

CRandomText CRandomValues::url()
{
    return once(3) ? text() : CRandomText("textures/" + name() + ".jpg");
}

OvZel::CZelUUID CRandomValues::id()
{
    OvZel::CZelUUID made;
    for (std::uint8_t& each : made.bytes)
        each = byte();
    mIds.push_back(made);
    return made;
}

OvZel::CZelUUID CRandomValues::reference()
{
    if (once(4))
        return {};
    if (mIds.empty() || once(4))
        return id();
    return mIds[below(static_cast<std::uint32_t>(mIds.size()))];
}

} // namespace ZelTest
