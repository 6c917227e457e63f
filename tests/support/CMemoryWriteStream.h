#pragma once

#include <zel/IZelWriteStream.h>

#include <stdexcept>
#include <string>

namespace ZelTest {

/// Gathers what a document writes to its client.
class CMemoryWriteStream : public OvZel::IZelWriteStream {
public:
    std::uint32_t write(const void* buffer, std::uint32_t size) override
    {
        if (text.size() + size > room)
            throw std::runtime_error("disk full");
        text.append(static_cast<const char*>(buffer), size);
        return answersNothing ? 0 : size;
    }

    std::string text;
    std::size_t room = std::string::npos; ///< throws at what goes beyond so many bytes
    bool answersNothing = false;
};

} // namespace ZelTest
