#pragma once

#include <cstdint>
#include <string_view>

namespace tool {

/// A number for a text that is the same on every machine and in every version of the tool, since
/// it says which shard a file belongs to and goes into identifiers that are kept in files. FNV-1a,
/// with the bits mixed so that a remainder of any divisor spreads well.
constexpr std::uint64_t stableHash(std::string_view text, std::uint64_t seed = 0)
{
    std::uint64_t hash = 0xCBF29CE484222325U ^ seed;
    for (const char c : text) {
        hash ^= static_cast<unsigned char>(c);
        hash *= 0x100000001B3U;
    }
    hash ^= hash >> 33;
    hash *= 0xFF51AFD7ED558CCDU;
    hash ^= hash >> 33;
    hash *= 0xC4CEB9FE1A85EC53U;
    return hash ^ (hash >> 33);
}

} // namespace tool
