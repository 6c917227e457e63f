#include "tests/toolRun.h"

#include <stdexcept>
#include <windows.h>

#include <psapi.h>

static std::wstring wide(const std::string& text)
{
    return std::filesystem::path(std::u8string(text.begin(), text.end())).native();
}

// In the way that a program takes its command line apart: backslashes count in front of a quote.
static std::wstring quoted(const std::string& argument)
{
    std::wstring text = L"\"";
    std::size_t nbBackslashes = 0;
    for (const wchar_t c : wide(argument)) {
        if (c == L'"')
            text.append(nbBackslashes + 1, L'\\');
        nbBackslashes = c == L'\\' ? nbBackslashes + 1 : 0;
        text += c;
    }
    return text.append(nbBackslashes, L'\\') + L'"';
}

static HANDLE createOutput(const std::string& path)
{
    SECURITY_ATTRIBUTES inherited = {sizeof inherited, nullptr, TRUE};
    return CreateFileW(wide(path).c_str(), GENERIC_WRITE, FILE_SHARE_READ, &inherited,
                       CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
}

static HANDLE openInput(const std::string& path)
{
    SECURITY_ATTRIBUTES inherited = {sizeof inherited, nullptr, TRUE};
    return CreateFileW(wide(path).c_str(), GENERIC_READ, FILE_SHARE_READ, &inherited, OPEN_EXISTING,
                       FILE_ATTRIBUTE_NORMAL, nullptr);
}

static HANDLE start(const std::vector<std::string>& arguments, HANDLE input, HANDLE output,
                    HANDLE messages)
{
    std::wstring line;
    for (const std::string& argument : arguments)
        line += quoted(argument) + L' ';
    STARTUPINFOW startup = {};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESTDHANDLES;
    startup.hStdInput = input != nullptr ? input : GetStdHandle(STD_INPUT_HANDLE);
    startup.hStdOutput = output;
    startup.hStdError = messages;
    PROCESS_INFORMATION process = {};
    if (!CreateProcessW(nullptr, line.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &startup,
                        &process))
        return nullptr;
    CloseHandle(process.hThread);
    return process.hProcess;
}

CRun runProgram(std::vector<std::string> arguments, const std::optional<std::string>& input)
{
    const CTempFolder folder;
    const HANDLE output = createOutput(folder.file("output"));
    const HANDLE messages = createOutput(folder.file("messages"));
    const HANDLE in = input ? openInput(folder.put("input", *input)) : nullptr;
    const HANDLE process = start(arguments, in, output, messages);
    const DWORD failure = GetLastError();
    if (in != nullptr)
        CloseHandle(in);
    CloseHandle(output);
    CloseHandle(messages);
    if (!process)
        throw std::runtime_error("can't run " + arguments[0] + ": " + std::to_string(failure));
    WaitForSingleObject(process, INFINITE);
    DWORD code = 0;
    GetExitCodeProcess(process, &code);
    PROCESS_MEMORY_COUNTERS memory = {};
    GetProcessMemoryInfo(process, &memory, sizeof memory);
    CloseHandle(process);
    CRun run;
    run.code = static_cast<int>(code);
    run.peakBytes = memory.PeakWorkingSetSize;
    run.output = contents(folder.file("output"));
    run.messages = contents(folder.file("messages"));
    return run;
}
