#pragma once

#include <mutex>

namespace Orvane {

/// A lock that is ready before any code runs, and until the process ends.
#ifdef _WIN32
// There the constructor of std::mutex is code.
class CSection {
public:
    constexpr CSection() = default;
    CSection(const CSection&) = delete;
    CSection& operator=(const CSection&) = delete;

    void lock();
    void unlock();

private:
    void* mState = nullptr;
};
#else
using CSection = std::mutex;
#endif

} // namespace Orvane
