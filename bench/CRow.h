#pragma once

#include <benchmark/benchmark.h>

#include <ctime>
#include <functional>
#include <malloc.h>

namespace ZelBench {

/// One measurement: seconds, bytes or a ratio, as the row's entry in bench/run says.
using CMeasure = std::function<double()>;

/// What a row compares. Each call measures once; inputs are made before.
struct SPair {
    CMeasure anchor;
    CMeasure own;
};

/// A row of the table. One iteration measures the anchor, then the library.
class CRow {
public:
    /// `make` is called only when the row runs, so that no row pays for another one's inputs.
    CRow(const char* name, SPair (*make)());
};

/// The processor time of this process, all threads: unlike the time on the wall it hardly changes
/// when others use the machine.
inline double processSeconds()
{
    timespec now{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + 1e-9 * static_cast<double>(now.tv_nsec);
}

/// Touches 256 MiB of small and as much of large pages, and gives them back. A virtual machine's
/// host takes pages away that lay free for seconds, and one that it has to bring back costs many
/// times a usual one.
void warmMemory();

/// The time of an action that gives what it made, without the time to destroy that. Free memory
/// goes back to the system first: both sides of a pair pay for the pages that they need.
template <class Action>
double secondsOf(Action action)
{
    malloc_trim(0);
    warmMemory();
    const double start = processSeconds();
    auto result = action();
    const double end = processSeconds();
    benchmark::DoNotOptimize(result);
    return end - start;
}

/// bench/run --small: small inputs, to see that all rows run.
bool isSmall();

} // namespace ZelBench
