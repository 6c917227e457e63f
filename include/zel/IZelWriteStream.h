#pragma once

#include <cstdint>

namespace OvZel {

/// Where a document goes, supplied by the client; must outlive the call that it is given to.
class IZelWriteStream {
public:
    /// Takes size bytes. The library counts every write as complete and ignores the result: a
    /// client that can fail remembers it, or throws, which makes the save fail.
    virtual std::uint32_t write(const void* buffer, std::uint32_t size) = 0;

protected:
    ~IZelWriteStream() = default;
};

} // namespace OvZel
