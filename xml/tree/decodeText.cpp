#include "xml/tree/decodeText.h"

#include "xml/tree/characters.h"

#include <cstring>
#include <string_view>

namespace OrvaneXML {

namespace {

char* putUtf8(char* out, unsigned code)
{
    const auto put = [&](unsigned byte) { *out++ = static_cast<char>(byte); };
    if (code < 0x80) {
        put(code);
    } else if (code < 0x800) {
        put(0xC0 | code >> 6);
        put(0x80 | (code & 0x3F));
    } else if (code < 0x10000) {
        put(0xE0 | code >> 12);
        put(0x80 | (code >> 6 & 0x3F));
        put(0x80 | (code & 0x3F));
    } else {
        put(0xF0 | code >> 18);
        put(0x80 | (code >> 12 & 0x3F));
        put(0x80 | (code >> 6 & 0x3F));
        put(0x80 | (code & 0x3F));
    }
    return out;
}

int digitOf(char c, unsigned base)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    const char lower = static_cast<char>(c | 0x20);
    return base == 16 && lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
}

/// The code point of "#123" or "#x7B"; 0 if it is none that a text can hold.
unsigned numericCode(std::string_view name)
{
    const bool isHex = name.size() > 1 && name[1] == 'x';
    const std::string_view digits = name.substr(isHex ? 2 : 1);
    const unsigned base = isHex ? 16 : 10;
    unsigned code = 0;
    for (char c : digits) {
        const int digit = digitOf(c, base);
        if (digit < 0)
            return 0;
        code = code * base + static_cast<unsigned>(digit);
        if (code > 0x10FFFF)
            return 0;
    }
    return code >= 0xD800 && code <= 0xDFFF ? 0 : code;
}

/// The code point of a reference, without "&" and ";"; 0 if it is unknown.
unsigned referenceCode(std::string_view name)
{
    if (!name.empty() && name[0] == '#')
        return numericCode(name);
    constexpr struct {
        std::string_view name;
        char c;
    } kEntities[] = {{"amp", '&'}, {"lt", '<'}, {"gt", '>'}, {"quot", '"'}, {"apos", '\''}};
    for (const auto& entity : kEntities)
        if (entity.name == name)
            return static_cast<unsigned char>(entity.c);
    return 0;
}

} // namespace

SDecoded decodeText(char* begin, const char* end, bool isValue)
{
    const char* in = begin;
    char* out = begin;
    while (in != end) {
        const char c = *in++;
        if (c == '&') {
            const auto* stop =
                static_cast<const char*>(std::memchr(in, ';', static_cast<std::size_t>(end - in)));
            const unsigned code =
                stop ? referenceCode({in, static_cast<std::size_t>(stop - in)}) : 0;
            if (!code)
                return {out, in};
            out = putUtf8(out, code);
            in = stop + 1;
        } else if (c == '\r') {
            in += in != end && *in == '\n';
            *out++ = isValue ? ' ' : '\n';
        } else {
            *out++ = isValue && isWhite(c) ? ' ' : c;
        }
    }
    return {out, nullptr};
}

} // namespace OrvaneXML
