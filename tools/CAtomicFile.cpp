#include "tools/CAtomicFile.h"

#include "tools/CToolError.h"
#include "tools/interrupt.h"
#include "tools/platform.h"

#include <filesystem>

namespace tool {

namespace fs = std::filesystem;

// The file itself, when the name is that of a link to it.
static std::string resolve(const std::string& target)
{
    std::error_code error;
    const fs::path whole = fs::absolute(target, error);
    const fs::path file = fs::canonical(whole, error);
    if (error)
        return whole.string();
    if (!fs::is_regular_file(file, error))
        throw CToolError(eIoError, target + ": not an ordinary file");
    return file.string();
}

static std::string nameBeside(const std::string& target)
{
    const fs::path folder = fs::path(target).parent_path();
    for (int number = 0;; ++number) {
        const fs::path path = folder / (".zel-" + std::to_string(processNumber()) + "-" +
                                        std::to_string(number) + ".tmp");
        std::error_code error;
        if (!fs::exists(path, error))
            return path.string();
    }
}

CAtomicFile::CAtomicFile(const std::string& target)
    : mTarget(resolve(target)), mTemporary(nameBeside(mTarget)),
      mDescriptor(createFile(mTemporary, mTarget)), mStream(mDescriptor)
{
    if (mDescriptor < 0)
        fail(lastFailure());
}

CAtomicFile::~CAtomicFile()
{
    if (mDescriptor >= 0)
        closeFile(mDescriptor);
    if (!mTemporary.empty())
        removeFile(mTemporary);
}

void CAtomicFile::fail(const std::string& why) const
{
    throw CToolError(eIoError, mTarget + ": can't write: " + why);
}

void CAtomicFile::check()
{
    checkInterrupt();
    mStream.flush();
    if (mStream.hasFailed())
        fail(mStream.getFailure());
}

void CAtomicFile::commit()
{
    check();
    if (!flushToDisk(mDescriptor))
        fail(lastFailure());
    const bool closed = closeFile(mDescriptor);
    mDescriptor = -1;
    checkInterrupt();
    if (!closed || !replaceFile(mTemporary, mTarget))
        fail(lastFailure());
    mTemporary.clear();
}

} // namespace tool
