#pragma once

#include "tests/support/CStepReadStream.h"
#include "tests/support/CTextWriteStream.h"
#include "tests/support/messageOf.h"
#include "tests/support/vtable.h"
#include "xml/tree/CXMLTreeReader.h"

#include <cstdint>
#include <memory>
#include <string>

/// What the tests of the XML tree share.
namespace OrvaneXML::test {

using ZelTest::callSlot;

using CTreePtr = std::unique_ptr<XCXMLTree>;

inline CTreePtr readTree(std::string text, std::size_t step = CStepReadStream::kWhole,
                         IXMLCDataReader* reader = nullptr)
{
    CStepReadStream source(std::move(text), step);
    return CTreePtr(CXMLTreeReader(reader).ReadTree(&source));
}

inline std::string written(const XCXMLTree& tree)
{
    CTextWriteStream sink;
    tree.Write(&sink);
    return sink.text;
}

/// A provider of fixed bytes that counts how many of its kind are alive.
class CBytes final : public XIXMLData::IXMLCData {
public:
    explicit CBytes(std::string bytes, bool result = true)
        : mBytes(std::move(bytes)), mResult(result)
    {
        ++nbAlive;
    }
    ~CBytes() override { --nbAlive; }
    bool Write(XIXMLWriteStream* stream, void*, XIXMLData*) override
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

} // namespace OrvaneXML::test
