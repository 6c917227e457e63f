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
#include <vector>

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

using CPen = CFastWriter::CPen;

template <class Put>
void write(CFastWriter& out, Put put)
{
    CPen pen = out.pen(1000);
    put(pen);
    out.done(pen);
}

std::string doubleText(double value)
{
    return written([=](CFastWriter& out) { write(out, [=](CPen& pen) { pen.real(value); }); });
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
    std::vector<std::int32_t> values{0, -7, 2147483647, std::numeric_limits<std::int32_t>::min()};
    for (std::int32_t power = 10; power <= 1'000'000'000; power *= 10) {
        values.insert(values.end(), {power - 1, power, power + 1, -power, power / 7 * 5});
        if (power == 1'000'000'000)
            break;
    }
    std::string expected;
    for (const std::int32_t value : values)
        expected += std::to_string(value) + ' ';
    EXPECT_EQ(written([&](CFastWriter& out) {
                  for (const std::int32_t value : values)
                      write(out, [&](CPen& pen) { pen.integer(value); });
              }),
              expected);
}

TEST(FastWriter, PointsAndTexts)
{
    const auto text = written([](CFastWriter& out) {
        write(out, [](CPen& pen) {
            pen.point({1.0, -2.0, 0.5});
            pen.text("p\t");
        });
    });
    EXPECT_EQ(text, "1.0 -2.0 0.5 p\t");
}

TEST(FastWriter, TextLargerThanItsBufferKeepsItsOrder)
{
    std::string expected;
    const auto text = written([&](CFastWriter& out) {
        for (int i = 0; i < 40'000; ++i) {
            write(out, [=](CPen& pen) { pen.integer(i); });
            expected += std::to_string(i) + ' ';
        }
    });
    EXPECT_EQ(text, expected);
}

TEST(FastWriter, ShortCountFails)
{
    for (const std::size_t limit : {0U, 1U, 7U}) {
        CXMLTextTarget stream(limit);
        CFastWriter out(stream);
        write(out, [](CPen& pen) { pen.text("12345678"); });
        try {
            out.flush();
            FAIL() << "taken: " << limit;
        } catch (const std::runtime_error& failure) {
            EXPECT_STREQ(failure.what(), "CFastWriter::write - Can't write all data");
        }
    }
}
