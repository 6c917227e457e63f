#pragma once

#include "xml/tree/copyPlain.h"
#include "xml/tree/shortBytes.h"

#include <zel/xml/XIXMLWriteStream.h>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>
#include <string_view>

namespace OrvaneXML {

/// A text from the beginning of which a widest step can be read, so that a short one is copied at
/// once.
struct SPaddedText {
    std::string_view text;

    std::size_t size() const { return text.size(); }
};

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
        copyBytes(mBuffer.get() + mFilled, text.data(), text.size());
        mFilled += text.size();
    }
    /// Puts the pieces one behind the other.
    template <class... TPieces>
    void PutAll(TPieces... pieces)
    {
        if ((pieces.size() + ...) > kSize - mFilled)
            return (PutPiece(pieces), ...);
        char* out = mBuffer.get() + mFilled;
        ((CopyPiece(out, pieces), out += pieces.size()), ...);
        mFilled = static_cast<std::size_t>(out - mBuffer.get());
    }
    /// Puts the plain characters that `text` begins with, and returns where the first other one
    /// stands, which may be the NUL at its end. A widest step can be read there.
    const char* PutPlain(const char* text)
    {
        for (;;) {
            if (kSize - mFilled < kWidestStep)
                Flush();
            const unsigned nb = copyPlain(mBuffer.get() + mFilled, text);
            mFilled += nb;
            text += nb;
            if (nb < kWidestStep)
                return text;
        }
    }
    /// Throws std::runtime_error when the stream takes nothing.
    void Flush();

private:
    static void CopyPiece(char* out, std::string_view text)
    {
        copyBytes(out, text.data(), text.size());
    }
    static void CopyPiece(char* out, SPaddedText padded)
    {
        std::memcpy(out, padded.text.data(), kWidestStep);
        if (padded.size() > kWidestStep)
            std::memcpy(out, padded.text.data(), padded.size());
    }
    void PutPiece(std::string_view text) { Put(text); }
    void PutPiece(SPaddedText padded) { Put(padded.text); }
    void PutAcross(std::string_view text);
    void Forward(const char* bytes, std::size_t size);

    static constexpr std::size_t kSize = 64 * 1024;

    XIXMLWriteStream& mStream;
    std::unique_ptr<char[]> mBuffer;
    std::size_t mFilled = 0;
};

} // namespace OrvaneXML
