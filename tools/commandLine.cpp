#include "tools/commandLine.h"

#include "tools/CFileRun.h"
#include "tools/commands.h"
#include "tools/fileRunOptions.h"
#include "tools/oneLine.h"

#include <zel/IZelMgr.h>

#include <CLI/CLI.hpp>
#include <charconv>
#include <optional>

namespace tool {

using OvZel::IZelMgr;

// Three numbers with points between them, or nothing.
static std::optional<OvZel::CZelVersion> versionOf(const std::string& text)
{
    OvZel::CZelVersion version;
    const char* place = text.data();
    const char* const end = place + text.size();
    for (std::int32_t* part : {&version.major, &version.minor, &version.patch}) {
        if (part != &version.major && (place == end || *place++ != '.'))
            return std::nullopt;
        const auto [behind, error] = std::from_chars(place, end, *part);
        if (error != std::errc() || *part < 0 || *place == '-')
            return std::nullopt;
        place = behind;
    }
    return place == end ? std::optional(version) : std::nullopt;
}

// What a worker is told, which knows the paths alone.
static std::vector<std::string> workerArguments(const CRewrite& request)
{
    std::vector<std::string> arguments;
    if (const auto& version = request.minVersion)
        arguments.insert(arguments.end(), {"--min-version", versionText(*version)});
    if (request.bare)
        arguments.push_back("--bare");
    if (request.force)
        arguments.push_back("--force");
    if (request.inPlace)
        arguments.push_back("--in-place");
    else
        arguments.push_back("--output-dir=" + request.outputDir);
    return arguments;
}

// Either IN and OUT, or files with a place for what becomes of them.
static void takeFiles(CRewrite& request, CFileRun& run)
{
    if (request.isOfMany()) {
        if (!request.out.empty())
            run.files.insert(run.files.begin(), request.out);
        if (!request.in.empty())
            run.files.insert(run.files.begin(), request.in);
        if (run.files.empty() && !run.isWorker)
            throw CLI::RequiredError("FILE");
        run.command = "rewrite";
        run.hasOneFormOfJson = true;
        run.workerArguments = workerArguments(request);
        run.outputDir = request.outputDir;
        return;
    }
    if (run.isOfMany() || run.asJson)
        throw CLI::RequiredError("--in-place or --output-dir");
    if (request.in.empty())
        throw CLI::RequiredError("IN");
    if (request.out.empty())
        throw CLI::RequiredError("OUT");
    if (!run.files.empty())
        throw CLI::ExtrasError(run.files);
}

void addRewriteOptions(CLI::App& rewrite, CRewrite& request, CFileRun& run)
{
    rewrite
        .add_option_function<std::string>(
            "--min-version", [&](const std::string& text) { request.minVersion = versionOf(text); },
            "The oldest library version that OUT claims to be readable by")
        ->check([](const std::string& text) {
            return versionOf(text) ? std::string() : text + " is no version such as 6.0.0";
        })
        ->type_name("A.B.C");
    rewrite.add_flag("--bare", request.bare,
                     "Load and save only: no check, and the preview picture of a newer file is "
                     "lost");
    rewrite.add_flag("--force", request.force, "Save also where data of IN is lost");
    CLI::Option* const inPlace =
        rewrite.add_flag("--in-place", request.inPlace, "Save each FILE in its own place");
    rewrite
        .add_option("--output-dir", request.outputDir, "Save each FILE under its path below DIR")
        ->excludes(inPlace)
        ->check(isNamed)
        ->type_name("DIR");
    rewrite.add_flag("--json", run.asJson, "One JSON object for each FILE and line");
    addFileRunOptions(rewrite, run);
    rewrite.add_option("IN", request.in, "The document to load");
    rewrite.add_option("OUT", request.out, "The document to save; may be IN");
    rewrite.add_option("FILE", run.files,
                       "With --in-place or --output-dir: documents, folders, or - for a list on "
                       "input");
    rewrite.parse_complete_callback([&] { takeFiles(request, run); });
    rewrite.footer("OUT is replaced as a whole or not at all. A file that a newer library wrote, "
                   "or of which\na block can't be read, is refused unless forced. The options for "
                   "many files need --in-place\nor --output-dir, and then every file named is a "
                   "FILE.\n\n"
                   "Example: zel rewrite --min-version 6.0.0 old.zel new.zel");
}

void addDiffOptions(CLI::App& diff, CDiff& request)
{
    diff.add_flag("--json", request.asJson, "One JSON object");
    diff.add_option("--tolerance", request.tolerance,
                    "How much numbers may differ, as a share of the number; 1e-6 if not given")
        ->check(CLI::Range(0.0, 1.0))
        ->type_name("SHARE");
    diff.add_option("A", request.a, "The document as it was")->required();
    diff.add_option("B", request.b, "The document as it is")->required();
    diff.footer("Each line holds what happened (added, removed, moved, changed), the list with "
                "the name of\nthe object, the field, and its values. Objects are paired by "
                "identifier, else by name.\n"
                "Exit codes: 0 no difference, 1 differences, 65 a file is not readable.\n\n"
                "Example: zel diff before.zel after.zel");
}

static constexpr struct {
    const char* option;
    std::int32_t flag;
    const char* help;
} kCategories[] = {
    {"--materials", IZelMgr::eImportMaterials, "Materials of instances, components and ground"},
    {"--lights", IZelMgr::eImportLights, "Lights, with their groups"},
    {"--heliodons", IZelMgr::eImportHeliodons, "Heliodons"},
    {"--objects", IZelMgr::eImportInstances, "Instances with their layers, and the ground"},
    {"--cameras", IZelMgr::eImportCameras, "Perspective views"},
    {"--parallel-views", IZelMgr::eImportParallelViews, "Parallel views"},
    {"--view-objects", IZelMgr::eImportViewObjects, "View objects"},
    {"--panoramas", IZelMgr::eImportPanoramas, "Panoramas"},
    {"--sequences", IZelMgr::eImportSequences, "Sequences of the first scenario"},
};

static std::int32_t allCategories()
{
    std::int32_t flags = 0;
    for (const auto& category : kCategories)
        flags |= category.flag;
    return flags;
}

// Hexadecimal, with or without "0x", in 32 bits.
static std::optional<std::int32_t> flagsOf(const std::string& text)
{
    const std::size_t begin = text.rfind("0x", 0) == 0 || text.rfind("0X", 0) == 0 ? 2 : 0;
    std::uint32_t flags = 0;
    const char* const end = text.data() + text.size();
    const auto [behind, error] = std::from_chars(text.data() + begin, end, flags, 16);
    if (error != std::errc() || behind != end)
        return std::nullopt;
    return static_cast<std::int32_t>(flags);
}

static void addCategories(CLI::App& command, CImport& request)
{
    command
        .add_option_function<std::string>(
            "--flags", [&request](const std::string& text) { request.flags |= *flagsOf(text); },
            "The categories as a sum of bits, 0xFF1 for all of them")
        ->check([](const std::string& text) {
            return flagsOf(text) ? std::string() : text + " is no hexadecimal number";
        })
        ->type_name("HEX");
    for (const auto& category : kCategories)
        command.add_flag_callback(
            category.option, [&request, &category] { request.flags |= category.flag; },
            category.help);
}

// Without any option that names categories all are meant.
static void takeAllUnlessNamed(const CLI::App& command, CImport& request)
{
    bool isNamed = command.count("--flags") > 0;
    for (const auto& category : kCategories)
        isNamed = isNamed || command.count(category.option) > 0;
    if (!isNamed)
        request.flags = allCategories();
}

void addImportOptions(CLI::App& command, CImport& request)
{
    command.add_option("--reference", request.source, "The fresh export")
        ->required()
        ->type_name("SRC");
    command.add_option("--into", request.destination, "The document to import into")
        ->required()
        ->type_name("DST");
    command.add_option("--output", request.out, "The document to save; may be DST")
        ->type_name("OUT");
    command.add_flag("--dry-run", request.isDryRun, "Tell what would be done, and write nothing");
    command.add_flag("--json", request.asJson, "One JSON object");
    addCategories(command, request);
    command.parse_complete_callback([&command, &request] {
        if (request.out.empty() && !request.isDryRun)
            throw CLI::RequiredError("--output");
        takeAllUnlessNamed(command, request);
    });
    command.footer(
        "Of the categories those that are named are imported, or all. An object whose name DST "
        "has is\noverwritten there, any other one of SRC is added, and nothing is removed. "
        "Instances are paired\nby identifier and layer. The table tells for each category how many "
        "were added, overwritten\nand kept, and the names that several objects have: only the "
        "first of DST is paired.\n\n"
        "Example: zel import --reference export.zel --into house.zel --output house.zel");
}

} // namespace tool
