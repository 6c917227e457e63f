#pragma once

#include <zel/xml/XIXMLWriteStream.h>

#include <cstddef>
#include <memory>
#include <string_view>

namespace OrvaneXML {

/// Collects small writes into large ones. What is not flushed is lost on purpose: a write that
/// fails puts out nothing more.
class CXMLWriteBuffer final : public XIXMLWriteStream {
public:
    explicit CXMLWriteBuffer(XIXMLWriteStream& stream);

    std::uint32_t Write(const void* buffer, std::uint32_t size) override;
    void Put(char c)
    {
        if (mFilled == kSize)
            Flush();
        mBuffer[mFilled++] = c;
    }
    void Put(std::string_view text);
    /// Throws std::runtime_error when the stream takes nothing.
    void Flush();

private:
    void Forward(const char* bytes, std::size_t size);

    static constexpr std::size_t kSize = 64 * 1024;

    XIXMLWriteStream& mStream;
    std::unique_ptr<char[]> mBuffer;
    std::size_t mFilled = 0;
};

} // namespace OrvaneXML
