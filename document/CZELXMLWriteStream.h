#pragma once

#include <zel/IZelWriteStream.h>
#include <zel/xml/XIXMLWriteStream.h>

namespace OvZel {

/// A client's stream as the XML layer writes it. Every write counts as complete: clients return
/// what they like there, and a save must not fail over it.
class CZELXMLWriteStream : public OrvaneXML::XIXMLWriteStream {
public:
    explicit CZELXMLWriteStream(IZelWriteStream* stream) : mStream(stream) {}

    std::uint32_t Write(const void* buffer, std::uint32_t size) override
    {
        mStream->write(buffer, size);
        return size;
    }

private:
    IZelWriteStream* mStream;
};

} // namespace OvZel
