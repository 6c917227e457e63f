#pragma once

#include <cstdint>

namespace ZelTest {

/// The memory of this program: operator new in all its forms, and what the library takes by
/// realloc. While armed, requests fail as in a process that has no memory left. One thread.
class CAllocations {
public:
    enum EMode {
        eOnce,   ///< one request fails
        eOnward, ///< that one fails and all behind it
    };

    /// Blocks that were taken and not given back.
    static std::int64_t live();
    /// From here on requests are counted; the one of that number, from 1, fails.
    static void arm(std::int64_t fails, EMode mode);
    /// Memory is there again. How many requests there were since arm.
    static std::int64_t disarm();
    /// Those of them that failed.
    static std::int64_t nbFailed();
};

} // namespace ZelTest
