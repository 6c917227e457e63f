#pragma once

#include <string>

namespace CLI {
class App;
}

namespace tool {

struct CFileRun;

/// The options of a command that takes any number of files. They fill the run.
void addFileRunOptions(CLI::App& command, CFileRun& run);
/// A check of options: an empty name, as an unset variable of a shell leaves it, is none.
std::string isNamed(const std::string& name);
/// The same with the files themselves, of which there must be one at least.
void addFiles(CLI::App& command, CFileRun& run, const char* help);

} // namespace tool
