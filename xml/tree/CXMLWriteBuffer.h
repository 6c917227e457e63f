#pragma once

#include <zel/xml/XIXMLWriteStream.h>

#include <array>
#include <cstddef>
#include <cstring>
#include <memory>
#include <string_view>

namespace OrvaneXML {

/// Collects small writes into large ones. What is not flushed is lost on purpose: a write that
/// fails puts out nothing more.
class CXMLWriteBuffer final : public XIXMLWriteStream {
public:
    explicit CXMLWriteBuffer(XIXMLWriteStream& stream);

    std::uint32_t Write(const void* buffer, std::uint32_t size) override;
    void Put(char c)
    {
        if (mFilled == kSize)
            Flush();
        mBuffer[mFilled++] = c;
    }
    void Put(std::string_view text)
    {
        if (text.size() > kSize - mFilled)
            return PutAcross(text);
        copyShort(mBuffer.get() + mFilled, text.data(), text.size());
        mFilled += text.size();
    }
    /// Puts the pieces one behind the other.
    template <class... TPieces>
    void PutAll(TPieces... pieces)
    {
        if ((pieces.size() + ...) > kSize - mFilled)
            return (Put(pieces), ...);
        char* out = mBuffer.get() + mFilled;
        ((copyShort(out, pieces.data(), pieces.size()), out += pieces.size()), ...);
        mFilled = static_cast<std::size_t>(out - mBuffer.get());
    }
    /// Puts what `text` has in front of the first character of one of the `classes`, which NUL is
    /// of in any case, and returns where that stands.
    const char* PutUpTo(const char* text, const std::array<unsigned char, 256>& classOf,
                        unsigned classes);
    /// Throws std::runtime_error when the stream takes nothing.
    void Flush();

private:
    /// Names and tags are short: two overlapping words copy them faster than a call does.
    static void copyShort(char* to, const char* from, std::size_t nb)
    {
        if (nb > 16)
            std::memcpy(to, from, nb);
        else if (nb >= 8)
            copyEnds<8>(to, from, nb);
        else if (nb >= 4)
            copyEnds<4>(to, from, nb);
        else if (nb >= 2)
            copyEnds<2>(to, from, nb);
        else if (nb == 1)
            *to = *from;
    }
    template <std::size_t kWord>
    static void copyEnds(char* to, const char* from, std::size_t nb)
    {
        char ends[2 * kWord];
        std::memcpy(ends, from, kWord);
        std::memcpy(ends + kWord, from + nb - kWord, kWord);
        std::memcpy(to, ends, kWord);
        std::memcpy(to + nb - kWord, ends + kWord, kWord);
    }
    void PutAcross(std::string_view text);
    void Forward(const char* bytes, std::size_t size);

    static constexpr std::size_t kSize = 64 * 1024;

    XIXMLWriteStream& mStream;
    std::unique_ptr<char[]> mBuffer;
    std::size_t mFilled = 0;
};

} // namespace OrvaneXML
