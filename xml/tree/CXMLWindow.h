#pragma once

#include "xml/tree/characters.h"

#include <zel/xml/XIXMLReadStream.h>

#include <cstddef>
#include <memory>
#include <string_view>

namespace OrvaneXML {

/// The bytes of a stream around the token that is being scanned, which lies here as a whole. The
/// window grows with a token as its bytes arrive. Sixteen NULs stand behind its last byte and end
/// every loop over it.
///
///     released | token  mTokenBegin .. mPosition | read ahead .. mEnd | free .. mCapacity
class CXMLWindow {
public:
    explicit CXMLWindow(XIXMLReadStream& stream);
    CXMLWindow(const CXMLWindow&) = delete;
    CXMLWindow& operator=(const CXMLWindow&) = delete;

    /// Whether so many bytes stand ready at the position, once more have been read if need be.
    bool Need(std::size_t nb)
    {
        while (mEnd - mPosition < nb)
            if (!More())
                return false;
        return true;
    }

    bool StartsWith(std::string_view text)
    {
        // One byte after the other, so that no byte behind a difference is waited for.
        for (std::size_t i = 0; i < text.size(); ++i)
            if (!Need(i + 1) || mBuffer[mPosition + i] != text[i])
                return false;
        return true;
    }

    /// The next byte; the end and NUL are syntax errors.
    char Peek()
    {
        if (!Need(1))
            Fail("unexpected end");
        if (!mBuffer[mPosition])
            Fail("NUL byte");
        return mBuffer[mPosition];
    }

    char Get()
    {
        const char c = Peek();
        ++mPosition;
        return c;
    }

    /// Gets a byte outside any token, of which nothing is kept.
    char Drop()
    {
        const char c = Get();
        mTokenBegin = mPosition;
        return c;
    }

    void Skip(std::size_t nb) { mPosition += nb; }

    /// `test` is false for NUL.
    template <class TTest>
    void SkipWhile(TTest test)
    {
        do {
            const char* p = mBuffer.get() + mPosition;
            while (test(*p))
                ++p;
            mPosition = static_cast<std::size_t>(p - mBuffer.get());
        } while (mPosition == mEnd && More());
    }

    void SkipWhite() { SkipWhile(isWhite); }

    /// Syntax errors don't tell their line: to count lines takes longer than to skip a section.
    void TellNoLines() { mTellsLines = false; }

    /// Throws std::runtime_error, with the line of the place unless lines are not told. Nothing was
    /// changed behind the place yet.
    [[noreturn]] void Fail(const char* what, std::size_t upTo);
    [[noreturn]] void Fail(const char* what) { Fail(what, mPosition); }

protected:
    /// Adds bytes. Places in the window change; offsets from the token's beginning do not.
    bool More();
    /// Adds bytes until there are twice as many of the token as before, so that to scan it from its
    /// beginning each time costs no more than to scan it once or twice. False if there are none.
    bool Widen();

    /// Gives up the token; the next one begins here.
    void Release() { mTokenBegin = mPosition; }

    std::size_t Here() const { return mPosition - mTokenBegin; }
    char* At(std::size_t offset) { return mBuffer.get() + mTokenBegin + offset; }
    std::size_t PlaceOf(const char* p) const { return static_cast<std::size_t>(p - mBuffer.get()); }

    std::unique_ptr<char[]> mBuffer;
    std::size_t mTokenBegin = 0;
    std::size_t mPosition = 0;
    std::size_t mEnd = 0;

private:
    static std::unique_ptr<char[]> NewBuffer(std::size_t capacity);
    void MakeRoom();
    void PutEnd();

    XIXMLReadStream& mStream;
    std::size_t mCapacity;
    bool mIsAtEnd = false;
    bool mTellsLines = true;
    std::size_t mNbLineEnds = 0; // in all that was read, if lines are told
};

} // namespace OrvaneXML
