#pragma once

#include "tests/support/CXMLTextSource.h"
#include "tests/support/CXMLTextTarget.h"
#include "xml/tree/CXMLTreeReader.h"
#include "xml/tree/XCXMLTree.h"

#include <cstdint>
#include <memory>
#include <string>

/// Trees of the XML layer from a text and back to one.
namespace ZelTest {

using CTreePtr = std::unique_ptr<OrvaneXML::XCXMLTree>;

inline CTreePtr readTree(std::string text, std::size_t step = CXMLTextSource::kWhole,
                         OrvaneXML::IXMLCDataReader* reader = nullptr)
{
    CXMLTextSource source(std::move(text), step);
    return CTreePtr(OrvaneXML::CXMLTreeReader(reader).ReadTree(&source));
}

inline std::string written(const OrvaneXML::XCXMLTree& tree)
{
    CXMLTextTarget target;
    tree.Write(&target);
    return target.text;
}

/// A provider of fixed bytes that counts how many of its kind are alive.
class CBytes final : public OrvaneXML::XIXMLData::IXMLCData {
public:
    explicit CBytes(std::string bytes, bool result = true)
        : mBytes(std::move(bytes)), mResult(result)
    {
        ++nbAlive;
    }
    ~CBytes() override { --nbAlive; }
    bool Write(OrvaneXML::XIXMLWriteStream* stream, void*, OrvaneXML::XIXMLData*) override
    {
        stream->Write(mBytes.data(), static_cast<std::uint32_t>(mBytes.size()));
        return mResult;
    }
    IXMLCData* Clone() override { return new CBytes(mBytes, mResult); }

    static inline int nbAlive = 0;

private:
    std::string mBytes;
    bool mResult;
};

} // namespace ZelTest
