#include "xml/tree/CXMLText.h"

#include <gtest/gtest.h>

#include <bit>
#include <clocale>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <limits>
#include <random>
#include <stdexcept>
#include <string>
#include <vector>

namespace OrvaneXML {

namespace {

template <class... T>
std::string printed(const char* format, T... values)
{
    char buffer[512];
    const int length = printTextf(buffer, sizeof buffer, format, values...);
    EXPECT_EQ(static_cast<std::size_t>(length), std::string(buffer).size());
    return buffer;
}

/// What snprintf gives; the format is data here.
template <class... T>
std::string expected(const char* format, T... values)
{
    char buffer[512];
    auto* print = &std::snprintf;
    print(buffer, sizeof buffer, format, values...);
    return buffer;
}

} // namespace

TEST(XmlText, RealsPrintAsInTheCLocale)
{
    const double values[] = {0.0,       -0.0,      1.0,
                             -1.5,      0.1,       1e-7,
                             5e-7,      0.0000005, 123456.7,
                             1e15,      -1e300,    1.7e308,
                             2.5e-310,  1.0 / 3,   999999.9999995,
                             0.5000005, 1e22,      123456789.123456789};
    for (double value : values) {
        EXPECT_EQ(printed("%lf", value), expected("%lf", value));
        EXPECT_EQ(printed("%f", value), expected("%f", value));
        EXPECT_EQ(printed("<%12lf>", value), expected("<%12lf>", value));
        EXPECT_EQ(printed("<%020lf>", value), expected("<%020lf>", value));
    }
}

TEST(XmlText, RealsThatAreNotFiniteAreWords)
{
    const double inf = std::numeric_limits<double>::infinity();
    EXPECT_EQ(printed("%lf %lf %lf %lf", inf, -inf, std::nan(""), -std::nan("")),
              "inf -inf nan nan");
    EXPECT_EQ(printed("%06lf", inf), "   inf");
}

TEST(XmlText, IntegersAndTextsPrintAsSnprintf)
{
    for (int value :
         {0, 1, -1, 42, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
        for (const char* format : {"%d", "%5d", "%05d", "%u", "%x", "%X", "%08X", "a%3xb"})
            EXPECT_EQ(printed(format, value), expected(format, value)) << format;
    }
    for (long long value : {0LL, -1LL, std::numeric_limits<long long>::min(),
                            std::numeric_limits<long long>::max()}) {
        EXPECT_EQ(printed("%lld", value), expected("%lld", value));
        EXPECT_EQ(printed("%025llu", value), expected("%025llu", value));
    }
    EXPECT_EQ(printed("[%s|%5s|%c]", "ab", "cd", 'e'), "[ab|   cd|e]");
    EXPECT_EQ(printed("100%%"), "100%");
}

TEST(XmlText, PrintCutsOffAndReturnsTheWholeLength)
{
    char buffer[4] = {'x', 'x', 'x', 'x'};
    EXPECT_EQ(printTextf(buffer, 4, "%s", "abcdef"), 6);
    EXPECT_STREQ(buffer, "abc");
    EXPECT_EQ(printTextf(nullptr, 0, "%d", 12345), 5);
}

TEST(XmlText, OtherConversionsThrow)
{
    char buffer[64];
    int value = 0;
    for (const char* format : {"%i", "%g", "%e", "%ld", "%lu", "%hd", "%p", "%n", "%.3f", "%-5d",
                               "%*d", "%[a]", "%", "%l", "%lx", "%llx", "%lls"}) {
        EXPECT_THROW(printTextf(buffer, sizeof buffer, format, 1), std::runtime_error) << format;
        EXPECT_THROW(scanTextf("1", format, &value), std::runtime_error) << format;
    }
}

TEST(XmlText, ScansIntegers)
{
    struct {
        const char *text, *format;
        int result, value;
    } cases[] = {
        {"12", "%d", 1, 12},    {" \t\n-12x", "%d", 1, -12}, {"+7", "%d", 1, 7},
        {"", "%d", -1, 99},     {"   ", "%d", -1, 99},       {"x", "%d", 0, 99},
        {"-", "%d", 0, 99},     {"12345", "%3d", 1, 123},    {"-12", "%2d", 1, -1},
        {"ff", "%x", 1, 255},   {"0xFF", "%X", 1, 255},      {"0x", "%x", 1, 0},
        {"<5>", "<%d>", 1, 5},  {"5", "<%d>", 0, 99},        {"- 5", "%d", 0, 99},
        {"a  5", "a %d", 1, 5}, {"a5", "a %d", 1, 5},        {"50%", "%d%%", 1, 50},
        {"-1", "%u", 1, -1},    {"4294967295", "%u", 1, -1}, {"--5", "%d", 0, 99},
        {"5", "%d %%", 1, 5},   {"0012", "%4d", 1, 12},
    };
    for (const auto& item : cases) {
        int value = 99;
        EXPECT_EQ(scanTextf(item.text, item.format, &value), item.result) << item.text;
        EXPECT_EQ(value, item.value) << item.text << " " << item.format;
    }
    long long big = 0;
    EXPECT_EQ(scanTextf("-9223372036854775808", "%lld", &big), 1);
    EXPECT_EQ(big, std::numeric_limits<long long>::min());
    EXPECT_EQ(scanTextf("99999999999999999999", "%lld", &big), 1);
    EXPECT_EQ(big, std::numeric_limits<long long>::max());
    unsigned long long wide = 0;
    EXPECT_EQ(scanTextf("18446744073709551615", "%llu", &wide), 1);
    EXPECT_EQ(wide, std::numeric_limits<unsigned long long>::max());
}

TEST(XmlText, ScansReals)
{
    struct {
        const char* text;
        int result;
        double value;
    } cases[] = {
        {"1.5", 1, 1.5},  {"-1.5e3", 1, -1500},   {"+.5", 1, 0.5},
        {" 5.", 1, 5},    {"1e999", 1, HUGE_VAL}, {"-1e999", 1, -HUGE_VAL},
        {"1e-999", 1, 0}, {"inf", 1, HUGE_VAL},   {"-inf", 1, -HUGE_VAL},
        {"", -1, 9},      {"abc", 0, 9},          {"1,5", 1, 1},
        {"+-5", 0, 9},    {"--5", 0, 9},          {"0.000001e999", 1, HUGE_VAL},
    };
    for (const auto& item : cases) {
        double value = 9;
        EXPECT_EQ(scanTextf(item.text, "%lf", &value), item.result) << item.text;
        EXPECT_EQ(value, item.value) << item.text;
    }
    double value = 9;
    EXPECT_EQ(scanTextf("nan", "%lf", &value), 1);
    EXPECT_TRUE(std::isnan(value));
    float small = 9;
    EXPECT_EQ(scanTextf("0.25", "%f", &small), 1);
    EXPECT_EQ(small, 0.25f);
}

TEST(XmlText, ScansTextsWithinTheirWidth)
{
    char word[8] = "zzzzzzz";
    EXPECT_EQ(scanTextf("  abcdefgh ij", "%5s", word), 1);
    EXPECT_STREQ(word, "abcde");
    EXPECT_EQ(scanTextf("ab cd", "%s", word), 1);
    EXPECT_STREQ(word, "ab");
    char first[128], second[128];
    EXPECT_EQ(scanTextf("name=\"x y\"", "name=\"%127s %127s", first, second), 2);
    EXPECT_STREQ(first, "x");
    EXPECT_STREQ(second, "y\"");
    char letters[3] = "..";
    EXPECT_EQ(scanTextf(" a", "%2c", letters), 1);
    EXPECT_STREQ(letters, " a");
    EXPECT_EQ(scanTextf("a", "%2c", letters), 0);
}

TEST(XmlText, SeveralValuesStopAtTheFirstThatFails)
{
    int a = 0, b = 0, c = 0;
    EXPECT_EQ(scanTextf("1.2.3", "%d.%d.%d", &a, &b, &c), 3);
    EXPECT_EQ(a * 100 + b * 10 + c, 123);
    EXPECT_EQ(scanTextf("4.x", "%d.%d.%d", &a, &b, &c), 1);
    EXPECT_EQ(scanTextf("4.", "%d.%d.%d", &a, &b, &c), 1);
    EXPECT_EQ(a * 100 + b * 10 + c, 423);
}

TEST(XmlText, LocaleDoesNotMatter)
{
    const char* names[] = {"de_DE.UTF-8", "de_DE.utf8", "fr_FR.UTF-8"};
    for (const char* name : names)
        if (std::setlocale(LC_ALL, name))
            break;
    double value = 0;
    EXPECT_EQ(scanTextf("1.5", "%lf", &value), 1);
    EXPECT_EQ(value, 1.5);
    EXPECT_EQ(printed("%lf", 1234.5), "1234.500000");
    std::setlocale(LC_ALL, "C");
}

} // namespace OrvaneXML

namespace {

/// Numbers of all sizes, those with six decimals, and those half-way between two of them.
std::vector<double> manyReals()
{
    std::vector<double> values = {0.0,
                                  -0.0,
                                  0.5e-6,
                                  1.5e-6,
                                  2.5e-6,
                                  1e12,
                                  999999999999.9999,
                                  1e300,
                                  std::numeric_limits<double>::denorm_min(),
                                  std::numeric_limits<double>::max(),
                                  std::numeric_limits<double>::infinity()};
    std::mt19937_64 random(1);
    for (int i = 0; i < 100'000; ++i) {
        const auto bits = random();
        values.push_back(std::bit_cast<double>(bits));
        values.push_back(static_cast<double>(static_cast<std::int64_t>(bits) >> (bits % 40 + 20)) /
                         1e6);
        // Multiples of 1/128 have seven decimals that end in 5.
        values.push_back(static_cast<double>(static_cast<std::int64_t>(bits) >> 24) / 128);
    }
    return values;
}

} // namespace

TEST(PrintReal, IsWhatTheFormatPrints)
{
    for (double value : manyReals()) {
        char fast[OrvaneXML::kLongestReal];
        char plain[OrvaneXML::kLongestReal];
        OrvaneXML::printReal(fast, value);
        OrvaneXML::printTextf(plain, sizeof plain, "%f", value);
        ASSERT_STREQ(fast, plain);
    }
}

TEST(ScanInteger, IsWhatTheFormatReads)
{
    for (const char* text :
         {"", "-", "0", "-0", "7", "-7", "+7", " 7", "7 ", "7x", "007", "123456789", "-123456789",
          "1234567890", "2147483648", "99999999999999999999"}) {
        int fast = 77, plain = 77;
        const bool isRead = OrvaneXML::scanInteger(text, fast);
        EXPECT_EQ(isRead, OrvaneXML::scanTextf(text, "%d", &plain) == 1) << text;
        EXPECT_EQ(fast, plain) << text;
    }
}

TEST(ScanReal, IsWhatTheFormatReads)
{
    std::vector<std::string> texts = {"",    "-",   ".",    "-.5",  "1.",    "+1",    " 2",
                                      "2 ",  "1e3", "1.5x", "0x10", "nan",   "-inf",  "1,5",
                                      "--1", "007", "-0.0", "1..2", "1e400", "1e-400"};
    for (double value : manyReals()) {
        char text[OrvaneXML::kLongestReal];
        OrvaneXML::printReal(text, value);
        texts.push_back(text);
    }
    for (const std::string& text : texts) {
        double fast = 77, plain = 77;
        const bool isRead = OrvaneXML::scanReal(text.c_str(), fast);
        ASSERT_EQ(isRead, OrvaneXML::scanTextf(text.c_str(), "%lf", &plain) == 1) << text;
        ASSERT_EQ(std::bit_cast<std::uint64_t>(fast), std::bit_cast<std::uint64_t>(plain)) << text;
    }
}
