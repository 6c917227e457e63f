#pragma once

#include <cstdint>

namespace OrvaneXML {

/// A source of bytes, read from front to back.
class XIXMLReadStream {
public:
    virtual ~XIXMLReadStream() = default;

    /// Stores up to `size` bytes in `buffer` and returns how many. A short count is not the end;
    /// 0 is. What it throws passes through the operation that reads.
    virtual std::uint32_t Read(void* buffer, std::uint32_t size) = 0;
};

} // namespace OrvaneXML
