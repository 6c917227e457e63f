#include "tools/CFileReadStream.h"

#include "tools/CToolError.h"
#include "tools/interrupt.h"
#include "tools/platform.h"

namespace tool {

CFileReadStream::CFileReadStream(const std::string& path)
    : mPath(path), mFile(filePath(path), std::ios::in | std::ios::binary)
{
    if (!mFile.is_open() || mFile.tellg() == std::streampos(-1))
        throw CToolError(eIoError, path + ": can't open: " + lastFailure());
}

std::uint32_t CFileReadStream::read(void* buffer, std::uint32_t size)
{
    if (isInterrupted()) {
        dropStandardOutput(); // where the probes would print that the file ends here
        return 0;
    }
    mFile.clear();
    mFile.read(static_cast<char*>(buffer), static_cast<std::streamsize>(size));
    mFailed = mFailed || mFile.bad();
    return static_cast<std::uint32_t>(mFile.gcount());
}

std::int64_t CFileReadStream::getPosition()
{
    mFile.clear(); // the end of the file has a position too
    return static_cast<std::int64_t>(static_cast<std::streamoff>(mFile.tellg()));
}

void CFileReadStream::setPosition(std::int64_t position)
{
    mFile.clear();
    mFile.seekg(static_cast<std::streamoff>(position));
    mFailed = mFailed || mFile.fail();
}

void CFileReadStream::check() const
{
    checkInterrupt();
    if (mFailed)
        throw CToolError(eIoError, mPath + ": can't read");
}

} // namespace tool
