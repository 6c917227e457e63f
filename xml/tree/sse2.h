#pragma once

// The vectors of 16 bytes that every x86-64 has. What uses them stands beside code for processors
// without.

#if defined(__SSE2__) || defined(_M_X64)

#include <emmintrin.h>

#define ZEL_HAS_SSE2

namespace OrvaneXML {

inline __m128i loadBytes(const void* from)
{
    return _mm_loadu_si128(static_cast<const __m128i*>(from));
}

inline void storeBytes(void* to, __m128i bytes)
{
    _mm_storeu_si128(static_cast<__m128i*>(to), bytes);
}

} // namespace OrvaneXML

#endif
