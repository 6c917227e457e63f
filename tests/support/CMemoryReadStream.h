#pragma once

#include <zel/IZelReadStream.h>

#include <algorithm>
#include <cstring>
#include <functional>
#include <stdexcept>
#include <string>

namespace ZelTest {

/// A text as a client's stream.
class CMemoryReadStream : public OvZel::IZelReadStream {
public:
    static constexpr std::size_t kWhole = std::string::npos;
    /// Stands in for a read.
    using CFailure = std::function<std::uint32_t(void* buffer, std::uint32_t size)>;

    static std::uint32_t throwText(void*, std::uint32_t)
    {
        throw std::runtime_error("stream broke");
    }
    static std::uint32_t throwInt(void*, std::uint32_t) { throw 1; }

    explicit CMemoryReadStream(std::string content, std::size_t most = kWhole)
        : text(std::move(content)), step(most)
    {
    }

    std::uint32_t read(void* buffer, std::uint32_t size) override
    {
        if (position >= failsAt)
            return failure(buffer, size);
        const std::size_t count = std::min({std::size_t{size}, step, text.size() - position});
        std::memcpy(buffer, text.data() + position, count);
        position += count;
        return static_cast<std::uint32_t>(count);
    }

    std::int64_t getPosition() override { return static_cast<std::int64_t>(position); }
    void setPosition(std::int64_t place) override { position = static_cast<std::size_t>(place); }

    std::string text;
    std::size_t position = 0;
    std::size_t step;                        ///< at most so many bytes at once
    std::size_t failsAt = std::string::npos; ///< fails from this position on
    CFailure failure = throwText;
};

} // namespace ZelTest
