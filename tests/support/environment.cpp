#include "tests/support/environment.h"

#include <cstdlib>
#include <ctime>

namespace ZelTest {

void setEnvironment(const char* name, const char* value)
{
    if (value != nullptr)
        setenv(name, value, 1);
    else
        unsetenv(name);
}

void setTimeZone(const char* zone)
{
    setEnvironment("TZ", zone);
    tzset();
}

} // namespace ZelTest
