#include "xml/tree/findStop.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace OrvaneXML {

namespace {

constexpr std::size_t kNb = 33; // two steps, and one character

/// The character stands there among others that stop nothing, with a reference behind.
std::string textWith(int character, std::size_t at)
{
    std::string text(kNb, 'a');
    for (std::size_t i = 0; i < kNb; ++i)
        text[i] = " !~\x7F\x80\xFF=/"[(i + at) % 8];
    text[at] = static_cast<char>(character);
    return text + '&' + std::string(kWidestStep, '<');
}

std::size_t expected(bool isStop, std::size_t at)
{
    return isStop ? at : kNb;
}

} // namespace

TEST(FindStop, EndsAValueAtItsQuoteAReferenceOrAControlCharacter)
{
    for (const auto find : {findValueStop, findValueStopByLanes})
        for (const char quote : {'"', '\''})
            for (std::size_t at = 0; at < kNb; ++at)
                for (int character = 0; character < 256; ++character) {
                    std::string text = textWith(character, at);
                    const bool isStop = character < ' ' || character == '&' || character == quote;
                    ASSERT_EQ(find(text.data(), quote) - text.data(), expected(isStop, at))
                        << at << ' ' << character;
                }
}

TEST(FindStop, EndsATextAtATagAReferenceCrOrNul)
{
    for (const auto find : {findTextStop, findTextStopByLanes})
        for (std::size_t at = 0; at < kNb; ++at)
            for (int character = 0; character < 256; ++character) {
                std::string text = textWith(character, at);
                const bool isStop =
                    std::string_view("<&\r\0", 4).find(static_cast<char>(character)) !=
                    std::string_view::npos;
                ASSERT_EQ(find(text.data()) - text.data(), expected(isStop, at))
                    << at << ' ' << character;
            }
}

} // namespace OrvaneXML
