#include "tests/faults/CAllocations.h"

#include <cstdlib>
#include <limits>
#include <new>

namespace {

constexpr std::int64_t kNever = std::numeric_limits<std::int64_t>::max();

constinit std::int64_t gLive = 0;
constinit std::int64_t gCount = 0;
constinit std::int64_t gFirst = kNever; // the requests from this to the last one fail
constinit std::int64_t gLast = kNever;
constinit std::int64_t gFailed = 0;

bool mayTake()
{
    const std::int64_t number = ++gCount;
    if (number < gFirst || number > gLast)
        return true;
    ++gFailed;
    return false;
}

} // namespace

extern "C" {

void* __real_realloc(void* block, std::size_t size);
void __real_free(void* block);

// The library's objects call these in place of realloc and free.
void* __wrap_realloc(void* block, std::size_t size)
{
    void* result = mayTake() ? __real_realloc(block, size) : nullptr;
    gLive += block == nullptr && result != nullptr;
    return result;
}

void __wrap_free(void* block)
{
    gLive -= block != nullptr;
    __real_free(block);
}

} // extern "C"

namespace {

void* take(std::size_t size, std::size_t alignment)
{
    if (!mayTake())
        return nullptr;
    if (size == 0)
        size = 1;
    const std::size_t whole = (size + alignment - 1) / alignment * alignment;
    void* block = alignment > __STDCPP_DEFAULT_NEW_ALIGNMENT__
                      ? std::aligned_alloc(alignment, whole)
                      : std::malloc(size);
    gLive += block != nullptr;
    return block;
}

void* takeOrThrow(std::size_t size, std::size_t alignment = 1)
{
    if (void* block = take(size, alignment))
        return block;
    throw std::bad_alloc();
}

void give(void* block) noexcept
{
    __wrap_free(block);
}

std::size_t number(std::align_val_t alignment)
{
    return static_cast<std::size_t>(alignment);
}

} // namespace

// clang-format off
void* operator new(std::size_t size) { return takeOrThrow(size); }
void* operator new[](std::size_t size) { return takeOrThrow(size); }
void* operator new(std::size_t size, const std::nothrow_t&) noexcept { return take(size, 1); }
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept { return take(size, 1); }
void* operator new(std::size_t size, std::align_val_t at) { return takeOrThrow(size, number(at)); }
void* operator new[](std::size_t size, std::align_val_t at) { return takeOrThrow(size, number(at)); }
void* operator new(std::size_t size, std::align_val_t at, const std::nothrow_t&) noexcept { return take(size, number(at)); }
void* operator new[](std::size_t size, std::align_val_t at, const std::nothrow_t&) noexcept { return take(size, number(at)); }
void operator delete(void* block) noexcept { give(block); }
void operator delete[](void* block) noexcept { give(block); }
void operator delete(void* block, std::size_t) noexcept { give(block); }
void operator delete[](void* block, std::size_t) noexcept { give(block); }
void operator delete(void* block, const std::nothrow_t&) noexcept { give(block); }
void operator delete[](void* block, const std::nothrow_t&) noexcept { give(block); }
void operator delete(void* block, std::align_val_t) noexcept { give(block); }
void operator delete[](void* block, std::align_val_t) noexcept { give(block); }
void operator delete(void* block, std::size_t, std::align_val_t) noexcept { give(block); }
void operator delete[](void* block, std::size_t, std::align_val_t) noexcept { give(block); }
void operator delete(void* block, std::align_val_t, const std::nothrow_t&) noexcept { give(block); }
void operator delete[](void* block, std::align_val_t, const std::nothrow_t&) noexcept { give(block); }
// clang-format on

namespace ZelTest {

std::int64_t CAllocations::live()
{
    return gLive;
}

void CAllocations::arm(std::int64_t fails, EMode mode)
{
    gCount = 0;
    gFailed = 0;
    gFirst = fails;
    gLast = mode == eOnce ? fails : kNever;
}

std::int64_t CAllocations::disarm()
{
    gFirst = gLast = kNever;
    return gCount;
}

std::int64_t CAllocations::nbFailed()
{
    return gFailed;
}

} // namespace ZelTest
