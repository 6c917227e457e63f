#pragma once

#include "xml/tree/lanes.h"
#include "xml/tree/sse2.h"

#include <bit>
#include <cstdint>

namespace OrvaneXML {

// Where a value or a text of a document stops being what it stands for. There is such a place, at
// the latest NUL, from which on a widest step can be read.

/// The quote, a reference or a control character.
inline char* findValueStopByLanes(char* p, char quote)
{
    return findLane(p, [quote](std::uint64_t lanes) {
        return lanesOf(lanes, quote) | lanesOf(lanes, '&') | lanesBelow(lanes, ' ');
    });
}

/// A tag, a reference, CR or NUL.
inline char* findTextStopByLanes(char* p)
{
    return findLane(p, [](std::uint64_t lanes) {
        return lanesOf(lanes, '<') | lanesOf(lanes, '&') | lanesOf(lanes, '\r') | lanesOf(lanes, 0);
    });
}

#ifdef ZEL_HAS_SSE2

template <class TTest>
char* findByte(char* p, TTest test)
{
    for (;; p += kWidestStep)
        if (const int found = _mm_movemask_epi8(test(loadBytes(p))))
            return p + std::countr_zero(static_cast<unsigned>(found));
}

inline char* findValueStop(char* p, char quote)
{
    return findByte(p, [quote](__m128i text) {
        const __m128i ends = _mm_or_si128(_mm_cmpeq_epi8(text, _mm_set1_epi8(quote)),
                                          _mm_cmpeq_epi8(text, _mm_set1_epi8('&')));
        return _mm_or_si128(ends, _mm_cmpeq_epi8(_mm_min_epu8(text, _mm_set1_epi8(' ' - 1)), text));
    });
}

inline char* findTextStop(char* p)
{
    return findByte(p, [](__m128i text) {
        const __m128i marks = _mm_or_si128(_mm_cmpeq_epi8(text, _mm_set1_epi8('<')),
                                           _mm_cmpeq_epi8(text, _mm_set1_epi8('&')));
        const __m128i ends = _mm_or_si128(_mm_cmpeq_epi8(text, _mm_set1_epi8('\r')),
                                          _mm_cmpeq_epi8(text, _mm_setzero_si128()));
        return _mm_or_si128(marks, ends);
    });
}

#else

inline char* findValueStop(char* p, char quote)
{
    return findValueStopByLanes(p, quote);
}

inline char* findTextStop(char* p)
{
    return findTextStopByLanes(p);
}

#endif

} // namespace OrvaneXML
