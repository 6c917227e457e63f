// What every object needs: reference counts and identifiers.

#include "bench/CDocument.h"
#include "bench/CRow.h"
#include "core/generateId.h"

#include <atomic>
#include <memory>
#include <stdexcept>
#include <sys/random.h>
#include <thread>

namespace ZelBench {

namespace {

template <class Action>
double secondsOfEach(int count, Action action)
{
    const double start = processSeconds();
    for (int i = 0; i < count; ++i)
        action();
    return (processSeconds() - start) / count;
}

int nbTimes()
{
    return isSmall() ? 100'000 : 10'000'000;
}

/// Another thread, asleep, so that counts must be safe.
struct SOtherThread {
    std::atomic<bool> isDone = false;
    std::thread thread{[this] { isDone.wait(false); }};

    ~SOtherThread()
    {
        isDone = true;
        isDone.notify_all();
        thread.join();
    }
};

SPair countPair(std::shared_ptr<SOtherThread> other)
{
    const auto document = std::make_shared<CDocument>();
    return {[pointer = std::make_shared<int>(1)] {
                return secondsOfEach(nbTimes(), [&] {
                    std::shared_ptr<int> copy = pointer;
                    benchmark::DoNotOptimize(copy);
                });
            },
            [document, other] {
                OvZel::IZelFileInfo* const object = (*document)->getFileInfo();
                return secondsOfEach(nbTimes(), [&] {
                    object->AddRef();
                    benchmark::DoNotOptimize(object);
                    object->Release();
                });
            }};
}

const CRow kThreads("count_threads", [] { return countPair(std::make_shared<SOtherThread>()); });
const CRow kAlone("count_alone", [] { return countPair(nullptr); });

const CRow kIdentifier("identifier", [] {
    return SPair{[] {
                     return secondsOfEach(nbTimes() / 10, [] {
                         std::uint8_t bytes[16];
                         if (getrandom(bytes, sizeof bytes, 0) != sizeof bytes)
                             throw std::runtime_error("No random bytes");
                         benchmark::DoNotOptimize(bytes);
                     });
                 },
                 [] {
                     return secondsOfEach(nbTimes() / 10,
                                          [] { benchmark::DoNotOptimize(OvZel::generateId()); });
                 }};
});

} // namespace

} // namespace ZelBench
