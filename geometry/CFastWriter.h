#pragma once

#include "geometry/decimals.h"

#include <zel/CZelPoint.h>
#include <zel/xml/XIXMLWriteStream.h>

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>
#include <string_view>

namespace OvZel {

/// Writes the texts of geometry blocks.
///
/// Text is gathered in a buffer, and flush puts out what is left of it; the destructor doesn't. A
/// stream that takes less than it was offered raises
/// "CFastWriter::write - Can't write all data".
class CFastWriter {
public:
    /// Where the next text goes, and where it ends. Loops over many numbers hold it in a register
    /// and ask for room once for several of them.
    struct CPen {
        void text(std::string_view text)
        {
            std::memcpy(out, text.data(), text.size());
            out += text.size();
        }
        /// Decimal and a blank, as the next one.
        void integer(std::int32_t value)
        {
            out = putInteger(out, value);
            *out++ = ' ';
        }
        /// Up to six decimals and a blank. What lies beyond 1e30 is written as 1e30, NaN as -1e30.
        void real(double value)
        {
            out = putReal(out, value);
            *out++ = ' ';
        }
        void point(const CZelPoint& point)
        {
            real(point.x);
            real(point.y);
            real(point.z);
        }

        char* out;
    };
    /// No number is longer: 1e30 has 31 digits, sign, point, six decimals and a blank.
    static constexpr std::size_t kLongest = 48;

    explicit CFastWriter(OrvaneXML::XIXMLWriteStream& stream);

    /// A pen with room for so many bytes, at most 64 KiB; nothing else is written until done.
    CPen pen(std::size_t size)
    {
        if (kSize - mUsed < size)
            flush();
        return {mBuffer.get() + mUsed};
    }
    void done(const CPen& pen) { mUsed = static_cast<std::size_t>(pen.out - mBuffer.get()); }

    void flush();

private:
    // More than a tree collects of small writes, so that a full buffer goes out as it is; and file
    // systems take large pieces with less work.
    static constexpr std::size_t kSize = 256 * 1024;

    static char* putReal(char* out, double value);
    static char* putOrdinary(char* out, double value);
    static char* putLarge(char* out, double value);

    OrvaneXML::XIXMLWriteStream& mStream;
    std::unique_ptr<char[]> mBuffer;
    std::size_t mUsed = 0;
};

inline char* CFastWriter::putReal(char* out, double value)
{
    // Up to here the integer part fits 32 bits; NaN is not below.
    constexpr double kLargestOrdinary = 2147483647.0;
    if (!(std::fabs(value) <= kLargestOrdinary))
        return putLarge(out, value);
    if (value != 0.0)
        return putOrdinary(out, value);
    std::memcpy(out, "0.0", 3);
    return out + 3;
}

/// Adds half a unit of the sixth decimal and cuts. The texts depend on the order of the operations.
inline char* CFastWriter::putOrdinary(char* out, double value)
{
    const double rounded = std::fabs(value) + 5e-7;
    if (value < 0.0)
        *out++ = '-';
    const auto whole = static_cast<std::uint32_t>(rounded);
    out = putUnsigned(out, whole);
    *out++ = '.';
    return putDecimals(out, rounded - whole);
}

} // namespace OvZel
