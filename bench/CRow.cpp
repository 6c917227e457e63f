#include "bench/CRow.h"

#include <cstdlib>
#include <cstring>
#include <exception>
#include <memory>
#include <sys/mman.h>

namespace ZelBench {

void warmMemory()
{
    constexpr std::size_t kSize = std::size_t{256} << 20;
    if (isSmall())
        return;
    void* const area =
        mmap(nullptr, kSize, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (area == MAP_FAILED)
        return;
    madvise(area, kSize, MADV_HUGEPAGE);
    std::memset(area, 1, kSize);
    munmap(area, kSize);
}

static void measure(benchmark::State& state, SPair& pair, SPair (*make)())
{
    try {
        if (!pair.own)
            pair = make();
        for (auto _ : state) {
            const double anchor = pair.anchor();
            const double own = pair.own();
            state.counters["anchor"] = anchor;
            state.counters["own"] = own;
        }
    } catch (const std::exception& exception) {
        state.SkipWithError(exception.what());
    }
}

CRow::CRow(const char* name, SPair (*make)())
{
    const auto pair = std::make_shared<SPair>();
    benchmark::RegisterBenchmark(name, [pair, make](benchmark::State& state) {
        measure(state, *pair, make);
    })->Iterations(1);
}

bool isSmall()
{
    return std::getenv("ZEL_BENCH_SMALL") != nullptr;
}

} // namespace ZelBench
