#include "tests/toolRun.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <fstream>
#include <iterator>
#include <spawn.h>
#include <stdexcept>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace fs = std::filesystem;

CTempFolder::CTempFolder()
{
    std::string path = (fs::temp_directory_path() / "zel_test_XXXXXX").string();
    if (!mkdtemp(path.data()))
        throw std::runtime_error("no temporary folder");
    mPath = path;
}

CTempFolder::~CTempFolder()
{
    std::error_code error;
    fs::remove_all(mPath, error);
}

std::string CTempFolder::put(const std::string& name, const std::string& text) const
{
    std::ofstream(file(name), std::ios::binary) << text;
    return file(name);
}

std::vector<std::string> CTempFolder::names() const
{
    std::vector<std::string> names;
    for (const fs::directory_entry& entry : fs::directory_iterator(mPath))
        names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}

std::string contents(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::string sample(const std::string& name)
{
    return std::string(ZEL_TEST_DATA) + "/samples/" + name;
}

std::string minimalWith(const std::string& elements)
{
    std::string text = contents(sample("minimal.zel"));
    return text.insert(text.rfind("</Zel.File>"), elements);
}

static pid_t spawn(const std::vector<std::string>& arguments, const std::string& output,
                   const std::string& messages)
{
    std::vector<char*> pointers;
    for (const std::string& argument : arguments)
        pointers.push_back(const_cast<char*>(argument.c_str()));
    pointers.push_back(nullptr);
    constexpr int kFlags = O_WRONLY | O_CREAT | O_TRUNC;
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, output.c_str(), kFlags, 0600);
    posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, messages.c_str(), kFlags, 0600);
    pid_t process = -1;
    const int failure =
        posix_spawnp(&process, pointers[0], &actions, nullptr, pointers.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    return failure == 0 ? process : -1;
}

CRun runProgram(std::vector<std::string> arguments)
{
    const CTempFolder folder;
    const std::string output = folder.file("output");
    const std::string messages = folder.file("messages");
    const pid_t process = spawn(arguments, output, messages);
    int status = 0;
    rusage usage = {};
    if (process < 0 || wait4(process, &status, 0, &usage) < 0)
        throw std::runtime_error("can't run " + arguments[0]);
    CRun run;
    run.code = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
    run.peakBytes = static_cast<std::size_t>(usage.ru_maxrss) * 1024;
    run.output = contents(output);
    run.messages = contents(messages);
    return run;
}

CRun runTool(std::vector<std::string> arguments)
{
    arguments.insert(arguments.begin(), toolPath());
    return runProgram(std::move(arguments));
}

const char* toolPath()
{
#ifdef ZEL_TOOL
    return ZEL_TOOL;
#else
    return nullptr;
#endif
}
