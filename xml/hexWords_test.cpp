#include "xml/hexWords.h"

#include "xml/hexWord.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace OvZel {

namespace {

constexpr std::string_view kDigits = "0123456789ABCDEF";
constexpr std::size_t kNbWords = 5; // some of them wide, and one that is left over

bool isDigit(int character)
{
    return character != 0 && kDigits.find(static_cast<char>(character)) != std::string_view::npos;
}

} // namespace

TEST(HexWords, EachCharacterAtEachPlaceIsADigitOrNot)
{
    for (std::size_t at = 0; at < kNbWords * 8; ++at)
        for (int character = 0; character < 256; ++character) {
            std::string text;
            while (text.size() < kNbWords * 8)
                text += kDigits[(at + 7 * text.size()) % kDigits.size()];
            text[at] = static_cast<char>(character);
            std::uint8_t wide[kNbWords * 4], single[kNbWords * 4];
            bool isGood = true;
            for (std::size_t i = 0; i < kNbWords; ++i)
                isGood &= decodeHexWord(&text[i * 8], &single[i * 4]) == 0;
            ASSERT_EQ(isGood, isDigit(character)) << at << ' ' << character;
            ASSERT_EQ(decodeHexWords(text.data(), wide, kNbWords) == 0, isGood);
            for (std::size_t i = 0; isGood && i < kNbWords * 4; ++i) {
                const std::size_t value =
                    kDigits.find(text[i * 2]) * 16 + kDigits.find(text[i * 2 + 1]);
                ASSERT_EQ(wide[i], value);
                ASSERT_EQ(single[i], value);
            }
        }
}

TEST(HexWords, EachByteHasItsDigits)
{
    for (unsigned byte = 0; byte < 256; ++byte) {
        const std::vector<std::uint8_t> bytes(kNbWords * 4, static_cast<std::uint8_t>(byte));
        std::string wide(kNbWords * 8, ' '), single(8, ' '), expected;
        for (std::size_t i = 0; i < bytes.size(); ++i)
            expected += {kDigits[byte / 16], kDigits[byte % 16]};
        encodeHexWords(bytes.data(), wide.data(), kNbWords);
        encodeHexWord(bytes.data(), single.data());
        EXPECT_EQ(wide, expected);
        EXPECT_EQ(single, expected.substr(0, 8));
    }
}

} // namespace OvZel
