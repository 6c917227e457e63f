#pragma once

#include <functional>
#include <memory>

namespace ZelBench {

/// Bytes of real memory that an action took beyond those of the process before it.
struct SMemory {
    double peak; // while it ran
    double held; // by what it made, when it had ended
};

/// Runs the action in a child process, which ends without destroying anything.
SMemory memoryOf(const std::function<std::shared_ptr<void>()>& action);

} // namespace ZelBench
