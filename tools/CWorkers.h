#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace tool {

/// Processes of the tool itself that work for this one: each reads what is sent from its standard
/// input and answers on its standard output, while standard error is that of this process.
///
/// A worker ends by itself once its standard input ends. What it does not do, as it hangs or
/// crashes, harms nobody else.
class CWorkers {
public:
    /// Whether this system has them; without, the tool does all work in one process.
    static bool areSupported();

    /// To be called by a worker: it is asked to stop when the process that started it is gone.
    static void endWithStarter();

    /// So many workers with these arguments, the name of the program left out. None runs yet.
    CWorkers(const std::vector<std::string>& arguments, int nb);
    /// Asks those that still run to stop, as SIGTERM does, waits a while for their end and then
    /// ends them.
    ~CWorkers();
    CWorkers(const CWorkers&) = delete;
    CWorkers& operator=(const CWorkers&) = delete;

    struct CNews {
        int worker = -1;   ///< -1 for none: this process is asked to stop
        std::string bytes; ///< of its answer; none, with an end, once it has ended
        std::string end;   ///< how it ended, such as "ended by signal 9 (Killed)"
    };

    /// Sends bytes to a worker, which is started if it does not run. Workers and this process never
    /// wait for each other as long as a worker has answered before it is sent more. Throws
    /// CRunError(eIoError) when no worker can be started.
    void send(int worker, const std::string& bytes);
    /// Waits until one of the workers has something to tell.
    CNews wait();

private:
    struct CWorker {
        long process = -1;
        int descriptor = -1; // of both directions
    };

    void start(CWorker& worker);
    CNews receive(std::size_t number);
    std::string finish(CWorker& worker);

    std::vector<std::string> mArguments;
    std::vector<CWorker> mWorkers;
    std::size_t mHeardLast = 0;
};

} // namespace tool
