#pragma once

#include <zel/IZelWriteStream.h>

#include <stdexcept>
#include <string>

namespace ZelTest {

/// Gathers what a document writes.
class CMemoryWriteStream : public OvZel::IZelWriteStream {
public:
    std::uint32_t write(const void* buffer, std::uint32_t size) override
    {
        if (fails)
            throw std::runtime_error("disk full");
        text.append(static_cast<const char*>(buffer), size);
        return answersNothing ? 0 : size;
    }

    std::string text;
    bool fails = false;
    bool answersNothing = false;
};

} // namespace ZelTest
