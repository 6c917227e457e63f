#include "tools/CAtomicFile.h"

#include "tools/CToolError.h"
#include "tools/interrupt.h"
#include "tools/platform.h"

#include <cerrno>

namespace tool {

namespace fs = std::filesystem;

// The file itself, when the name is that of a link to it.
static std::string resolve(const std::string& target)
{
    const std::string whole = fileName(wholePath(target));
    std::error_code error;
    const fs::file_status status = fs::status(filePath(whole), error);
    if (fs::exists(status) && !fs::is_regular_file(status))
        throw CToolError(eIoError, target + ": not an ordinary file");
    return whole;
}

// Makes a new file in the folder of the target, under a name that nobody else has taken: on another
// machine that shares the folder a process may have the same number.
static int createBeside(const std::string& target, std::string& name)
{
    const fs::path folder = plainPath(target).parent_path();
    for (int number = 0;; ++number) {
        name = fileName(folder / (".zel-" + std::to_string(processNumber()) + "-" +
                                  std::to_string(number) + ".tmp"));
        const int descriptor = createFile(name, target);
        if (descriptor >= 0 || errno != EEXIST)
            return descriptor;
    }
}

CAtomicFile::CAtomicFile(const std::string& target)
    : mTarget(resolve(target)), mDescriptor(createBeside(mTarget, mTemporary)), mStream(mDescriptor)
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
