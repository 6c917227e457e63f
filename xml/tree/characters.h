#pragma once

namespace OrvaneXML {

constexpr bool isWhite(char c)
{
    return c == ' ' || c == '\n' || c == '\t' || c == '\r';
}

/// Whether a character ends or spoils a name: white space, control characters, quotes, "=", "/",
/// "<" and ">".
constexpr bool isNameEnd(char c)
{
    const auto u = static_cast<unsigned char>(c);
    return u <= ' ' || c == '"' || c == '\'' || c == '=' || c == '/' || c == '<' || c == '>';
}

} // namespace OrvaneXML
