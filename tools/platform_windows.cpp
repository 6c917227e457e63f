#include "tools/platform.h"

#include "tools/interrupt.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <io.h>
#include <string_view>
#include <sys/stat.h>
#include <system_error>
#include <windows.h>

#include <shellapi.h>

namespace tool {

namespace fs = std::filesystem;

// In front of paths without a limit.
constexpr std::wstring_view kUnlimited = L"\\\\?\\";
constexpr std::wstring_view kUnlimitedServer = L"\\\\?\\UNC\\";

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

fs::path plainPath(const std::string& name)
{
    return std::u8string(name.begin(), name.end());
}

static std::wstring withoutPrefix(const fs::path& path)
{
    const std::wstring& text = path.native();
    return text.substr(text.starts_with(kUnlimited) ? kUnlimited.size() : 0);
}

fs::path rootlessPath(const std::string& name)
{
    const fs::path path = fs::path(withoutPrefix(plainPath(name))).lexically_normal();
    const std::wstring drive = path.root_name().native();
    const fs::path rest = path.relative_path();
    if (drive.empty() || (!rest.empty() && *rest.begin() == L".."))
        return rest;
    return fs::path(drive.substr(0, drive.find(L':'))) / rest;
}

// As paths with the prefix have, too. The standard library takes no such path for whole.
static bool hasServerForm(const fs::path& path)
{
    return path.native().starts_with(L"\\\\");
}

fs::path filePath(const std::string& name)
{
    constexpr std::size_t kLongest = 240; // of the paths that need no prefix
    const fs::path plain = plainPath(name);
    if (hasServerForm(plain))
        return plain;
    std::error_code error;
    fs::path whole = fs::absolute(plain, error);
    if (error || whole.native().size() < kLongest)
        return plain;
    return fs::path(kUnlimited).concat(whole.make_preferred().native());
}

// Empty if there is no such file.
static std::wstring finalName(const fs::path& path)
{
    const HANDLE file = CreateFileW(path.c_str(), 0, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                    OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    std::wstring name(GetFinalPathNameByHandleW(file, nullptr, 0, 0), L'\0');
    name.resize(GetFinalPathNameByHandleW(file, name.data(), static_cast<DWORD>(name.size()), 0));
    CloseHandle(file);
    return name;
}

fs::path wholePath(const std::string& name)
{
    const fs::path file = filePath(name);
    fs::path whole = finalName(file);
    std::error_code error;
    if (whole.empty())
        whole = hasServerForm(file) ? file : fs::absolute(file, error);
    const bool isOnServer = whole.native().starts_with(kUnlimitedServer);
    return isOnServer ? whole : fs::path(withoutPrefix(whole));
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

void dropStandardOutput()
{
    std::fflush(stdout); // what was written before gets where it should
    const int nowhere = _open("NUL", _O_WRONLY | _O_BINARY | _O_NOINHERIT);
    if (nowhere < 0)
        return;
    _dup2(nowhere, _fileno(stdout));
    _close(nowhere);
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
