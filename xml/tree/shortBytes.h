#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

namespace OrvaneXML {

// Two words that overlap compare and copy short texts faster than a call does.

template <class TWord>
bool hasSameEnds(const char* a, const char* b, std::size_t nb)
{
    TWord words[4];
    std::memcpy(&words[0], a, sizeof(TWord));
    std::memcpy(&words[1], b, sizeof(TWord));
    std::memcpy(&words[2], a + nb - sizeof(TWord), sizeof(TWord));
    std::memcpy(&words[3], b + nb - sizeof(TWord), sizeof(TWord));
    return words[0] == words[1] && words[2] == words[3];
}

inline bool isSame(const char* a, const char* b, std::size_t nb)
{
    if (nb >= 8 && nb <= 16)
        return hasSameEnds<std::uint64_t>(a, b, nb);
    if (nb >= 4 && nb < 8)
        return hasSameEnds<std::uint32_t>(a, b, nb);
    if (nb == 1)
        return *a == *b;
    return std::memcmp(a, b, nb) == 0;
}

template <class TWord>
void copyEnds(char* to, const char* from, std::size_t nb)
{
    TWord first, last;
    std::memcpy(&first, from, sizeof first);
    std::memcpy(&last, from + nb - sizeof last, sizeof last);
    std::memcpy(to, &first, sizeof first);
    std::memcpy(to + nb - sizeof last, &last, sizeof last);
}

inline void copyBytes(char* to, const char* from, std::size_t nb)
{
    if (nb > 16)
        std::memcpy(to, from, nb);
    else if (nb >= 8)
        copyEnds<std::uint64_t>(to, from, nb);
    else if (nb >= 4)
        copyEnds<std::uint32_t>(to, from, nb);
    else if (nb >= 2)
        copyEnds<std::uint16_t>(to, from, nb);
    else if (nb == 1)
        *to = *from;
}

} // namespace OrvaneXML
