#include "fuzz/check.h"
#include "fuzz/hasLargePicture.h"
#include "tests/support/CClientDocument.h"

// Whatever a file holds, a load ends with true or with false and a message, and the width of the
// steps in which the bytes arrive makes no difference.

namespace {

using ZelTest::CClientDocument;

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string text(reinterpret_cast<const char*>(data), size);
    if (hasLargePicture(text))
        return 0;
    CClientDocument whole, steps;
    const bool isGood = whole.read(text);
    const auto messages = whole.takeMessages();
    check(isGood || !messages.empty());
    check(steps.read(text, nullptr, 7) == isGood);
    check(steps.takeMessages() == messages);

    // Into a document that holds something already.
    check(whole.read(text) == isGood);
    whole.takeMessages();
    steps.readCData(text);
    return 0;
}
