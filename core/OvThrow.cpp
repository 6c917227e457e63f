#include "core/OvThrow.h"

#include <cstdarg>
#include <cstdio>
#include <stdexcept>
#include <string>

namespace OvZel {

namespace {

constexpr std::size_t kMessageSize = 2048;

[[noreturn]] void signal(const char* name, const char* tag, const char* what)
{
    std::string text;
    if (name != nullptr) {
        text.append(name).append(" - ").append(what);
        if (tag != nullptr)
            text.append(" for tag ").append(tag);
    }
    throw std::runtime_error(text.substr(0, kMessageSize - 1));
}

} // namespace

void OvThrow::SignalNULL(const char* name, const char* tag)
{
    signal(name, tag, "NULL ptr");
}

void OvThrow::SignalFalse(const char* name, const char* tag)
{
    signal(name, tag, "Assertion failed");
}

void OvThrow::Signal(const char* format, ...)
{
    char buffer[kMessageSize];
    va_list arguments;
    va_start(arguments, format);
    std::vsnprintf(buffer, sizeof buffer, format, arguments);
    va_end(arguments);
    throw std::runtime_error(buffer);
}

const char* exceptionText(const std::exception& exception)
{
    const char* text = exception.what();
    return text != nullptr && *text != '\0' ? text : "Unknown exception";
}

} // namespace OvZel
