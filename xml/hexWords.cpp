#include "xml/hexWords.h"

#include "core/inlined.h"
#include "xml/hexWord.h"
#include "xml/tree/sse2.h"

namespace OvZel {

namespace {

// The wide loops return how many words they have done.

#ifdef ZEL_HAS_SSE2

constexpr std::size_t kAtATime = 4;

using OrvaneXML::loadBytes;
using OrvaneXML::storeBytes;

__m128i digitsOf(__m128i values)
{
    const __m128i isLetter = _mm_cmpgt_epi8(values, _mm_set1_epi8(9));
    const __m128i gap = _mm_and_si128(isLetter, _mm_set1_epi8('A' - '0' - 10));
    return _mm_add_epi8(_mm_add_epi8(values, _mm_set1_epi8('0')), gap);
}

/// One value in the low byte of each pair of digits; what is no digit leaves bits in `bad`.
ZEL_INLINED __m128i decodePairs(const char* digits, __m128i& bad)
{
    const __m128i text = loadBytes(digits);
    const __m128i isLetter = _mm_and_si128(_mm_srli_epi16(text, 6), _mm_set1_epi8(1));
    const __m128i nine = _mm_add_epi8(_mm_slli_epi16(isLetter, 3), isLetter);
    const __m128i values = _mm_add_epi8(_mm_and_si128(text, _mm_set1_epi8(0x0F)), nine);
    bad = _mm_or_si128(bad, _mm_xor_si128(digitsOf(values), text));
    bad = _mm_or_si128(bad, _mm_and_si128(values, _mm_set1_epi8(static_cast<char>(0xF0))));
    const __m128i both = _mm_or_si128(_mm_slli_epi16(values, 4), _mm_srli_epi16(values, 8));
    return _mm_and_si128(both, _mm_set1_epi16(0x00FF));
}

std::size_t decodeWide(const char* digits, std::uint8_t* bytes, std::size_t nb, std::uint64_t& bad)
{
    __m128i badLanes = _mm_setzero_si128();
    std::size_t done = 0;
    for (; done + kAtATime <= nb; done += kAtATime) {
        const __m128i low = decodePairs(digits + done * 8, badLanes);
        const __m128i high = decodePairs(digits + done * 8 + 16, badLanes);
        storeBytes(bytes + done * 4, _mm_packus_epi16(low, high));
    }
    const int good = _mm_movemask_epi8(_mm_cmpeq_epi8(badLanes, _mm_setzero_si128()));
    bad |= static_cast<std::uint64_t>(good != 0xFFFF);
    return done;
}

std::size_t encodeWide(const std::uint8_t* bytes, char* digits, std::size_t nb)
{
    const __m128i lowHalves = _mm_set1_epi8(0x0F);
    std::size_t done = 0;
    for (; done + kAtATime <= nb; done += kAtATime) {
        const __m128i both = loadBytes(bytes + done * 4);
        const __m128i high = _mm_and_si128(_mm_srli_epi16(both, 4), lowHalves);
        const __m128i low = _mm_and_si128(both, lowHalves);
        storeBytes(digits + done * 8, digitsOf(_mm_unpacklo_epi8(high, low)));
        storeBytes(digits + done * 8 + 16, digitsOf(_mm_unpackhi_epi8(high, low)));
    }
    return done;
}

#else

std::size_t decodeWide(const char*, std::uint8_t*, std::size_t, std::uint64_t&)
{
    return 0;
}

std::size_t encodeWide(const std::uint8_t*, char*, std::size_t)
{
    return 0;
}

#endif

} // namespace

std::uint64_t decodeHexWords(const char* digits, std::uint8_t* bytes, std::size_t nb)
{
    std::uint64_t bad = 0;
    for (std::size_t i = decodeWide(digits, bytes, nb, bad); i < nb; ++i)
        bad |= decodeHexWord(digits + i * 8, bytes + i * 4);
    return bad;
}

void encodeHexWords(const std::uint8_t* bytes, char* digits, std::size_t nb)
{
    for (std::size_t i = encodeWide(bytes, digits, nb); i < nb; ++i)
        encodeHexWord(bytes + i * 4, digits + i * 8);
}

} // namespace OvZel
