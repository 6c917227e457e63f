#include "xml/tree/CXMLBufferedReader.h"

#include <cstring>
#include <stdexcept>

namespace OrvaneXML {

CXMLBufferedReader::CXMLBufferedReader(XIXMLReadStream* stream)
    : mStream(stream), mBuffer(std::make_unique_for_overwrite<char[]>(kSize + 2)),
      mPosition(mBuffer.get() + 1), mEnd(mPosition), mFloor(mPosition)
{
    *mEnd = 0;
}

bool CXMLBufferedReader::Refill()
{
    const auto nbReady = static_cast<std::size_t>(mEnd - mPosition);
    if (mIsAtEnd || nbReady == kSize)
        return false;
    // The byte in front of the ready ones moves along, for UnRead.
    char* window = mBuffer.get() + 1;
    const bool hasLast = mPosition != mFloor;
    if (hasLast)
        window[-1] = mPosition[-1];
    std::memmove(window, mPosition, nbReady);
    mPosition = window;
    mFloor = hasLast ? window - 1 : window;
    mEnd = window + nbReady;
    const std::size_t room = kSize - nbReady;
    const std::size_t nb = mStream->Read(mEnd, static_cast<std::uint32_t>(room));
    if (nb > room)
        throw std::runtime_error("A stream delivered more than was asked for");
    mEnd += nb;
    *mEnd = 0;
    mIsAtEnd = nb == 0;
    return nb > 0;
}

} // namespace OrvaneXML
