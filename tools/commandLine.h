#pragma once

namespace CLI {
class App;
}

namespace tool {

struct CDiff;
struct CFileRun;
struct CImport;
struct CRewrite;

/// The options of the commands that have many of them. They fill the request.

/// The run has the files and the command where the request is of many.
void addRewriteOptions(CLI::App& rewrite, CRewrite& request, CFileRun& run);
void addDiffOptions(CLI::App& diff, CDiff& request);
/// The flags of the request are complete once the callback of the command runs.
void addImportOptions(CLI::App& command, CImport& request);

} // namespace tool
