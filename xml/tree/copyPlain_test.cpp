#include "xml/tree/copyPlain.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace OrvaneXML {

namespace {

bool isPlain(int character)
{
    return character >= ' ' && character != 0x7F &&
           std::string_view("&<>\"").find(static_cast<char>(character)) == std::string_view::npos;
}

} // namespace

TEST(CopyPlain, StopsAtTheFirstThatIsNotPlain)
{
    for (const auto copy : {copyPlain, copyPlainByLanes})
        for (const char filler : {'a', ' ', '~', '!', '\xFF', '\x80', '=', '\''})
            for (std::size_t at = 0; at < kWidestStep; ++at)
                for (int character = 0; character < 256; ++character) {
                    std::string text(kWidestStep, filler);
                    text[at] = static_cast<char>(character);
                    if (at + 1 < kWidestStep)
                        text.back() = '<'; // a second one counts for nothing
                    const std::size_t last = kWidestStep - (at + 1 < kWidestStep ? 1 : 0);
                    char copied[kWidestStep];
                    const std::size_t nb = copy(copied, text.data());
                    ASSERT_EQ(nb, isPlain(character) ? last : at) << at << ' ' << character;
                    ASSERT_EQ(std::string_view(copied, nb), std::string_view(text).substr(0, nb));
                }
}

} // namespace OrvaneXML
