#pragma once

#include <exception>

namespace OvZel {

/// Raises std::runtime_error with the texts that failures inside the library carry.
///
/// With a name and a tag the text is "name - NULL ptr for tag TAG" or
/// "name - Assertion failed for tag TAG", with a name alone it ends before " for tag", with
/// neither it is empty.
class OvThrow {
public:
    static void IfNULL(const void* pointer, const char* name = nullptr, const char* tag = nullptr)
    {
        if (pointer == nullptr)
            SignalNULL(name, tag);
    }

    static void IfFalse(bool condition, const char* name = nullptr, const char* tag = nullptr)
    {
        if (!condition)
            SignalFalse(name, tag);
    }

    [[noreturn]] static void SignalNULL(const char* name = nullptr, const char* tag = nullptr);
    [[noreturn]] static void SignalFalse(const char* name = nullptr, const char* tag = nullptr);

    /// Formats with %s and %d; what is longer than 2047 characters is cut.
    [[noreturn]] static void Signal(const char* format, ...)
#if defined(__GNUC__)
        __attribute__((format(printf, 1, 2)))
#endif
        ;
};

/// The text of an exception, "Unknown exception" when it carries none.
const char* exceptionText(const std::exception& exception);

} // namespace OvZel
