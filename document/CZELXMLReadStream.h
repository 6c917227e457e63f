#pragma once

#include <zel/IZelReadStream.h>
#include <zel/xml/XIXMLReadStream.h>

#include <algorithm>

namespace OvZel {

/// A client's stream as the XML layer reads it.
class CZELXMLReadStream : public OrvaneXML::XIXMLReadStream {
public:
    explicit CZELXMLReadStream(IZelReadStream* stream) : mStream(stream) {}

    /// A client that claims more than it was asked for is not believed.
    std::uint32_t Read(void* buffer, std::uint32_t size) override
    {
        return std::min(mStream->read(buffer, size), size);
    }

private:
    IZelReadStream* mStream;
};

} // namespace OvZel
