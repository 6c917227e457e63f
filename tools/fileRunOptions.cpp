#include "tools/fileRunOptions.h"

#include "tools/CFileRun.h"

#include <CLI/CLI.hpp>
#include <charconv>

namespace tool {

// "I/N" with I from 1 to N.
static bool takeShard(const std::string& text, CFileRun& run)
{
    std::uint32_t shard = 0;
    const char* const end = text.data() + text.size();
    const auto [slash, error] = std::from_chars(text.data(), end, shard);
    if (error != std::errc() || slash == end || *slash != '/')
        return false;
    const auto [behind, nextError] = std::from_chars(slash + 1, end, run.nbShards);
    run.shard = shard - 1;
    return nextError == std::errc() && behind == end && shard >= 1 && shard <= run.nbShards;
}

std::string isNamed(const std::string& name)
{
    return name.empty() ? "the name is empty" : "";
}

void addFileRunOptions(CLI::App& command, CFileRun& run)
{
    command.add_flag("--recursive", run.isRecursive,
                     "Take the files *.zel of folders and of the folders in them");
    command.add_flag("-0,--null", run.isNullSeparated,
                     "The paths of the list on standard input end with null bytes");
    command.add_option("--jobs", run.nbJobs, "Work with so many processes, 1 to 512")
        ->check(CLI::Range(1, 512)) // many systems allow a process 1024 open files
        ->type_name("N");
    command.add_option("--shard", "Take the files of part I out of N alone")
        ->check([&run](const std::string& text) {
            return takeShard(text, run) ? std::string() : text + " is no part such as 2/8";
        })
        ->type_name("I/N");
    command.add_option("--resume", run.log, "Note in LOG what is done, and leave out what was")
        ->check(isNamed)
        ->type_name("LOG");
    command.add_flag("--worker", run.isWorker)->group(""); // for the tool itself
}

void addFiles(CLI::App& command, CFileRun& run, const char* help)
{
    addFileRunOptions(command, run);
    command.add_option("FILE", run.files, help);
    command.parse_complete_callback([&run] {
        if (run.files.empty() && !run.isWorker)
            throw CLI::RequiredError("FILE");
    });
}

} // namespace tool
