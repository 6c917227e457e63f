#include "bench/CRow.h"

#include <cstdlib>
#include <exception>
#include <memory>

namespace ZelBench {

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
