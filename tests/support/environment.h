#pragma once

namespace ZelTest {

/// Sets a variable of the environment, or with null removes it.
void setEnvironment(const char* name, const char* value);
/// The time zone of the process from here on, in the form of POSIX; null for that of the machine.
void setTimeZone(const char* zone);

} // namespace ZelTest
