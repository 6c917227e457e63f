#pragma once

#include <cstdint>

namespace OrvaneXML {

/// A sink of bytes, written from front to back.
class XIXMLWriteStream {
public:
    /// Takes up to `size` bytes from `buffer` and returns how many it took. What was not taken is
    /// offered again; 0 for a `size` above 0 makes the save fail.
    virtual std::uint32_t Write(const void* buffer, std::uint32_t size) = 0;

protected:
    ~XIXMLWriteStream() = default;
};

} // namespace OrvaneXML
