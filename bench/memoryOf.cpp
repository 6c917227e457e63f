#include "bench/memoryOf.h"

#include <fstream>
#include <malloc.h>
#include <stdexcept>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

namespace ZelBench {

static double statusBytes(const std::string& key)
{
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);)
        if (line.rfind(key, 0) == 0)
            return std::stod(line.substr(key.size())) * 1024;
    throw std::runtime_error("The system does not tell the memory of a process");
}

[[noreturn]] static void measureInChild(const std::function<std::shared_ptr<void>()>& action,
                                        int out)
{
    try {
        malloc_trim(0);
        std::ofstream("/proc/self/clear_refs") << "5"; // the peak starts again from here
        const double before = statusBytes("VmRSS:");
        const std::shared_ptr<void> result = action();
        const SMemory memory{statusBytes("VmHWM:") - before, statusBytes("VmRSS:") - before};
        const bool isTold = write(out, &memory, sizeof memory) == sizeof memory;
        _exit(isTold ? 0 : 1);
    } catch (const std::exception& exception) {
        std::ofstream("/proc/self/fd/2") << exception.what() << '\n';
        _exit(1);
    }
}

SMemory memoryOf(const std::function<std::shared_ptr<void>()>& action)
{
    int ends[2];
    if (pipe(ends) != 0)
        throw std::runtime_error("No pipe");
    const pid_t child = fork();
    if (child < 0)
        throw std::runtime_error("No process");
    if (child == 0)
        measureInChild(action, ends[1]);
    close(ends[1]);
    SMemory memory{};
    const bool isTold = read(ends[0], &memory, sizeof memory) == sizeof memory;
    close(ends[0]);
    int status = 0;
    waitpid(child, &status, 0);
    if (!isTold || status != 0)
        throw std::runtime_error("The metered action failed");
    return memory;
}

} // namespace ZelBench
