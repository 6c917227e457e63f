#include "xml/tree/CXMLText.h"

#include "xml/tree/CXMLTextFormat.h"
#include "xml/tree/commonTexts.h"

#include <algorithm>
#include <charconv>
#include <climits>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <stdexcept>
#include <string_view>

namespace OrvaneXML {

namespace {

__extension__ typedef unsigned __int128 TWide;

/// A number with six decimals as millionths, rounded to the nearest and half to even, as exact
/// arithmetic has it. False for a number that is too large or no number.
bool toMillionths(double value, std::uint64_t& millionths)
{
    constexpr double kTooLarge = 1e12;
    if (!(value < kTooLarge))
        return false;
    int exponent = 0;
    const double fraction = std::frexp(value, &exponent); // below 1, with 53 bits
    const auto bits = static_cast<std::uint64_t>(std::ldexp(fraction, 53));
    const int shift = 53 - exponent; // what the product is to be divided by, as a power of two
    const TWide product = TWide{bits} * 1'000'000;
    millionths = 0;
    if (shift > 100) // too small to leave anything
        return true;
    const TWide rest = product & ((TWide{1} << shift) - 1);
    const TWide half = TWide{1} << (shift - 1);
    millionths = static_cast<std::uint64_t>(product >> shift);
    if (rest > half || (rest == half && millionths % 2 == 1))
        ++millionths;
    return true;
}

char* printMillionths(char* out, std::uint64_t millionths)
{
    constexpr std::uint64_t kOne = 1'000'000;
    out = std::to_chars(out, out + 16, millionths / kOne).ptr;
    *out++ = '.';
    auto decimals = static_cast<unsigned>(millionths % kOne);
    for (int i = 5; i >= 0; --i, decimals /= 10)
        out[i] = static_cast<char>('0' + decimals % 10);
    return out + 6;
}

/// One print: fills the buffer as far as it goes and counts the rest.
class CPrint {
public:
    CPrint(char* buffer, std::size_t size, std::va_list arguments) : mBuffer(buffer), mSize(size)
    {
        va_copy(mArguments, arguments);
    }
    ~CPrint() { va_end(mArguments); }
    CPrint(const CPrint&) = delete;
    CPrint& operator=(const CPrint&) = delete;

    int run(const char* format);

private:
    void put(std::string_view text);
    void fill(char c, std::size_t nb);
    void padded(const CXMLTextFormat& item, std::string_view text, bool isNumber);
    void convert(const CXMLTextFormat& item);
    void real(const CXMLTextFormat& item, double value);
    template <class T>
    void integer(const CXMLTextFormat& item, T value, int base = 10);

    char* mBuffer;
    std::size_t mSize;
    std::size_t mLength = 0;
    std::va_list mArguments;
};

void CPrint::put(std::string_view text)
{
    if (mLength < mSize)
        std::memcpy(mBuffer + mLength, text.data(), std::min(text.size(), mSize - mLength));
    mLength += text.size();
}

void CPrint::fill(char c, std::size_t nb)
{
    if (mLength < mSize)
        std::memset(mBuffer + mLength, c, std::min(nb, mSize - mLength));
    mLength += nb;
}

void CPrint::padded(const CXMLTextFormat& item, std::string_view text, bool isNumber)
{
    const auto width = static_cast<std::size_t>(item.width);
    const std::size_t nbPads = width > text.size() ? width - text.size() : 0;
    if (nbPads == 0 || !(item.zeroPad && isNumber)) {
        fill(' ', nbPads);
        put(text);
        return;
    }
    const bool isNegative = text.front() == '-';
    put(text.substr(0, isNegative));
    fill('0', nbPads);
    put(text.substr(isNegative));
}

template <class T>
void CPrint::integer(const CXMLTextFormat& item, T value, int base)
{
    char digits[24];
    char* end = std::to_chars(digits, digits + sizeof digits, value, base).ptr;
    if (item.letter == 'X')
        std::transform(digits, end, digits,
                       [](char c) { return c >= 'a' ? static_cast<char>(c - 'a' + 'A') : c; });
    padded(item, {digits, static_cast<std::size_t>(end - digits)}, true);
}

void CPrint::real(const CXMLTextFormat& item, double value)
{
    if (std::isnan(value))
        return padded(item, "nan", false);
    if (std::isinf(value))
        return padded(item, value < 0 ? "-inf" : "inf", false);
    char digits[330]; // a sign, 309 digits, the point and six decimals
    char* end =
        std::to_chars(digits, digits + sizeof digits, value, std::chars_format::fixed, 6).ptr;
    padded(item, {digits, static_cast<std::size_t>(end - digits)}, true);
}

void CPrint::convert(const CXMLTextFormat& item)
{
    const bool isLong = item.size == CXMLTextFormat::ESize::LongLong;
    switch (item.letter) {
    case '%':
        return put("%");
    case 'c': {
        const char c = static_cast<char>(va_arg(mArguments, int));
        return padded(item, {&c, 1}, false);
    }
    case 's': {
        const char* text = va_arg(mArguments, const char*);
        return padded(item, text ? text : "", false);
    }
    case 'f':
        return real(item, va_arg(mArguments, double));
    case 'd':
        return isLong ? integer(item, va_arg(mArguments, long long))
                      : integer(item, va_arg(mArguments, int));
    case 'u':
        return isLong ? integer(item, va_arg(mArguments, unsigned long long))
                      : integer(item, va_arg(mArguments, unsigned));
    default:
        return integer(item, va_arg(mArguments, unsigned), 16);
    }
}

int CPrint::run(const char* format)
{
    while (*format) {
        const char* literalEnd = std::strchr(format, '%');
        if (!literalEnd)
            literalEnd = format + std::strlen(format);
        put({format, static_cast<std::size_t>(literalEnd - format)});
        format = literalEnd;
        if (*format == '%')
            convert(CXMLTextFormat::parse(++format));
    }
    if (mLength > INT_MAX)
        throw std::runtime_error("Printed text too long");
    if (mSize)
        mBuffer[std::min(mLength, mSize - 1)] = 0;
    return static_cast<int>(mLength);
}

} // namespace

int printText(char* buffer, std::size_t size, const char* format, std::va_list arguments)
{
    return CPrint(buffer, size, arguments).run(format);
}

std::string_view printReal(char (&buffer)[kLongestReal], double value)
{
    if (const char* common = commonReal(value)) {
        std::memcpy(buffer, common, kCommonReal + 1);
        return {buffer, kCommonReal};
    }
    std::uint64_t millionths = 0;
    if (!toMillionths(std::fabs(value), millionths)) {
        const int length = printTextf(buffer, sizeof buffer, "%f", value);
        return {buffer, static_cast<std::size_t>(length)};
    }
    char* out = buffer;
    if (std::signbit(value))
        *out++ = '-';
    char* const end = printMillionths(out, millionths);
    *end = 0;
    return {buffer, static_cast<std::size_t>(end - buffer)};
}

std::string_view printInteger(char (&buffer)[kLongestReal], int value)
{
    char* const end = std::to_chars(buffer, buffer + sizeof buffer - 1, value).ptr;
    *end = 0;
    return {buffer, static_cast<std::size_t>(end - buffer)};
}

int printTextf(char* buffer, std::size_t size, const char* format, ...)
{
    std::va_list arguments;
    va_start(arguments, format);
    const int length = printText(buffer, size, format, arguments);
    va_end(arguments);
    return length;
}

CXMLPrinted::CXMLPrinted(const char* format, std::va_list arguments)
{
    std::va_list again;
    va_copy(again, arguments);
    mLength = printText(mShort, sizeof mShort, format, arguments);
    if (static_cast<std::size_t>(mLength) >= sizeof mShort) {
        mLong.resize(static_cast<std::size_t>(mLength));
        printText(mLong.data(), mLong.size() + 1, format, again);
    }
    va_end(again);
}

} // namespace OrvaneXML
