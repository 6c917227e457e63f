#pragma once

#include <cstdint>

namespace OvZel {

/// Bytes of a document, supplied by the client; must outlive the call that it is given to. What its
/// operations throw makes that call fail.
class IZelReadStream {
public:
    /// Delivers up to size bytes and returns their number; 0 only at the end of the stream.
    virtual std::uint32_t read(void* buffer, std::uint32_t size) = 0;
    /// A position that setPosition understands; opaque to the library.
    virtual std::int64_t getPosition() = 0;
    virtual void setPosition(std::int64_t position) = 0;

protected:
    ~IZelReadStream() = default;
};

} // namespace OvZel
