#include "tests/support/CStepReadStream.h"
#include "tests/support/CTextWriteStream.h"
#include "xml/tree/CXMLTreeReader.h"

#include <cstdlib>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>

// What can be read can be written, and what was written reads back to the same bytes.

namespace {

using namespace OrvaneXML;

std::string rewritten(std::string_view text)
{
    CStepReadStream source{std::string(text)};
    const std::unique_ptr<XCXMLTree> tree(CXMLTreeReader(nullptr).ReadTree(&source));
    CTextWriteStream sink;
    if (!tree->Write(&sink))
        std::abort();
    return sink.text;
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
    if (rewritten(once) != once) // also ends here if it no longer reads
        std::abort();
    return 0;
}
