#include "geometry/CFastWriter.h"

#include "tests/support/CXMLTextTarget.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <random>
#include <stdexcept>
#include <string>

using namespace OvZel;
using ZelTest::CXMLTextTarget;

namespace {

template <class Write>
std::string written(Write write)
{
    CXMLTextTarget stream;
    CFastWriter out(stream);
    write(out);
    out.flush();
    return stream.text;
}

std::string doubleText(double value)
{
    return written([=](CFastWriter& out) { out.writeDouble(value); });
}

} // namespace

TEST(FastWriter, DoubleTexts)
{
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    const std::string large = "1000000000000000019884624838656.000000 ";
    const struct {
        double value;
        std::string text;
    } cases[] = {
        {0.0, "0.0 "},
        {-0.0, "0.0 "},
        {1.0, "1.0 "},
        {1.5, "1.5 "},
        {0.1, "0.1 "},
        {1.0 / 3.0, "0.333333 "},
        {2.0 / 3.0, "0.666667 "},
        {-2.25, "-2.25 "},
        {1234.5678, "1234.5678 "},
        {0.0000004, "0.0 "},
        {0.0000006, "0.000001 "},
        {-0.0000001, "-0.0 "},
        {0.9999999, "1.0 "},
        {-0.9999999, "-1.0 "},
        {0.999999, "0.999999 "},
        {0.05, "0.05 "},
        {2147483647.0, "2147483647.0 "},
        {-2147483647.0, "-2147483647.0 "},
        {2147483648.0, "2147483648.000000 "},
        {-2147483648.5, "-2147483648.500000 "},
        {1e30, large},
        {1e31, large},
        {kInfinity, large},
        {-1e30, "-" + large},
        {-1e31, "-" + large},
        {-kInfinity, "-" + large},
        {std::numeric_limits<double>::quiet_NaN(), "-" + large},
        {std::numeric_limits<double>::denorm_min(), "0.0 "},
    };
    for (const auto& [value, text] : cases)
        EXPECT_EQ(doubleText(value), text) << value;
}

TEST(FastWriter, DoublesAgreeWithSixDecimals)
{
    std::mt19937_64 random(20240521);
    std::uniform_real_distribution<double> mantissa(-1.0, 1.0);
    std::uniform_int_distribution<int> exponent(-24, 20);
    for (int i = 0; i < 100'000; ++i) {
        const double fraction = mantissa(random);
        const double value = std::ldexp(fraction, exponent(random));
        char expected[64];
        std::snprintf(expected, sizeof expected, "%lf ", value);
        const std::string text = doubleText(value);
        ASSERT_LE(text.size(), std::string(expected).size()) << expected;
        ASSERT_EQ(text.back(), ' ');
        // One unit of the last decimal, and what the two texts lose when they become doubles.
        const double tolerance = 1e-6 + 4e-16 * std::fabs(value);
        ASSERT_NEAR(std::strtod(text.c_str(), nullptr), std::strtod(expected, nullptr), tolerance)
            << expected;
    }
}

TEST(FastWriter, Integers)
{
    const auto text = written([](CFastWriter& out) {
        out.writeInteger(0);
        out.writeInteger(-7);
        out.writeInteger(2147483647);
        out.writeInteger(std::numeric_limits<std::int32_t>::min());
        out.writeUnsigned(4294967295U);
        out.writePoint({1.0, -2.0, 0.5});
        out.writeText("p\t");
    });
    EXPECT_EQ(text, "0 -7 2147483647 -2147483648 4294967295 1.0 -2.0 0.5 p\t");
}

TEST(FastWriter, TextLargerThanItsBufferKeepsItsOrder)
{
    std::string expected;
    const std::string large(200'000, 'x');
    const auto text = written([&](CFastWriter& out) {
        for (int i = 0; i < 40'000; ++i) {
            out.writeInteger(i);
            expected += std::to_string(i) + ' ';
        }
        out.writeText(large);
        out.writeText("end");
    });
    EXPECT_EQ(text, expected + large + "end");
}

TEST(FastWriter, ShortCountFails)
{
    for (const std::size_t limit : {0U, 1U, 7U}) {
        CXMLTextTarget stream(limit);
        CFastWriter out(stream);
        out.writeText("12345678");
        try {
            out.flush();
            FAIL() << "taken: " << limit;
        } catch (const std::runtime_error& failure) {
            EXPECT_STREQ(failure.what(), "CFastWriter::write - Can't write all data");
        }
    }
}
