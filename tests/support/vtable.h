#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

/// How the compiler lays out virtual calls (Itanium C++ ABI). A virtual destructor takes two slots.
namespace ZelTest {

/// The slot that a call of this virtual operation goes through, -1 when it isn't virtual. An
/// overloaded operation is named by its type: slotOf<void(int) const>(&I::f).
template <class Function, class Class>
std::ptrdiff_t slotOf(Function Class::*operation)
{
    // Word 0 is the address of the function, or 1 plus the byte offset of the slot.
    std::ptrdiff_t words[2];
    static_assert(sizeof words == sizeof operation);
    std::memcpy(words, &operation, sizeof words);
    return words[0] % 2 == 1 ? words[0] / static_cast<std::ptrdiff_t>(sizeof(void*)) : -1;
}

/// The function in a slot of the object; the pointer is that of the interface which is asked.
inline void* entryOf(const void* object, std::ptrdiff_t slot)
{
    void* const* table = nullptr;
    std::memcpy(&table, object, sizeof table);
    return table[slot];
}

/// Calls a slot as a client does that knows an operation with this result and these arguments
/// there. A member is called as a function that has the object first.
template <class Result = void, class... Arguments>
Result callSlot(void* object, std::ptrdiff_t slot, Arguments... arguments)
{
    const auto operation = reinterpret_cast<Result (*)(void*, Arguments...)>(entryOf(object, slot));
    return operation(object, arguments...);
}

} // namespace ZelTest
