#include "xml/tree/CXMLWriteBuffer.h"

#include <algorithm>
#include <stdexcept>

namespace OrvaneXML {

CXMLWriteBuffer::CXMLWriteBuffer(XIXMLWriteStream& stream)
    : mStream(stream), mBuffer(std::make_unique_for_overwrite<char[]>(kSize + kWidestStep))
{
}

std::uint32_t CXMLWriteBuffer::Write(const void* buffer, std::uint32_t size)
{
    Put({static_cast<const char*>(buffer), size});
    return size;
}

void CXMLWriteBuffer::PutAcross(std::string_view text)
{
    Flush();
    if (text.size() > kSize)
        return Forward(text.data(), text.size());
    std::memcpy(mBuffer.get(), text.data(), text.size());
    mFilled = text.size();
}

void CXMLWriteBuffer::Flush()
{
    Forward(mBuffer.get(), mFilled);
    mFilled = 0;
}

void CXMLWriteBuffer::Forward(const char* bytes, std::size_t size)
{
    constexpr std::size_t kPiece = 1 << 30; // a stream counts in 32 bits
    while (size > 0) {
        const std::size_t asked = std::min(size, kPiece);
        const std::size_t taken = mStream.Write(bytes, static_cast<std::uint32_t>(asked));
        if (taken == 0)
            throw std::runtime_error("The stream of an XML tree takes no more bytes");
        bytes += std::min(taken, asked);
        size -= std::min(taken, asked);
    }
}

} // namespace OrvaneXML
