#include "xml/tree/CXMLWindow.h"

#include "xml/tree/lanes.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <stdexcept>
#include <string>

namespace OrvaneXML {

namespace {

constexpr std::size_t kWindow = 64 * 1024;
constexpr char kBehind[kWidestStep] = {};

std::size_t countLineEnds(const char* begin, const char* end)
{
    // Pieces of a fixed size with a narrow count, which the compiler turns into wide instructions.
    constexpr std::ptrdiff_t kPiece = 128;
    std::size_t count = 0;
    for (; end - begin >= kPiece; begin += kPiece) {
        unsigned char piece = 0;
        for (std::ptrdiff_t i = 0; i < kPiece; ++i)
            piece = static_cast<unsigned char>(piece + (begin[i] == '\n'));
        count += piece;
    }
    return count + static_cast<std::size_t>(std::count(begin, end, '\n'));
}

} // namespace

CXMLWindow::CXMLWindow(XIXMLReadStream& stream)
    : mBuffer(NewBuffer(kWindow)), mStream(stream), mCapacity(kWindow)
{
    PutEnd();
}

std::unique_ptr<char[]> CXMLWindow::NewBuffer(std::size_t capacity)
{
    return std::make_unique_for_overwrite<char[]>(capacity + sizeof kBehind);
}

void CXMLWindow::PutEnd()
{
    std::memcpy(mBuffer.get() + mEnd, kBehind, sizeof kBehind);
}

void CXMLWindow::MakeRoom()
{
    if (mEnd < mCapacity && mCapacity - mEnd >= mCapacity / 4)
        return;
    const std::size_t nb = mEnd - mTokenBegin;
    if (nb > mCapacity / 2) {
        auto wider = NewBuffer(mCapacity * 2);
        std::memcpy(wider.get(), mBuffer.get() + mTokenBegin, nb);
        mBuffer = std::move(wider);
        mCapacity *= 2;
    } else {
        std::memmove(mBuffer.get(), mBuffer.get() + mTokenBegin, nb);
    }
    mPosition -= mTokenBegin;
    mEnd = nb;
    mTokenBegin = 0;
}

bool CXMLWindow::More()
{
    if (mIsAtEnd)
        return false;
    MakeRoom();
    const std::size_t room = std::min<std::size_t>(mCapacity - mEnd, 1 << 30);
    const std::size_t nb = mStream.Read(mBuffer.get() + mEnd, static_cast<std::uint32_t>(room));
    if (nb > room)
        throw std::runtime_error("The stream of an XML document delivered more than was asked for");
    if (mTellsLines)
        mNbLineEnds += countLineEnds(mBuffer.get() + mEnd, mBuffer.get() + mEnd + nb);
    mEnd += nb;
    PutEnd();
    mIsAtEnd = nb == 0;
    return nb > 0;
}

bool CXMLWindow::Widen()
{
    const std::size_t wanted = (mEnd - mTokenBegin) * 2;
    if (!More())
        return false;
    while (mEnd - mTokenBegin < wanted && More()) {
    }
    return true;
}

void CXMLWindow::Fail(const char* what, std::size_t upTo)
{
    // What stands in front may be decoded by now, what follows is as it came.
    const char* buffer = mBuffer.get();
    std::string place;
    if (mTellsLines) {
        const std::size_t line = 1 + mNbLineEnds - countLineEnds(buffer + upTo, buffer + mEnd);
        place = " in line " + std::to_string(line);
    }
    throw std::runtime_error("XML syntax error" + place + ": " + what);
}

} // namespace OrvaneXML
