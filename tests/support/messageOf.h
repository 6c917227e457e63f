#pragma once

#include <exception>
#include <string>

namespace ZelTest {

/// The text of the standard exception that the action raises, "no exception" if it raises none.
template <class Action>
std::string messageOf(Action&& action)
{
    try {
        action();
    } catch (const std::exception& exception) {
        return exception.what();
    }
    return "no exception";
}

} // namespace ZelTest
