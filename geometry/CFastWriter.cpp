#include "geometry/CFastWriter.h"

#include <algorithm>
#include <charconv>
#include <stdexcept>

namespace OvZel {

CFastWriter::CFastWriter(OrvaneXML::XIXMLWriteStream& stream)
    : mStream(stream), mBuffer(new char[kSize])
{
}

/// Also NaN comes out as the lower limit.
char* CFastWriter::putLarge(char* out, double value)
{
    constexpr double kLargest = 1e30;
    const double limited = value > -kLargest ? std::min(value, kLargest) : -kLargest;
    return std::to_chars(out, out + kLongest, limited, std::chars_format::fixed, 6).ptr;
}

void CFastWriter::flush()
{
    const std::size_t size = mUsed;
    mUsed = 0;
    if (size > 0 && mStream.Write(mBuffer.get(), static_cast<std::uint32_t>(size)) != size)
        throw std::runtime_error("CFastWriter::write - Can't write all data");
}

} // namespace OvZel
