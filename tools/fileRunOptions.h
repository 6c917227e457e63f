#pragma once

namespace CLI {
class App;
}

namespace tool {

struct CFileRun;

/// The options of a command that takes any number of files. They fill the run.
void addFileRunOptions(CLI::App& command, CFileRun& run);
/// The same with the files themselves, of which there must be one at least.
void addFiles(CLI::App& command, CFileRun& run, const char* help);

} // namespace tool
