#include "geometry/CFastWriter.h"

#include "geometry/decimals.h"

#include <charconv>
#include <cmath>
#include <cstring>
#include <stdexcept>

namespace OvZel {

namespace {

constexpr double kLargest = 1e30;
/// Up to here the integer part fits 32 bits.
constexpr double kLargestOrdinary = 2147483647.0;

/// Also NaN comes out as the lower limit.
double clamp(double value)
{
    if (value > kLargest)
        return kLargest;
    return value > -kLargest ? value : -kLargest;
}

/// Adds half a unit of the sixth decimal and cuts. The texts depend on the order of the operations.
char* putOrdinary(char* out, double value)
{
    const double rounded = std::fabs(value) + 5e-7;
    if (value < 0.0)
        *out++ = '-';
    const auto whole = static_cast<std::uint32_t>(rounded);
    out = std::to_chars(out, out + 10, whole).ptr;
    *out++ = '.';
    return putDecimals(out, rounded - whole);
}

} // namespace

CFastWriter::CFastWriter(OrvaneXML::XIXMLWriteStream& stream)
    : mStream(stream), mBuffer(new char[kSize])
{
}

void CFastWriter::writeText(std::string_view text)
{
    if (kSize - mUsed < text.size())
        flush();
    if (text.size() > kSize)
        return put(text.data(), text.size());
    std::memcpy(mBuffer.get() + mUsed, text.data(), text.size());
    mUsed += text.size();
}

void CFastWriter::writeUnsigned(std::uint32_t value)
{
    char* out = room();
    out = std::to_chars(out, out + kLongest, value).ptr;
    *out++ = ' ';
    usedUpTo(out);
}

void CFastWriter::writeInteger(std::int32_t value)
{
    char* out = room();
    out = std::to_chars(out, out + kLongest, value).ptr;
    *out++ = ' ';
    usedUpTo(out);
}

void CFastWriter::writeDouble(double value)
{
    value = clamp(value);
    if (value == 0.0)
        return writeText("0.0 ");
    char* out = room();
    if (std::fabs(value) > kLargestOrdinary)
        out = std::to_chars(out, out + kLongest, value, std::chars_format::fixed, 6).ptr;
    else
        out = putOrdinary(out, value);
    *out++ = ' ';
    usedUpTo(out);
}

void CFastWriter::writePoint(const CZelPoint& point)
{
    writeDouble(point.x);
    writeDouble(point.y);
    writeDouble(point.z);
}

void CFastWriter::flush()
{
    const std::size_t size = mUsed;
    mUsed = 0;
    if (size > 0)
        put(mBuffer.get(), size);
}

void CFastWriter::put(const char* bytes, std::size_t size)
{
    if (mStream.Write(bytes, static_cast<std::uint32_t>(size)) != size)
        throw std::runtime_error("CFastWriter::write - Can't write all data");
}

} // namespace OvZel
