#include "tests/toolHelp.h"

#include <regex>

std::set<std::string> found(const std::string& text, const char* pattern)
{
    std::set<std::string> all;
    const std::regex expression(pattern);
    for (std::sregex_iterator i(text.begin(), text.end(), expression), end; i != end; ++i)
        all.insert(i->str(1));
    return all;
}

std::set<std::string> commandsIn(const std::string& help)
{
    return found(help.substr(help.find("Subcommands:")), "\n  ([a-z][a-z-]*) ");
}

std::set<std::string> optionsIn(const std::string& help)
{
    return found(help, "\n  (?:-[a-z0-9],)?(--[a-z-]+)");
}
