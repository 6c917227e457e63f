#pragma once

#include <cstddef>

namespace OvZel {

/// Fills the buffer from the system's random source; false when there is none.
bool systemRandom(void* buffer, std::size_t size);

/// A number that differs between a process and those forked from it.
long processNumber();

} // namespace OvZel
