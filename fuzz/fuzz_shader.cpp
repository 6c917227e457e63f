#include "fuzz/check.h"
#include "tests/support/CClientDocument.h"

#include <zel/IZelProperty.h>

// Whatever a shader document holds, reading it ends with true or with false and a message; what was
// read can be written, and is written alike twice.

namespace {

std::string written(ZelTest::CClientDocument& document, OvZel::IZelProperty* property)
{
    ZelTest::CMemoryWriteStream stream;
    check(document.more().writeShader(property, &stream) || !document.takeMessages().empty());
    return stream.text;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string text(reinterpret_cast<const char*>(data), size);
    ZelTest::CClientDocument document;
    OvZel::IZelProperty* property = document.more().newShader();
    ZelTest::CMemoryReadStream stream(text);
    const bool isGood = document.more().readShader(property, &stream);
    check(isGood || !document.takeMessages().empty());
    const std::string first = written(document, property);
    check(!isGood || !first.empty());
    check(written(document, property) == first);

    // A copy of it, and what the facade makes of whatever came.
    OvZel::IZelProperty* copy = document.more().newShader();
    check(!isGood || copy->copyFrom(property));
    copy->setMapAngle(1.0);
    copy->setGlossy(1.0);
    while (copy->removeMappingNode(0)) {
    }
    return 0;
}
