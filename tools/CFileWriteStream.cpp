#include "tools/CFileWriteStream.h"

#include "tools/interrupt.h"
#include "tools/platform.h"

namespace tool {

static constexpr std::size_t kPendingLimit = 1U << 18;

std::uint32_t CFileWriteStream::write(const void* buffer, std::uint32_t size)
{
    if (!mFailed)
        mPending.append(static_cast<const char*>(buffer), size);
    if (mPending.size() >= kPendingLimit)
        flush();
    return mFailed ? 0 : size;
}

void CFileWriteStream::writeText(const std::string& text)
{
    if (!mFailed)
        mPending += text;
    if (mPending.size() >= kPendingLimit)
        flush();
}

void CFileWriteStream::flush()
{
    if (!mFailed && (isInterrupted() || !writeAll(mDescriptor, mPending.data(), mPending.size()))) {
        mFailed = true;
        mFailure = lastFailure();
    }
    mPending.clear();
}

} // namespace tool
