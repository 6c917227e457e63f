#pragma once

#include <zel/CZelPoint.h>
#include <zel/xml/XIXMLWriteStream.h>

#include <cstddef>
#include <cstdint>
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
    explicit CFastWriter(OrvaneXML::XIXMLWriteStream& stream);

    void writeText(std::string_view text);
    /// Decimal and a blank, as the next one.
    void writeUnsigned(std::uint32_t value);
    void writeInteger(std::int32_t value);
    /// Up to six decimals and a blank. What lies beyond 1e30 is written as 1e30, NaN as -1e30.
    void writeDouble(double value);
    void writePoint(const CZelPoint& point);
    void flush();

private:
    static constexpr std::size_t kSize = 64 * 1024;
    /// No number is longer: 1e30 has 31 digits, sign, point, six decimals and a blank.
    static constexpr std::size_t kLongest = 48;

    /// Place for that many bytes, at most kLongest.
    char* room(std::size_t size = kLongest)
    {
        if (kSize - mUsed < size)
            flush();
        return mBuffer.get() + mUsed;
    }
    void usedUpTo(const char* end) { mUsed = static_cast<std::size_t>(end - mBuffer.get()); }
    void put(const char* bytes, std::size_t size);

    OrvaneXML::XIXMLWriteStream& mStream;
    std::unique_ptr<char[]> mBuffer;
    std::size_t mUsed = 0;
};

} // namespace OvZel
