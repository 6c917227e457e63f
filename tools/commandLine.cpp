#include "tools/commandLine.h"

#include "tools/commands.h"

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

void addRewriteOptions(CLI::App& rewrite, CRewrite& request)
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
    rewrite.add_option("IN", request.in, "The document to load")->required();
    rewrite.add_option("OUT", request.out, "The document to save; may be IN")->required();
    rewrite.footer("OUT is replaced as a whole or not at all. A file that a newer library wrote, "
                   "or of which\na block can't be read, is refused unless forced.\n\n"
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
