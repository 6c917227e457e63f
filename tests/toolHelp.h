#pragma once

#include <set>
#include <string>

// What the help of the tool tells, for the texts that must agree with it.

/// The first group of each match.
std::set<std::string> found(const std::string& text, const char* pattern);
/// The names in the list of commands of a help.
std::set<std::string> commandsIn(const std::string& help);
/// The long options in a help.
std::set<std::string> optionsIn(const std::string& help);
