#pragma once

#include <zel/xml/XIXMLData.h>

namespace OvZel {

class IBlockHost;

/// Gives the bytes of a data block when the tree is written, and sends its failures to the client.
class CZELProvider : public OrvaneXML::XIXMLData::IXMLCData {
public:
    /// A null host raises the null-pointer failure.
    explicit CZELProvider(IBlockHost* host);

    /// Sends the text of a failure and answers false, so that the rest of the tree is still
    /// written. A cancelled operation goes on to the caller of the tree instead, which stops the
    /// save.
    bool Write(OrvaneXML::XIXMLWriteStream* stream, void* reserved,
               OrvaneXML::XIXMLData* node) override;
    /// Null on any failure.
    IXMLCData* Clone() override;

    virtual IXMLCData* Clone2() = 0;
    virtual bool Write2(OrvaneXML::XIXMLWriteStream* stream, OrvaneXML::XIXMLData* node) = 0;

protected:
    IBlockHost* host() const { return mHost; }

private:
    IBlockHost* mHost;
};

} // namespace OvZel
