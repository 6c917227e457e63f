#include "bench/CRow.h"

#include <cstdlib>
#include <cstring>
#include <exception>
#include <memory>
#include <stdexcept>
#include <sys/mman.h>

namespace ZelBench {

namespace {

class CTouchedArea {
public:
    explicit CTouchedArea(int advice)
        : mBegin(mmap(nullptr, kSize, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0))
    {
        if (mBegin == MAP_FAILED)
            throw std::runtime_error("No memory to touch");
        madvise(mBegin, kSize, advice);
        std::memset(mBegin, 1, kSize);
    }
    CTouchedArea(const CTouchedArea&) = delete;
    CTouchedArea& operator=(const CTouchedArea&) = delete;
    ~CTouchedArea() { munmap(mBegin, kSize); }

private:
    static constexpr std::size_t kSize = std::size_t{256} << 20;

    void* mBegin;
};

} // namespace

void warmMemory()
{
    if (isSmall())
        return;
    // The system keeps large pages and small ones apart, also when they are free again.
    const CTouchedArea large(MADV_HUGEPAGE);
    const CTouchedArea small(MADV_NOHUGEPAGE);
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
