#include "geometry/CFastReader.h"

#include "geometry/CPolygon.h"
#include "tests/support/CTestBlockHost.h"
#include "tests/support/CXMLTextSource.h"

#include <gtest/gtest.h>

#include <functional>
#include <random>
#include <stdexcept>
#include <string>
#include <vector>

using namespace OvZel;
using ZelTest::CTestBlockHost;
using ZelTest::CXMLTextSource;

namespace {

constexpr const char* kNoNumber = "This is not a number";

/// Runs a read of the text in several step widths. The outcome is the same in each, and is what the
/// read gives, or the text of its failure.
std::string outcome(const std::string& text, const std::function<std::string(CFastReader&)>& read,
                    std::vector<std::string>* messages = nullptr)
{
    std::string first;
    for (const std::size_t step : {CXMLTextSource::kWhole, std::size_t{1}, std::size_t{7}}) {
        CTestBlockHost host;
        CXMLTextSource stream(text, step);
        OrvaneXML::CXMLBufferedReader buffered(&stream);
        CFastReader in(*CZelMgrRef::from(&host.blockMgrRef()), buffered);
        std::string result;
        try {
            result = read(in);
        } catch (const std::runtime_error& failure) {
            result = failure.what();
        }
        if (step == CXMLTextSource::kWhole)
            first = result;
        EXPECT_EQ(result, first) << text << " in steps of " << step;
        if (messages != nullptr)
            *messages = host.messages;
    }
    return first;
}

std::string integers(CFastReader& in, int count)
{
    std::string result;
    for (int i = 0; i < count; ++i)
        result += (i == 0 ? "" : ",") + std::to_string(in.readInteger());
    return result;
}

std::vector<double> doubles(const std::string& text, int count)
{
    std::vector<double> result;
    const auto read = [&](CFastReader& in) {
        result.clear();
        for (int i = 0; i < count; ++i)
            result.push_back(in.readDouble());
        return std::string("good");
    };
    EXPECT_EQ(outcome(text, read), "good") << text;
    result.resize(static_cast<std::size_t>(count));
    return result;
}

std::string show(std::span<const CZelVertex> vertices)
{
    std::string result = "[";
    for (const CZelVertex& vertex : vertices) {
        result += (vertex.flags & CZelVertex::kFlagI) != 0 ? "I" : "";
        if ((vertex.flags & CZelVertex::kFlagM) != 0)
            result += "M" + std::to_string(vertex.u) + "/" + std::to_string(vertex.v) + ":";
        result += std::to_string(vertex.pointIndex) + " ";
    }
    return result + "]";
}

/// One polygon, read into a new object.
std::string polygonText(CFastReader& in)
{
    CTestBlockHost host;
    CPolygon polygon(&host.blockMgrRef());
    in.readPolygon(polygon);
    std::string result = polygon.isSmooth() ? "smooth " : "";
    result += std::to_string(polygon.getMaterial()) + show(polygon.vertices().records());
    for (std::int32_t i = 0; i < polygon.nbHoles(); ++i)
        result += show(polygon.hole(i).vertices().records());
    return result;
}

} // namespace

TEST(FastReader, Integers)
{
    const struct {
        const char* text;
        int count;
        const char* outcome;
    } cases[] = {
        {"12 34 ", 2, "12,34"},
        {"\n\r\t 12", 1, "12"},
        {"+5", 1, "5"},
        {"- 5 ", 1, "-5"},
        {"-\n\t\r7x8", 2, "-7,8"},
        {"-2147483648", 1, "-2147483648"},
        {"4294967295", 1, "-1"},
        {"4294967296", 1, "0"},
        {"10000000000000000005", 1, "-1981284347"},
        {"1,2", 2, "1,2"},
        {"7.", 1, "This is not a integer"},
        {"7.5", 1, "This is not a integer"},
        {".5", 1, kNoNumber},
        {"", 1, kNoNumber},
        {"   ", 1, kNoNumber},
        {"-", 1, kNoNumber},
        {"+-5", 1, kNoNumber},
        {"x", 1, kNoNumber},
        {"5 ", 2, kNoNumber},
        {"\v5", 1, kNoNumber},
    };
    for (const auto& [text, count, expected] : cases) {
        const auto read = [n = count](CFastReader& in) { return integers(in, n); };
        EXPECT_EQ(outcome(text, read), expected) << '"' << text << '"';
    }
}

TEST(FastReader, Doubles)
{
    const struct {
        const char* text;
        std::vector<double> values;
    } cases[] = {
        {"1.5 -2.25 ", {1.5, -2.25}},
        {"7.", {7.0}},
        {".5", {0.5}},
        {".", {0.0}},
        {"- 5 + .25", {-5.0, 0.25}},
        {"1e3 ", {1.0, 3.0}},
        {"1.2.3", {1.2, 3.0}},
        {"0.333333 1234.5678", {0.333333, 1234.5678}},
        {"2147483648.000000 ", {2147483648.0}},
        {"12345678901234567890", {12345678901234567890.0}},
        {"0.12345678901234567890123456789", {0.12345678901234568}},
    };
    for (const auto& [text, values] : cases) {
        const std::vector<double> got = doubles(text, static_cast<int>(values.size()));
        for (std::size_t i = 0; i < values.size(); ++i)
            EXPECT_NEAR(got[i], values[i], 1e-12 * (1.0 + std::abs(values[i]))) << text;
    }
}

TEST(FastReader, SpecialWords)
{
    const struct {
        const char* text;
        double value;
        const char* message;
    } cases[] = {
        {"nan", 1e30, "NaN double."},    {"NaN ", 1e30, "NaN double."},
        {"-NAN", -1e30, "NaN double."},  {"- nAn", -1e30, "NaN double."},
        {"inf", 1e30, "INF double."},    {"+INF", 1e30, "INF double."},
        {"-Inf ", -1e30, "INF double."},
    };
    for (const auto& [text, value, message] : cases) {
        std::vector<std::string> messages;
        double got = 0.0;
        const auto read = [&got](CFastReader& in) {
            got = in.readDouble();
            return std::string();
        };
        EXPECT_EQ(outcome(text, read, &messages), "") << text;
        EXPECT_EQ(got, value) << text;
        EXPECT_EQ(messages, std::vector<std::string>{message}) << text;
    }
    for (const char* text : {"x", "na", "nax", "nn", "infx1"}) {
        const auto read = [](CFastReader& in) {
            in.readDouble();
            in.readDouble();
            return std::string("read");
        };
        EXPECT_EQ(outcome(text, read), kNoNumber) << text;
    }
}

TEST(FastReader, Polygons)
{
    const struct {
        const char* text;
        const char* outcome;
    } cases[] = {
        {"p\t3 2 10 11 \n", "3[10 11 ]"},
        {"o\t-1 0 ", "smooth -1[]"},
        {" \n o 1 3 0 M 0.5 0.25 1 2 ", "smooth 1[0 M0.500000/0.250000:1 2 ]"},
        {"p 0 2 I 4 I M 1 2 5", "0[I4 IM1.000000/2.000000:5 ]"},
        {"p 0 1 IM1 2 -5", "0[IM1.000000/2.000000:-5 ]"},
        {"h\t0 3 1 0 2 1 2 0 ", "0[0 ][1 2 ][]"},
        {"h\t0 1 1 7 ", "0[7 ]"},
        {"h\t0 0 1 7 ", "0[7 ]"},
        {"h\t0 -5 1 7 ", "0[7 ]"},
        {"p 0 -3 ", "0[]"},
        {"p 0 1 i 4", kNoNumber},
        {"p 0 1 M 1 ", kNoNumber},
        {"p 0 2 1 ", kNoNumber},
        {"p 0 2147483647 1 2 3 ", kNoNumber},
        {"h 0 2147483647 0 0 0 ", kNoNumber},
    };
    for (const auto& [text, expected] : cases)
        EXPECT_EQ(outcome(text, polygonText), expected) << text;
}

TEST(FastReader, UnknownPolygonTypeIsPlain)
{
    std::vector<std::string> messages;
    EXPECT_EQ(outcome("q\t3 1 9 ", polygonText, &messages), "3[9 ]");
    EXPECT_EQ(messages, std::vector<std::string>{"Polygon type unknown"});
    EXPECT_EQ(outcome("", polygonText, &messages), kNoNumber);
    EXPECT_EQ(messages, std::vector<std::string>{"Polygon type unknown"});
}

TEST(FastReader, DoublesAreThoseOfTheDigitLoop)
{
    // The loop that defines the value, in its plainest form.
    const auto defined = [](const std::string& text) {
        const std::size_t point = text.find('.');
        double value = 0.0, weight = 0.1;
        for (const char digit : text.substr(0, point))
            value = value * 10.0 + (digit - '0');
        for (std::size_t i = point + 1; i < text.size(); ++i, weight *= 0.1)
            value += (text[i] - '0') * weight;
        return value;
    };
    std::mt19937 random(7);
    for (int i = 0; i < 5'000; ++i) {
        std::string text;
        const auto nbWhole = random() % 25, nbBehind = random() % 40;
        for (auto k = nbWhole; k > 0; --k)
            text += static_cast<char>('0' + random() % 10);
        text += '.';
        for (auto k = nbBehind; k > 0; --k)
            text += static_cast<char>('0' + random() % 10);
        // With and without so many bytes behind it that it is read by words.
        for (const char* behind : {" ", ":", " 1234567", "/1234567", "\x80 123456"})
            ASSERT_EQ(doubles(text + behind, 1), std::vector<double>{defined(text)}) << text;
    }
}

TEST(FastReader, PointsAndDoublesAreTheSame)
{
    // Longer than the window, so that numbers lie on each place of its border.
    std::mt19937 random(11);
    std::string text;
    constexpr int kNbPoints = 20'000;
    for (int i = 0; i < 3 * kNbPoints; ++i) {
        text += random() % 3 == 0 ? "-" : "";
        text += std::to_string(random() % (random() % 2 == 0 ? 10 : 100'000));
        text += "." + std::to_string(1'000'000 + random() % 9'000'000).substr(0, random() % 4 + 4);
        text += i % 3 == 2 ? "\n" : " ";
    }
    const auto read = [&](std::size_t step, bool byPoints) {
        CTestBlockHost host;
        CXMLTextSource stream(text, step);
        OrvaneXML::CXMLBufferedReader buffered(&stream);
        CFastReader in(*CZelMgrRef::from(&host.blockMgrRef()), buffered);
        std::vector<double> values;
        for (int i = 0; i < kNbPoints; ++i) {
            double xyz[3];
            if (byPoints)
                in.readPoint(xyz);
            else
                for (double& value : xyz)
                    value = in.readDouble();
            values.insert(values.end(), xyz, xyz + 3);
        }
        return values;
    };
    const std::vector<double> byCharacter = read(1, false);
    EXPECT_EQ(read(CXMLTextSource::kWhole, true), byCharacter);
    EXPECT_EQ(read(CXMLTextSource::kWhole, false), byCharacter);
    EXPECT_EQ(read(1'000, true), byCharacter);
}
