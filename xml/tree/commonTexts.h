#pragma once

#include "xml/tree/lanes.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace OrvaneXML {

// The empty text, the reals that are nowhere and of full size, and no identifier: a third of all
// values of a scene are one of these. All trees share them. Like all texts of a tree they are
// aligned to 2, and a text of full length may be read by words.

inline constexpr std::size_t kCommonRoom = 32 + kWidestStep;
alignas(2) inline constexpr char kCommonTexts[4][kCommonRoom] = {
    "", "0.000000", "1.000000", "00000000000000000000000000000000"};

inline constexpr const char* kZeroText = kCommonTexts[1];
inline constexpr const char* kOneText = kCommonTexts[2];
inline constexpr const char* kNoIdText = kCommonTexts[3];

/// The one that is the same, or null.
inline const char* commonText(std::string_view text)
{
    const char* const bytes = text.data();
    switch (text.size()) {
    case 0:
        return kCommonTexts[0];
    case 8:
        if (std::memcmp(bytes + 1, kZeroText + 1, 7) != 0)
            return nullptr;
        return *bytes == '0' ? kZeroText : (*bytes == '1' ? kOneText : nullptr);
    case 32:
        return std::memcmp(bytes, kNoIdText, 32) == 0 ? kNoIdText : nullptr;
    default:
        return nullptr;
    }
}

inline constexpr std::size_t kCommonReal = 8;

/// The text of a number if it is one of these, or null.
inline const char* commonReal(double value)
{
    if (value == 1.0)
        return kOneText;
    return value == 0.0 && !std::signbit(value) ? kZeroText : nullptr;
}

inline bool isCommonText(const char* text)
{
    return reinterpret_cast<std::uintptr_t>(text) - reinterpret_cast<std::uintptr_t>(kCommonTexts) <
           sizeof kCommonTexts;
}

} // namespace OrvaneXML
