#pragma once

#include "xml/tree/lanes.h"
#include "xml/tree/sse2.h"

#include <bit>
#include <cstdint>
#include <cstring>

namespace OrvaneXML {

// Both copy the plain ones of 16 characters up to the first that is not plain, and return how many:
// control characters, DEL and & < > " are not, and cannot always go out as they are. All 16 can be
// read, and may be written.

static_assert(('<' | 2) == '>' && ('"' | 4) == '&'); // so one test finds two of them

/// Eight at a time, as every processor can.
inline unsigned copyPlainByLanes(char* to, const char* from)
{
    for (unsigned at = 0; at < kWidestStep; at += 8) {
        std::memcpy(to + at, from + at, 8);
        const std::uint64_t text = lanesAt(from + at);
        const std::uint64_t found = lanesBelow(text, ' ') | lanesOf(text, '\x7F') |
                                    lanesOf(text | eachLane(2), '>') |
                                    lanesOf(text | eachLane(4), '&');
        if (found)
            return at + static_cast<unsigned>(firstLane(found));
    }
    return kWidestStep;
}

inline unsigned copyPlain(char* to, const char* from)
{
#ifdef ZEL_HAS_SSE2
    const __m128i text = loadBytes(from);
    storeBytes(to, text);
    const __m128i isControl = _mm_cmpeq_epi8(_mm_min_epu8(text, _mm_set1_epi8(' ' - 1)), text);
    const __m128i isDelete = _mm_cmpeq_epi8(text, _mm_set1_epi8('\x7F'));
    const __m128i isAngle =
        _mm_cmpeq_epi8(_mm_or_si128(text, _mm_set1_epi8(2)), _mm_set1_epi8('>'));
    const __m128i isQuote =
        _mm_cmpeq_epi8(_mm_or_si128(text, _mm_set1_epi8(4)), _mm_set1_epi8('&'));
    const __m128i found =
        _mm_or_si128(_mm_or_si128(isControl, isDelete), _mm_or_si128(isAngle, isQuote));
    const auto places = static_cast<unsigned>(_mm_movemask_epi8(found));
    return static_cast<unsigned>(std::countr_zero(places | 1U << kWidestStep));
#else
    return copyPlainByLanes(to, from);
#endif
}

} // namespace OrvaneXML
