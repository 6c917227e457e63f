#pragma once

#include <cstddef>

/// Asks the system to back memory that will be filled soon with large pages: the first touch of
/// each page costs it more than filling a small one does. Areas below 8 MiB are left alone, since
/// what they waste at their ends would count.
///
/// It knows nothing of the library, so that every folder may use it.
void adviseLargePages(void* begin, std::size_t size) noexcept;
