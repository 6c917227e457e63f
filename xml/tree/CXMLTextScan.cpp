#include "xml/tree/CXMLText.h"

#include "xml/tree/CXMLTextFormat.h"
#include "xml/tree/commonTexts.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <cstring>
#include <limits>
#include <system_error>

namespace OrvaneXML {

namespace {

bool isSpace(char c)
{
    return c == ' ' || (c >= '\t' && c <= '\r');
}
const char* skipSpace(const char* text)
{
    while (isSpace(*text))
        ++text;
    return text;
}

/// The end of what a conversion may look at: its width or the end of the text.
const char* endOf(const char* text, int width)
{
    return width > 0 ? text + ::strnlen(text, static_cast<std::size_t>(width))
                     : text + std::strlen(text);
}

bool takeSign(const char*& text, const char* end)
{
    if (text == end || (*text != '-' && *text != '+'))
        return false;
    return *text++ == '-';
}

/// The magnitude saturates, as strtoull does.
bool takeUnsigned(const char*& text, const char* end, int base, std::uint64_t& value)
{
    if (base == 16 && end - text > 2 && text[0] == '0' && (text[1] | 0x20) == 'x' &&
        std::strchr("0123456789abcdefABCDEF", text[2]))
        text += 2;
    const auto [stop, error] = std::from_chars(text, end, value, base);
    if (error == std::errc::invalid_argument)
        return false;
    if (error == std::errc::result_out_of_range)
        value = std::numeric_limits<std::uint64_t>::max();
    text = stop;
    return true;
}

/// Where the first digit other than 0 stands: its power of ten, far below 0 if all are 0.
long decimalPower(const char* text, const char* end)
{
    const char* exponentMark = text;
    while (exponentMark != end && (*exponentMark | 0x20) != 'e')
        ++exponentMark;
    long exponent = 0;
    if (exponentMark != end) {
        const char* digits = exponentMark + 1;
        const bool negative = takeSign(digits, end);
        for (; digits != end && exponent < 1'000'000; ++digits)
            exponent = exponent * 10 + (*digits - '0');
        exponent = negative ? -exponent : exponent;
    }
    const char* point = text;
    while (point != exponentMark && *point != '.')
        ++point;
    const char* first = text;
    while (first != exponentMark && (*first == '0' || *first == '.'))
        ++first;
    return static_cast<long>(point - first) + exponent;
}

/// Joins the digits at `text`, at most so many, to `digits`, and tells how many there were.
int takeDigits(const char*& text, std::uint64_t& digits, int most)
{
    int nb = 0;
    for (; *text >= '0' && *text <= '9' && nb < most; ++text, ++nb)
        digits = digits * 10 + static_cast<unsigned>(*text - '0');
    return nb;
}

/// A plain decimal that is all of a text: both numbers of the quotient are exact, so that the
/// division rounds as correctly as any other way. False leaves a text to those.
bool takePlainDecimal(const char* text, double& value)
{
    constexpr int kExact = 15;
    constexpr double kPowers[] = {1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                  1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
    const bool negative = *text == '-';
    text += negative;
    std::uint64_t digits = 0;
    const int nbBefore = takeDigits(text, digits, kExact);
    int nbBehind = 0;
    if (nbBefore > 0 && *text == '.')
        nbBehind = takeDigits(++text, digits, kExact - nbBefore);
    if (nbBefore == 0 || *text)
        return false;
    value = static_cast<double>(digits) / kPowers[nbBehind];
    if (negative)
        value = -value;
    return true;
}

template <class T>
bool takeReal(const char*& text, const char* end, T& value)
{
    const bool negative = takeSign(text, end);
    if (text == end || *text == '-')
        return false;
    const auto [stop, error] = std::from_chars(text, end, value);
    if (error == std::errc::invalid_argument)
        return false;
    if (error == std::errc::result_out_of_range)
        value = decimalPower(text, stop) > 0 ? std::numeric_limits<T>::infinity() : T(0);
    if (negative)
        value = -value;
    text = stop;
    return true;
}

/// One scan: the place in the text, and the conversions that store from there.
class CScan {
public:
    CScan(const char* text, std::va_list arguments) : mText(text)
    {
        va_copy(mArguments, arguments);
    }
    ~CScan() { va_end(mArguments); }
    CScan(const CScan&) = delete;
    CScan& operator=(const CScan&) = delete;

    int run(const char* format);

private:
    bool literal(char c);
    bool convert(const CXMLTextFormat& item);
    bool characters(int width, char* out);
    bool word(int width, char* out);
    bool signedNumber(const CXMLTextFormat& item);
    bool unsignedNumber(const CXMLTextFormat& item);
    bool real(const CXMLTextFormat& item);

    const char* mText;
    std::va_list mArguments;
    int mNbStored = 0;
};

bool CScan::literal(char c)
{
    if (isSpace(c)) {
        mText = skipSpace(mText);
        return true;
    }
    if (*mText != c)
        return false;
    ++mText;
    return true;
}

bool CScan::characters(int width, char* out)
{
    const std::size_t nb = width > 0 ? static_cast<std::size_t>(width) : 1;
    if (::strnlen(mText, nb) < nb)
        return false;
    std::memcpy(out, mText, nb);
    mText += nb;
    return true;
}

bool CScan::word(int width, char* out)
{
    const char* end = mText;
    for (int nb = 0; *end && !isSpace(*end) && (width == 0 || nb < width); ++nb)
        ++end;
    std::memcpy(out, mText, static_cast<std::size_t>(end - mText));
    out[end - mText] = 0;
    mText = end;
    return true;
}

bool CScan::signedNumber(const CXMLTextFormat& item)
{
    const char* end = endOf(mText, item.width);
    const bool negative = takeSign(mText, end);
    std::uint64_t magnitude = 0;
    if (!takeUnsigned(mText, end, 10, magnitude))
        return false;
    constexpr std::uint64_t kMax = std::numeric_limits<std::int64_t>::max();
    magnitude = std::min(magnitude, negative ? kMax + 1 : kMax);
    const std::uint64_t bits = negative ? 0 - magnitude : magnitude;
    if (item.size == CXMLTextFormat::ESize::LongLong)
        *va_arg(mArguments, long long*) = static_cast<long long>(bits);
    else
        *va_arg(mArguments, int*) = static_cast<int>(bits);
    return true;
}

bool CScan::unsignedNumber(const CXMLTextFormat& item)
{
    const char* end = endOf(mText, item.width);
    const bool negative = takeSign(mText, end);
    std::uint64_t value = 0;
    if (!takeUnsigned(mText, end, item.letter == 'u' ? 10 : 16, value))
        return false;
    value = negative ? 0 - value : value;
    if (item.size == CXMLTextFormat::ESize::LongLong)
        *va_arg(mArguments, unsigned long long*) = value;
    else
        *va_arg(mArguments, unsigned*) = static_cast<unsigned>(value);
    return true;
}

bool CScan::real(const CXMLTextFormat& item)
{
    const char* end = endOf(mText, item.width);
    if (item.size == CXMLTextFormat::ESize::Plain) {
        float value = 0;
        if (!takeReal(mText, end, value))
            return false;
        *va_arg(mArguments, float*) = value;
        return true;
    }
    double value = 0;
    if (!takeReal(mText, end, value))
        return false;
    *va_arg(mArguments, double*) = value;
    return true;
}

bool CScan::convert(const CXMLTextFormat& item)
{
    switch (item.letter) {
    case 'c':
        return characters(item.width, va_arg(mArguments, char*));
    case 's':
        return word(item.width, va_arg(mArguments, char*));
    case 'd':
        return signedNumber(item);
    case 'f':
        return real(item);
    default:
        return unsignedNumber(item);
    }
}

int CScan::run(const char* format)
{
    while (*format) {
        if (*format != '%') {
            if (!literal(*format++))
                break;
            continue;
        }
        ++format;
        const CXMLTextFormat item = CXMLTextFormat::parse(format);
        if (item.letter != 'c')
            mText = skipSpace(mText);
        if (item.letter == '%') {
            if (!literal('%'))
                break;
            continue;
        }
        if (!*mText)
            return mNbStored ? mNbStored : -1;
        if (!convert(item))
            break;
        ++mNbStored;
    }
    return mNbStored;
}

} // namespace

int scanText(const char* text, const char* format, std::va_list arguments)
{
    return CScan(text, arguments).run(format);
}

bool scanReal(const char* text, double& value)
{
    if (text == kZeroText || text == kOneText) {
        value = text == kOneText ? 1.0 : 0.0;
        return true;
    }
    return takePlainDecimal(text, value) || scanTextf(text, "%lf", &value) == 1;
}

bool scanInteger(const char* text, int& value)
{
    constexpr int kFits = 9;
    const char* rest = text + (*text == '-');
    std::uint64_t digits = 0;
    if (takeDigits(rest, digits, kFits) > 0 && !*rest) {
        value = *text == '-' ? -static_cast<int>(digits) : static_cast<int>(digits);
        return true;
    }
    return scanTextf(text, "%d", &value) == 1;
}

int scanTextf(const char* text, const char* format, ...)
{
    std::va_list arguments;
    va_start(arguments, format);
    const int nbStored = scanText(text, format, arguments);
    va_end(arguments);
    return nbStored;
}

} // namespace OrvaneXML
