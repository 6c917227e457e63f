#include "tools/CWorkers.h"

#include "tools/CToolError.h"
#include "tools/interrupt.h"
#include "tools/platform.h"

#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstring>
#include <poll.h>
#include <spawn.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tool {

using CClock = std::chrono::steady_clock;

// How long a worker may take to clean up once it is asked to stop.
static constexpr std::chrono::seconds kPatience{5};

bool CWorkers::areSupported()
{
    return true;
}

void CWorkers::endWithStarter()
{
    ::prctl(PR_SET_PDEATHSIG, SIGTERM);
}

CWorkers::CWorkers(const std::vector<std::string>& arguments, int nb)
    : mArguments(arguments), mWorkers(static_cast<std::size_t>(nb))
{
}

// A process whose standard input and output are the descriptor; 0 or why there is none.
static int spawn(const std::vector<std::string>& arguments, int descriptor, long& process)
{
    std::string name = "zel";
    std::vector<char*> pointers = {name.data()};
    for (const std::string& argument : arguments)
        pointers.push_back(const_cast<char*>(argument.c_str()));
    pointers.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    ::posix_spawn_file_actions_init(&actions);
    ::posix_spawn_file_actions_adddup2(&actions, descriptor, STDIN_FILENO);
    ::posix_spawn_file_actions_adddup2(&actions, descriptor, STDOUT_FILENO);
    pid_t child = -1;
    // This program, also when another one has taken its name meanwhile.
    const int failure =
        ::posix_spawn(&child, "/proc/self/exe", &actions, nullptr, pointers.data(), environ);
    ::posix_spawn_file_actions_destroy(&actions);
    process = child;
    return failure;
}

void CWorkers::start(CWorker& worker)
{
    int ends[2] = {-1, -1};
    int failure = 0;
    // A socket, unlike a pipe, tells of a worker that is gone without a signal to this process.
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends) != 0)
        failure = errno;
    else
        failure = spawn(mArguments, ends[1], worker.process);
    if (ends[1] >= 0)
        ::close(ends[1]);
    worker.descriptor = ends[0];
    if (failure == 0)
        return;
    worker.process = -1;
    throw CRunError(eIoError, std::string("can't start a worker: ") + std::strerror(failure));
}

static bool sendAll(int descriptor, const std::string& bytes)
{
    std::size_t nbSent = 0;
    while (nbSent < bytes.size()) {
        const ssize_t nb =
            ::send(descriptor, bytes.data() + nbSent, bytes.size() - nbSent, MSG_NOSIGNAL);
        if (nb < 0 && errno == EINTR && !isInterrupted())
            continue;
        if (nb <= 0)
            return false;
        nbSent += static_cast<std::size_t>(nb);
    }
    return true;
}

void CWorkers::send(int worker, const std::string& bytes)
{
    CWorker& target = mWorkers[static_cast<std::size_t>(worker)];
    std::string end;
    for (int attempt = 0; attempt < 3; ++attempt) {
        if (target.process < 0)
            start(target);
        if (sendAll(target.descriptor, bytes))
            return;
        checkInterrupt();
        end = finish(target); // before it was sent anything, so this is not about a file
    }
    throw CRunError(eIoError, "can't start a worker: it " + end);
}

// Waits for the end of the process and tells how it ended.
std::string CWorkers::finish(CWorker& worker)
{
    ::close(worker.descriptor);
    int status = 0;
    while (::waitpid(static_cast<pid_t>(worker.process), &status, 0) < 0 && errno == EINTR)
        ;
    worker = {};
    if (!WIFSIGNALED(status))
        return "ended with exit code " + std::to_string(WEXITSTATUS(status));
    const int signal = WTERMSIG(status);
    return "ended by signal " + std::to_string(signal) + " (" + ::strsignal(signal) + ")";
}

CWorkers::CNews CWorkers::wait()
{
    // Those that run alone, since a system takes no more entries than a process may have open
    // files.
    std::vector<pollfd> polled;
    std::vector<std::size_t> numbers;
    for (std::size_t i = 1; i <= mWorkers.size(); ++i) {
        // The one that was heard last comes last, or others might never be heard.
        const std::size_t number = (mHeardLast + i) % mWorkers.size();
        if (mWorkers[number].process < 0)
            continue;
        polled.push_back({mWorkers[number].descriptor, POLLIN, 0});
        numbers.push_back(number);
    }
    while (!isInterrupted()) {
        // Not for ever: a signal may arrive just ahead of the call.
        if (::poll(polled.data(), polled.size(), 1000) < 0 && errno != EINTR)
            throw CRunError(eIoError, std::string("can't wait: ") + std::strerror(errno));
        for (std::size_t i = 0; i < polled.size(); ++i)
            if (polled[i].revents != 0)
                return receive(mHeardLast = numbers[i]);
    }
    return {};
}

CWorkers::CNews CWorkers::receive(std::size_t number)
{
    CWorker& sender = mWorkers[number];
    const int worker = static_cast<int>(number);
    char bytes[65536];
    const ssize_t nb = ::recv(sender.descriptor, bytes, sizeof bytes, MSG_DONTWAIT);
    if (nb > 0)
        return {worker, std::string(bytes, static_cast<std::size_t>(nb)), {}};
    if (nb < 0 && (errno == EINTR || errno == EAGAIN))
        return {worker, {}, {}};
    return {worker, {}, finish(sender)};
}

// Reads and forgets until the worker ends; false when it takes too long.
static bool awaitEnd(int descriptor, CClock::time_point deadline)
{
    for (;;) {
        const auto left =
            std::chrono::duration_cast<std::chrono::milliseconds>(deadline - CClock::now());
        pollfd polled = {descriptor, POLLIN, 0};
        if (left.count() <= 0 || ::poll(&polled, 1, static_cast<int>(left.count())) == 0)
            return false;
        char bytes[4096];
        const ssize_t nb = ::recv(descriptor, bytes, sizeof bytes, MSG_DONTWAIT);
        if (nb == 0 || (nb < 0 && errno != EINTR && errno != EAGAIN))
            return true;
    }
}

CWorkers::~CWorkers()
{
    for (const CWorker& worker : mWorkers)
        if (worker.process >= 0)
            ::kill(static_cast<pid_t>(worker.process), SIGTERM);
    const CClock::time_point deadline = CClock::now() + kPatience;
    for (CWorker& worker : mWorkers) {
        if (worker.process >= 0 && !awaitEnd(worker.descriptor, deadline))
            ::kill(static_cast<pid_t>(worker.process), SIGKILL);
        if (worker.process >= 0)
            finish(worker);
    }
}

} // namespace tool
