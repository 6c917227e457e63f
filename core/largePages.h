#pragma once

#include <cstddef>

// Memory that will be filled soon costs most where it is touched first, once for each page. So
// large areas are asked for in large pages, where the system has them. Areas below kLargeArea are
// left alone, since what they waste at their ends would count.
//
// Nothing here knows of the library, so that every folder may use it.

constexpr std::size_t kLargeArea = 8 * 1024 * 1024;

/// For memory that comes from elsewhere; does nothing to a smaller one.
void adviseLargePages(void* begin, std::size_t size) noexcept;

/// An area straight from the system, to which it goes back in whole, of at least kLargeArea; null
/// when there is none.
void* takeLargeArea(std::size_t size) noexcept;
void returnLargeArea(void* begin, std::size_t size) noexcept;

/// As std::realloc and std::free, for buffers that can become large. Both want the size from
/// before.
void* resizeBuffer(void* buffer, std::size_t oldSize, std::size_t newSize) noexcept;
void freeBuffer(void* buffer, std::size_t size) noexcept;
/// How much to ask for when a full buffer must grow. A large one grows faster: it has to move, and
/// what nobody touches of it costs nothing.
constexpr std::size_t nextBufferSize(std::size_t size)
{
    return size < kLargeArea / 2 ? size * 2 : size * 4;
}
