#pragma once

#include <zel/xml/XIXMLData.h>

#include <string>
#include <utility>

namespace OrvaneXML {

/// The bytes of a section that nobody wanted when it was read. They go out unchanged.
class CXMLOpaqueCData final : public XIXMLData::IXMLCData {
public:
    explicit CXMLOpaqueCData(std::string bytes) : mBytes(std::move(bytes)) {}

    bool Write(XIXMLWriteStream* stream, void*, XIXMLData*) override;
    IXMLCData* Clone() override { return new CXMLOpaqueCData(mBytes); }

private:
    std::string mBytes;
};

} // namespace OrvaneXML
