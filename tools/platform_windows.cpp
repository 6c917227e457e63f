#include "tools/platform.h"

#include "tools/interrupt.h"

#include <algorithm>
#include <cstdlib>
#include <fcntl.h>
#include <io.h>
#include <sys/stat.h>
#include <system_error>
#include <windows.h>

#include <shellapi.h>

namespace tool {

namespace fs = std::filesystem;

static std::string narrow(const wchar_t* text)
{
    const std::u8string bytes = fs::path(text).u8string();
    return {bytes.begin(), bytes.end()};
}

// Some calls report to the C runtime and some to the system; lastFailure asks the first.
static bool check(BOOL result)
{
    if (result == 0)
        _doserrno = GetLastError();
    return result != 0;
}

std::vector<std::string> programArguments(int, char**)
{
    int nb = 0;
    LPWSTR* const words = CommandLineToArgvW(GetCommandLineW(), &nb);
    std::vector<std::string> arguments;
    for (int i = 0; i < nb; ++i)
        arguments.push_back(narrow(words[i]));
    LocalFree(words);
    return arguments;
}

fs::path filePath(const std::string& name)
{
    constexpr std::size_t kLongest = 240; // of the paths that need no prefix
    const fs::path plain = std::u8string(name.begin(), name.end());
    std::error_code error;
    fs::path whole = fs::absolute(plain, error);
    if (error || whole.native().size() < kLongest || whole.native().starts_with(L"\\\\"))
        return plain;
    return fs::path(L"\\\\?\\" + whole.make_preferred().native());
}

std::string fileName(const fs::path& path)
{
    return narrow(path.c_str());
}

// Messages and output are UTF-8, also on a console, which is left as it was found.
static void useUtf8()
{
    static const UINT before = GetConsoleOutputCP();
    if (before != 0 && SetConsoleOutputCP(CP_UTF8) != 0)
        std::atexit([] { SetConsoleOutputCP(before); });
}

int takeStandardOutput()
{
    useUtf8();
    const int output = _dup(_fileno(stdout));
    if (output >= 0)
        _setmode(output, _O_BINARY);
    _dup2(_fileno(stderr), _fileno(stdout));
    _setmode(_fileno(stdout), _O_BINARY);
    _setmode(_fileno(stderr), _O_BINARY);
    return output;
}

int createFile(const std::string& path, const std::string&)
{
    // replaceFile gives it the permissions.
    return _wopen(filePath(path).c_str(), _O_WRONLY | _O_CREAT | _O_EXCL | _O_BINARY | _O_NOINHERIT,
                  _S_IREAD | _S_IWRITE);
}

bool writeAll(int descriptor, const char* bytes, std::size_t size)
{
    constexpr std::size_t kLargestPiece = std::size_t{1} << 20;
    if (descriptor < 0)
        return check(SetHandleInformation(nullptr, 0, 0)); // which says what such a handle is
    while (size > 0) {
        const auto piece = static_cast<unsigned>(std::min(size, kLargestPiece));
        const int written = _write(descriptor, bytes, piece);
        if (written <= 0)
            return false;
        bytes += written;
        size -= static_cast<std::size_t>(written);
    }
    return true;
}

bool flushToDisk(int descriptor)
{
    return _commit(descriptor) == 0;
}

bool closeFile(int descriptor)
{
    return _close(descriptor) == 0;
}

bool replaceFile(const std::string& from, const std::string& to)
{
    const fs::path source = filePath(from);
    const fs::path target = filePath(to);
    // Keeps the permissions of the target, if the file system can.
    if (GetFileAttributesW(target.c_str()) != INVALID_FILE_ATTRIBUTES &&
        ReplaceFileW(target.c_str(), source.c_str(), nullptr, REPLACEFILE_IGNORE_MERGE_ERRORS,
                     nullptr, nullptr) != 0)
        return true;
    return check(MoveFileExW(source.c_str(), target.c_str(),
                             MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH));
}

void removeFile(const std::string& path)
{
    DeleteFileW(filePath(path).c_str());
}

bool isErrorTerminal()
{
    const HANDLE error = GetStdHandle(STD_ERROR_HANDLE);
    DWORD mode = 0;
    // The bar is taken away by a control sequence.
    return GetConsoleMode(error, &mode) != 0 &&
           SetConsoleMode(error, mode | ENABLE_VIRTUAL_TERMINAL_PROCESSING) != 0;
}

long processNumber()
{
    return static_cast<long>(GetCurrentProcessId());
}

std::string lastFailure()
{
    return std::system_category().message(static_cast<int>(_doserrno));
}

} // namespace tool
