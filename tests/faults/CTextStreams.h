#pragma once

#include <zel/IZelReadStream.h>
#include <zel/IZelWriteStream.h>

#include <algorithm>
#include <cstring>
#include <stdexcept>
#include <string>

namespace ZelTest {

/// What a client's stream does wrong at one of its calls.
enum EFault {
    eNoFault,
    eThrows,       ///< an exception with a text
    eThrowsInt,    ///< something that is no exception
    eDeliversNone, ///< from then on, as at the end of the stream
    eDeliversLess,
};

/// For the names of tests.
inline constexpr const char* kFaultNames[] = {"", "Throws", "ThrowsInt", "DeliversNone",
                                              "DeliversLess"};

/// The faults of one stream, by the numbers of its calls.
struct CFaultAt {
    /// The fault of this call.
    EFault next()
    {
        ++nbCalls;
        const bool stays = fault == eDeliversNone && failsAt > 0 && nbCalls > failsAt;
        return nbCalls == failsAt || stays ? fault : eNoFault;
    }

    static void raise(EFault fault)
    {
        if (fault == eThrows)
            throw std::runtime_error("the stream broke");
        if (fault == eThrowsInt)
            throw 1;
    }

    EFault fault = eNoFault;
    int failsAt = 0; ///< from 1
    int nbCalls = 0;
};

/// A text as a client's stream. Takes no memory.
class CTextReader : public OvZel::IZelReadStream {
public:
    explicit CTextReader(const std::string& text, std::size_t step = std::string::npos)
        : mText(text), mStep(step)
    {
    }

    std::uint32_t read(void* buffer, std::uint32_t size) override
    {
        const EFault fault = calls.next();
        CFaultAt::raise(fault);
        std::size_t count = std::min({std::size_t{size}, mStep, mText.size() - mPosition});
        if (fault == eDeliversNone)
            return 0;
        if (fault == eDeliversLess)
            count = std::min<std::size_t>(count, 1);
        std::memcpy(buffer, mText.data() + mPosition, count);
        mPosition += count;
        return static_cast<std::uint32_t>(count);
    }
    std::int64_t getPosition() override
    {
        CFaultAt::raise(positions.next());
        return static_cast<std::int64_t>(mPosition);
    }
    void setPosition(std::int64_t position) override
    {
        CFaultAt::raise(positions.next());
        mPosition = static_cast<std::size_t>(position);
    }

    CFaultAt calls;
    CFaultAt positions; ///< of getPosition and setPosition

private:
    const std::string& mText;
    std::size_t mStep;
    std::size_t mPosition = 0;
};

/// Gathers what is written, in memory that is taken ahead.
class CTextWriter : public OvZel::IZelWriteStream {
public:
    explicit CTextWriter(std::size_t room) { text.reserve(room); }

    std::uint32_t write(const void* buffer, std::uint32_t size) override
    {
        const EFault fault = calls.next();
        CFaultAt::raise(fault);
        const std::size_t room = text.capacity() - text.size();
        text.append(static_cast<const char*>(buffer), std::min<std::size_t>(size, room));
        if (fault == eDeliversNone)
            return 0;
        return fault == eDeliversLess ? size / 2 : size;
    }

    CFaultAt calls;
    std::string text;
};

} // namespace ZelTest
