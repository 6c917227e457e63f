#include "xml/tree/CXMLWindow.h"

#include <cstring>
#include <stdexcept>
#include <string>

namespace OrvaneXML {

namespace {

constexpr std::size_t kWindow = 64 * 1024;

std::size_t countLines(const char* begin, const char* end)
{
    // Line ends are far apart in most of a file, and memchr strides over what lies between.
    std::size_t count = 0;
    const auto next = [&] {
        const auto size = static_cast<std::size_t>(end - begin);
        return static_cast<const char*>(std::memchr(begin, '\n', size));
    };
    for (const char* found = next(); found != nullptr; found = next()) {
        ++count;
        begin = found + 1;
    }
    return count;
}

} // namespace

CXMLWindow::CXMLWindow(XIXMLReadStream& stream)
    : mBuffer(std::make_unique_for_overwrite<char[]>(kWindow + 1)), mStream(stream),
      mCapacity(kWindow)
{
    mBuffer[0] = 0;
}

void CXMLWindow::MakeRoom()
{
    if (mEnd < mCapacity && mCapacity - mEnd >= mCapacity / 4)
        return;
    const std::size_t nb = mEnd - mTokenBegin;
    if (nb > mCapacity / 2) {
        auto wider = std::make_unique_for_overwrite<char[]>(mCapacity * 2 + 1);
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
    mEnd += nb;
    mBuffer[mEnd] = 0;
    mIsAtEnd = nb == 0;
    return nb > 0;
}

void CXMLWindow::CountTokenLines()
{
    mTokenLines = countLines(mBuffer.get() + mTokenBegin, mBuffer.get() + mPosition);
}

void CXMLWindow::Fail(const char* what, std::size_t upTo)
{
    const char* buffer = mBuffer.get();
    const std::size_t line = mLine + countLines(buffer + mTokenBegin, buffer + upTo);
    throw std::runtime_error("XML syntax error in line " + std::to_string(line) + ": " + what);
}

} // namespace OrvaneXML
