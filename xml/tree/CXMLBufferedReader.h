#pragma once

#include <zel/xml/XIXMLReadStream.h>

#include <cstddef>
#include <memory>

namespace OrvaneXML {

/// Reads a stream by characters or, for fast loops, by the stretches that stand in its window.
/// It reads ahead: what it has taken from the stream and not given out is lost with it.
class CXMLBufferedReader {
public:
    explicit CXMLBufferedReader(XIXMLReadStream* stream);

    /// The next byte, 0 to 255, or a negative number at the end.
    int ReadChar()
    {
        if (mPosition == mEnd && !Refill())
            return AtEnd();
        return static_cast<unsigned char>(*mPosition++);
    }
    /// Takes back the character last read, once. At the end, where none was read, nothing happens.
    void UnRead()
    {
        if (mPosition != mFloor)
            --mPosition;
    }

    /// The bytes that stand ready: from Begin to End. A NUL stands behind the last one.
    const char* Begin() const { return mPosition; }
    const char* End() const { return mEnd; }
    /// Steps over `nb` ready bytes; UnRead takes back the last of them.
    void Consume(std::size_t nb) { mPosition += nb; }
    /// Adds bytes behind those that stand ready, which may move. False at the end of the stream,
    /// and when 64 KiB stand ready.
    bool Refill();

private:
    int AtEnd()
    {
        mFloor = mPosition;
        return -1;
    }

    static constexpr std::size_t kSize = 64 * 1024;

    XIXMLReadStream* mStream;
    std::unique_ptr<char[]> mBuffer; // one byte to take back, the window, a NUL
    char* mPosition;
    char* mEnd;
    char* mFloor; // how far back UnRead may go
    bool mIsAtEnd = false;
};

} // namespace OrvaneXML
