#pragma once

#include <cstdarg>
#include <cstddef>
#include <string>
#include <string_view>

namespace OrvaneXML {

/// Reads values from `text` as sscanf does in the "C" locale, whatever locale is set.
///
/// Understands `%d %u %x %X %lld %llu %f %lf %s %c %%`, widths, literal text and white space.
/// Returns the number of stored values, or -1 when the text ends before the first conversion. Any
/// other conversion throws std::runtime_error when its turn comes.
int scanText(const char* text, const char* format, std::va_list arguments);
int scanTextf(const char* text, const char* format, ...);

/// What "%lf" and "%d" read, without the way through a format; false if they store nothing.
bool scanReal(const char* text, double& value);
bool scanInteger(const char* text, int& value);

/// Prints as snprintf does in the "C" locale, with the same conversions, a width and a leading 0 in
/// front of it; `%f` has six decimals. What does not fit into `size` bytes is cut off. Returns the
/// length of the whole text. Numbers that are not finite are "nan", "inf" and "-inf".
int printText(char* buffer, std::size_t size, const char* format, std::va_list arguments);
int printTextf(char* buffer, std::size_t size, const char* format, ...);

/// What "%f" and "%d" print, in the buffer with a NUL behind it.
constexpr std::size_t kLongestReal = 332;
std::string_view printReal(char (&buffer)[kLongestReal], double value);
std::string_view printInteger(char (&buffer)[kLongestReal], int value);

/// A printed text of any length, which needs memory of its own only beyond the usual length.
class CXMLPrinted {
public:
    CXMLPrinted(const char* format, std::va_list arguments);

    const char* text() const { return mLong.empty() ? mShort : mLong.c_str(); }
    int length() const { return mLength; }

private:
    char mShort[2048];
    std::string mLong;
    int mLength = 0;
};

} // namespace OrvaneXML
