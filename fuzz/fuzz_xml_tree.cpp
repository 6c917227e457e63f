#include "xml/tree/CXMLTreeReader.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <stdexcept>
#include <string>

// What can be read can be written, and what was written reads back to the same bytes.

namespace {

using namespace OrvaneXML;

class CSource final : public XIXMLReadStream {
public:
    explicit CSource(std::string_view text) : mText(text) {}
    std::uint32_t Read(void* buffer, std::uint32_t size) override
    {
        const auto nb = static_cast<std::uint32_t>(std::min<std::size_t>(size, mText.size()));
        std::memcpy(buffer, mText.data(), nb);
        mText.remove_prefix(nb);
        return nb;
    }

private:
    std::string_view mText;
};

class CSink final : public XIXMLWriteStream {
public:
    std::uint32_t Write(const void* buffer, std::uint32_t size) override
    {
        text.append(static_cast<const char*>(buffer), size);
        return size;
    }
    std::string text;
};

std::string rewritten(std::string_view text)
{
    CSource source(text);
    const std::unique_ptr<XCXMLTree> tree(CXMLTreeReader(nullptr).ReadTree(&source));
    CSink sink;
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
