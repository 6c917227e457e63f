#pragma once

#include <charconv>
#include <cstdint>
#include <string>
#include <string_view>

namespace tool {

/// Numbers in the text of OBJ and MTL files, the same in every locale.

/// Appends a blank and the number. Documents keep six decimals, so more would only show how the sum
/// of the digits was rounded.
inline void addReal(std::string& line, double value)
{
    char text[400]; // the largest double has 309 digits in front of the point
    const auto end =
        std::to_chars(text, text + sizeof text, value, std::chars_format::fixed, 6).ptr;
    std::string_view number(text, static_cast<std::size_t>(end - text));
    number = number.substr(0, number.find_last_not_of('0') + 1);
    if (number.back() == '.')
        number.remove_suffix(1);
    line += ' ';
    line += number == "-0" ? "0" : number;
}

inline void addInteger(std::string& line, std::int64_t value)
{
    char text[24];
    line.append(text, std::to_chars(text, text + sizeof text, value).ptr);
}

} // namespace tool
