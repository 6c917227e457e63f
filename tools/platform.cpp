#include "tools/platform.h"

#include "tools/interrupt.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace tool {

std::vector<std::string> programArguments(int argc, char** argv)
{
    return {argv, argv + argc};
}

std::filesystem::path filePath(const std::string& name)
{
    return name;
}

std::filesystem::path plainPath(const std::string& name)
{
    return name;
}

std::filesystem::path rootlessPath(const std::string& name)
{
    return plainPath(name).lexically_normal().relative_path();
}

std::filesystem::path wholePath(const std::string& name)
{
    std::error_code error;
    const std::filesystem::path whole = std::filesystem::absolute(name, error);
    const std::filesystem::path file = std::filesystem::canonical(whole, error);
    return error ? whole : file;
}

std::string fileName(const std::filesystem::path& path)
{
    return path.native();
}

int takeStandardOutput()
{
    const int output = ::fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, STDERR_FILENO + 1);
    ::dup2(STDERR_FILENO, STDOUT_FILENO);
    return output;
}

void dropStandardOutput()
{
    std::fflush(stdout); // what was written before gets where it should
    const int nowhere = ::open("/dev/null", O_WRONLY | O_CLOEXEC);
    if (nowhere < 0)
        return;
    ::dup2(nowhere, STDOUT_FILENO);
    ::close(nowhere);
}

int createFile(const std::string& path, const std::string& permissionsOf)
{
    const int descriptor = ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    struct stat status = {};
    if (descriptor >= 0 && ::stat(permissionsOf.c_str(), &status) == 0)
        ::fchmod(descriptor, status.st_mode & 0777);
    return descriptor;
}

bool writeAll(int descriptor, const char* bytes, std::size_t size)
{
    while (size > 0) {
        const ssize_t written = ::write(descriptor, bytes, size);
        if (written < 0 && errno == EINTR && !isInterrupted())
            continue;
        if (written <= 0)
            return false;
        bytes += written;
        size -= static_cast<std::size_t>(written);
    }
    return true;
}

bool flushToDisk(int descriptor)
{
    return ::fsync(descriptor) == 0;
}

bool closeFile(int descriptor)
{
    return ::close(descriptor) == 0;
}

bool replaceFile(const std::string& from, const std::string& to)
{
    if (std::rename(from.c_str(), to.c_str()) != 0)
        return false;
    // The new name is in force already; flushing the folder only makes it survive a power cut
    // sooner, and some file systems cannot do it.
    const std::filesystem::path folder = std::filesystem::path(to).parent_path();
    const int descriptor = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor >= 0) {
        ::fsync(descriptor);
        ::close(descriptor);
    }
    return true;
}

void removeFile(const std::string& path)
{
    ::unlink(path.c_str());
}

bool isErrorTerminal()
{
    return ::isatty(STDERR_FILENO) == 1;
}

long processNumber()
{
    return static_cast<long>(::getpid());
}

std::string lastFailure()
{
    return std::system_category().message(errno);
}

} // namespace tool
