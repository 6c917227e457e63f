#pragma once

#include <cstddef>
#include <functional>

namespace ZelTest {

/// Whether memory can be metered: not below the address sanitizer, which keeps what is freed.
bool canMeterMemory();
/// Whether peakMemoryOf works as well: it takes a fork.
bool canMeterPeaks();

/// How many bytes of address space more than before an action takes at its worst moment. The action
/// runs in a process of its own, and what it throws or finds wrong ends that with an exception
/// here. Room that is reserved and never touched counts too.
std::size_t peakMemoryOf(const std::function<void()>& action);

/// The bytes that this process has allocated and not freed.
std::size_t heapInUse();

} // namespace ZelTest
