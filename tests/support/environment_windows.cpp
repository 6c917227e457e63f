#include "tests/support/environment.h"

#include <cctype>
#include <cstdlib>
#include <ctime>
#include <string>

namespace ZelTest {

void setEnvironment(const char* name, const char* value)
{
    _putenv_s(name, value != nullptr ? value : "");
}

/// The C runtime knows names of three letters alone and, instead of a rule, the daylight time of
/// the United States.
static std::string zoneOfRuntime(const std::string& zone)
{
    const std::size_t isQuoted = zone.front() == '<';
    const std::size_t offset = isQuoted ? zone.find('>') + 1 : zone.find_first_of("+-0123456789");
    const std::size_t end = zone.find_first_not_of("+-0123456789:", offset);
    const bool hasDaylight = end != std::string::npos;
    return "STD" + zone.substr(offset, end - offset) + (hasDaylight ? "DST" : "");
}

void setTimeZone(const char* zone)
{
    setEnvironment("TZ", zone != nullptr ? zoneOfRuntime(zone).c_str() : nullptr);
    _tzset();
}

} // namespace ZelTest
