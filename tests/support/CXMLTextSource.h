#pragma once

#include <zel/xml/XIXMLReadStream.h>

#include <algorithm>
#include <cstring>
#include <string>

namespace ZelTest {

/// Delivers a text to the XML layer, in steps of at most so many bytes.
class CXMLTextSource : public OrvaneXML::XIXMLReadStream {
public:
    static constexpr std::size_t kWhole = 1'000'000'000;

    explicit CXMLTextSource(std::string text, std::size_t step = kWhole)
        : mText(std::move(text)), mStep(step)
    {
    }

    std::uint32_t Read(void* buffer, std::uint32_t size) override
    {
        const std::size_t count =
            std::min({mStep, static_cast<std::size_t>(size), mText.size() - mPosition});
        std::memcpy(buffer, mText.data() + mPosition, count);
        mPosition += count;
        return static_cast<std::uint32_t>(count);
    }

private:
    std::string mText;
    std::size_t mStep;
    std::size_t mPosition = 0;
};

} // namespace ZelTest
