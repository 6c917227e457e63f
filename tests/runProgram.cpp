#include "tests/toolRun.h"

#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <spawn.h>
#include <stdexcept>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

static pid_t spawn(const std::vector<std::string>& arguments, const std::string& input,
                   const std::string& output, const std::string& messages)
{
    std::vector<char*> pointers;
    for (const std::string& argument : arguments)
        pointers.push_back(const_cast<char*>(argument.c_str()));
    pointers.push_back(nullptr);
    constexpr int kFlags = O_WRONLY | O_CREAT | O_TRUNC;
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    if (!input.empty())
        posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, input.c_str(), O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, output.c_str(), kFlags, 0600);
    posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, messages.c_str(), kFlags, 0600);
    pid_t process = -1;
    const int failure =
        posix_spawnp(&process, pointers[0], &actions, nullptr, pointers.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    return failure == 0 ? process : -1;
}

CRun runProgram(std::vector<std::string> arguments, const std::optional<std::string>& input)
{
    const CTempFolder folder;
    const std::string output = folder.file("output");
    const std::string messages = folder.file("messages");
    const pid_t process =
        spawn(arguments, input ? folder.put("input", *input) : "", output, messages);
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
