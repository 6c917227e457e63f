#pragma once

#include <zel/xml/XIXMLWriteStream.h>

#include <algorithm>
#include <string>

namespace ZelTest {

/// Gathers what the XML layer writes. A limit makes it take no byte beyond it.
class CXMLTextTarget : public OrvaneXML::XIXMLWriteStream {
public:
    explicit CXMLTextTarget(std::size_t limit = std::string::npos) : mLimit(limit) {}

    std::uint32_t Write(const void* buffer, std::uint32_t size) override
    {
        const std::size_t count = std::min<std::size_t>(size, mLimit - text.size());
        text.append(static_cast<const char*>(buffer), count);
        return static_cast<std::uint32_t>(count);
    }

    std::string text;

private:
    std::size_t mLimit;
};

} // namespace ZelTest
