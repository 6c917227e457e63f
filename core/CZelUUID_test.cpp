#include <zel/CZelUUID.h>

#include <gtest/gtest.h>

#include <iterator>
#include <stdexcept>
#include <string>

using namespace OvZel;

namespace {

const char* const kBadDigit = "CZelUUID::Hex2Int: Invalid hex value";

std::string written(const CZelUUID& id)
{
    char text[33];
    id.toText(text);
    return text;
}

std::string failureOf(const char* text)
{
    try {
        return "parsed as " + written(CZelUUID(text));
    } catch (const std::runtime_error& failure) {
        return failure.what();
    }
}

} // namespace

TEST(UUID, WritesWhatItReadInUpperCase)
{
    const CZelUUID id("0123456789abcdefFEDCBA9876543210");
    EXPECT_EQ(id.bytes[0], 0x01);
    EXPECT_EQ(id.bytes[7], 0xEF);
    EXPECT_EQ(id.bytes[15], 0x10);
    EXPECT_EQ(written(id), "0123456789ABCDEFFEDCBA9876543210");
}

TEST(UUID, IgnoresWhatStandsBehindTheLastDigit)
{
    EXPECT_EQ(written(CZelUUID("00112233445566778899AABBCCDDEEFF0")),
              "00112233445566778899AABBCCDDEEFF");
    EXPECT_EQ(written(CZelUUID("00112233445566778899AABBCCDDEEFF?")),
              "00112233445566778899AABBCCDDEEFF");
}

TEST(UUID, RefusesTheFirstBadCharacter)
{
    for (const char* text : {
             "",
             "00112233445566778899AABBCCDDEEF",      // one digit short
             "00112233-4455-6677-8899-AABBCCDDEEFF", // hyphens
             "{0112233445566778899AABBCCDDEEFF",
             "G0112233445566778899AABBCCDDEEFF",
             "00112233445566778899AABBCCDDEEFg",
             "0011223344556677 899AABBCCDDEEFF",
         })
        EXPECT_EQ(failureOf(text), kBadDigit) << text;
}

TEST(UUID, KnowsTheDigitsOfBothCases)
{
    const std::string digits = "0123456789ABCDEFabcdef";
    for (int code = -128; code < 128; ++code) {
        const char digit = static_cast<char>(code);
        if (const auto place = digits.find(digit); place != std::string::npos)
            EXPECT_EQ(CZelUUID::Hex2Int(digit), place < 16 ? place : place - 6) << digit;
        else
            EXPECT_THROW(CZelUUID::Hex2Int(digit), std::runtime_error) << code;
    }
}

TEST(UUID, IsNullWhenEveryByteIsZero)
{
    EXPECT_TRUE(CZelUUID().isNull());
    for (std::size_t i = 0; i < 16; ++i) {
        CZelUUID id;
        id.bytes[i] = 1;
        EXPECT_FALSE(id.isNull()) << i;
        EXPECT_NE(id, CZelUUID()) << i;
    }
}

TEST(UUID, IsOrderedByUnsignedBytes)
{
    const CZelUUID ordered[] = {
        CZelUUID("00000000000000000000000000000000"), CZelUUID("000000000000000000000000000000FF"),
        CZelUUID("0000000000000000000000000000FF00"), CZelUUID("7F000000000000000000000000000000"),
        CZelUUID("80000000000000000000000000000000"),
    };
    for (std::size_t i = 0; i < std::size(ordered); ++i)
        for (std::size_t j = 0; j < std::size(ordered); ++j) {
            EXPECT_EQ(ordered[i] < ordered[j], i < j) << i << " and " << j;
            EXPECT_EQ(ordered[i] == ordered[j], i == j) << i << " and " << j;
        }
}
