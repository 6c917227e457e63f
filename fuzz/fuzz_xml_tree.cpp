#include "fuzz/check.h"
#include "tests/support/xmlTree.h"

#include <stdexcept>
#include <string>

// What can be read can be written, and what was written reads back to the same bytes.

namespace {

std::string rewritten(const std::string& text)
{
    const ZelTest::CTreePtr tree = ZelTest::readTree(text);
    ZelTest::CXMLTextTarget target;
    check(tree->Write(&target));
    return target.text;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    std::string once;
    try {
        once = rewritten({reinterpret_cast<const char*>(data), size});
    } catch (const std::runtime_error&) {
        return 0;
    }
    check(rewritten(once) == once); // also ends here if it no longer reads
    return 0;
}
