#include "fuzz/check.h"
#include "fuzz/hasLargePicture.h"
#include "tests/support/CClientDocument.h"

// What was read can be written, and what was written reads back to the same bytes.

namespace {

using ZelTest::CClientDocument;

std::string rewritten(const std::string& text)
{
    CClientDocument document;
    check(document.read(text) && document.write());
    return document.written;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string text(reinterpret_cast<const char*>(data), size);
    if (hasLargePicture(text))
        return 0;
    CClientDocument document;
    if (!document.read(text))
        return 0;
    const bool isGood = document.write();
    const std::string first = document.written;
    check(document.write() == isGood && document.written == first);
    if (!isGood)
        return 0;
    const std::string second = rewritten(first);
    check(rewritten(second) == second);
    return 0;
}
