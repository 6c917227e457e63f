#pragma once

#include <cstddef>

namespace OvZel {

/// Fills the buffer from the system's random source; false when there is none.
bool systemRandom(void* buffer, std::size_t size);

/// How often this process was forked from one that asked here before: a number that differs between
/// parent and child.
unsigned forkCount();

} // namespace OvZel
