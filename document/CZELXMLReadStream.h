#pragma once

#include <zel/IZelReadStream.h>
#include <zel/xml/XIXMLReadStream.h>

#include <algorithm>

namespace OvZel {

/// A client's stream as the XML layer reads it.
///
/// The layer asks for as much as its window holds. A probe that needs only the head of a file sets
/// a smaller piece, so that a stream over a network isn't read for nothing.
class CZELXMLReadStream : public OrvaneXML::XIXMLReadStream {
public:
    static constexpr std::uint32_t kWhole = 0xFFFFFFFF;
    static constexpr std::uint32_t kHead = 2 * 1024;

    explicit CZELXMLReadStream(IZelReadStream* stream, std::uint32_t piece = kWhole)
        : mStream(stream), mPiece(piece)
    {
    }

    /// A client that claims more than it was asked for is not believed.
    std::uint32_t Read(void* buffer, std::uint32_t size) override
    {
        size = std::min(size, mPiece);
        return std::min(mStream->read(buffer, size), size);
    }

private:
    IZelReadStream* mStream;
    std::uint32_t mPiece;
};

} // namespace OvZel
