#include "tools/CFileRun.h"
#include "tools/CToolOutput.h"
#include "tools/commandLine.h"
#include "tools/commands.h"
#include "tools/fileRunOptions.h"
#include "tools/interrupt.h"
#include "tools/platform.h"

#include <CLI/CLI.hpp>

#include <cstdio>
#include <functional>
#include <optional>
#include <sstream>

namespace tool {

// What stands on the command line, and what is to be done with it.
struct CArguments {
    CFileRun run;
    std::string in;
    std::string out;
    bool asJson = false;
    std::uint32_t side = 0; ///< of a picture, 0 for any
    CRewrite rewrite;
    CFromModel fromModel;
    CShader shader;
    CImport import;
    CDiff diff;
    std::function<EExit()> command;
};

static void addInfo(CLI::App& app, CArguments& arguments, CToolOutput& output)
{
    CLI::App* info = app.add_subcommand("info", "Tells about files without loading them");
    info->add_flag("--json", arguments.run.asJson, "One JSON object for each file and line");
    addFiles(*info, arguments.run, "Documents to look at, folders, or - for a list on input");
    info->footer("Each line holds file, version, label and readability: no-document, older, "
                 "recent, same,\nnewer, newer-with-loss, too-new or other-application.\n\n"
                 "find scenes -name '*.zel' -print0 | zel info -0 --jobs 8 - reads a list.\n\n"
                 "Example: zel info --json house.zel garden.zel");
    info->callback([&] {
        arguments.run.command = "info";
        arguments.command = [&] { return infoCommand(arguments.run, output); };
    });
}

static void addShow(CLI::App& app, CArguments& arguments, CToolOutput& output)
{
    CLI::App* show = app.add_subcommand("show", "Loads a document and outlines what is in it");
    show->add_flag("--json", arguments.asJson, "One JSON object");
    show->add_option("FILE", arguments.in, "The document to load")->required();
    show->footer(
        "Materials are shown with the nodes of their trees and the addresses of their maps, "
        "and what\nnames another object with the name of that.\n\n"
        "Example: zel show house.zel");
    show->callback([&] {
        arguments.command = [&] {
            showCommand(arguments.in, arguments.asJson, output);
            return eDone;
        };
    });
}

static void addCheck(CLI::App& app, CArguments& arguments, CToolOutput& output)
{
    CLI::App* check = app.add_subcommand("check", "Loads documents and tells what is odd in them");
    check->add_flag("--json", arguments.run.asJson,
                    "One JSON object for each finding and line; with any of the options below or "
                    "a list, for each file");
    addFiles(*check, arguments.run, "Documents to load, folders, or - for a list on input");
    check->footer("Each line holds file, code and text of a finding. The codes:\n" +
                  findingCodes() +
                  "Exit codes: 0 no finding, 1 findings, 65 a file is not readable.\n\n"
                  "Example: zel check house.zel garden.zel");
    check->callback([&] {
        arguments.run.command = "check";
        arguments.command = [&] { return checkCommand(arguments.run, output); };
    });
}

static void addPreview(CLI::App& app, CArguments& arguments)
{
    CLI::App* preview = app.add_subcommand("preview", "Takes the preview picture out of a file");
    preview->add_option("--size", arguments.side, "The most pixels a side; a larger one is shrunk")
        ->check(CLI::Range(1, 65535))
        ->type_name("PIXELS");
    preview->add_option("FILE", arguments.in, "The document")->required();
    preview->add_option("OUT.png", arguments.out, "The picture to write")->required();
    preview->footer("Example: zel preview house.zel house.png");
    preview->callback([&] {
        arguments.command = [&] {
            previewCommand(arguments.in, arguments.out, arguments.side);
            return eDone;
        };
    });
}

static void addRewrite(CLI::App& app, CArguments& arguments, CToolOutput& output)
{
    CLI::App* rewrite = app.add_subcommand("rewrite", "Loads a document and saves it");
    addRewriteOptions(*rewrite, arguments.rewrite, arguments.run);
    rewrite->callback([&] {
        arguments.command = [&] {
            if (arguments.rewrite.isOfMany())
                return rewriteFilesCommand(arguments.rewrite, arguments.run, output);
            rewriteCommand(arguments.rewrite);
            return eDone;
        };
    });
}

static void addFromModel(CLI::App& app, CArguments& arguments)
{
    CLI::App* fromModel = app.add_subcommand("from-model", "Makes a document from a model");
    CFromModel& request = arguments.fromModel;
    fromModel->add_option("MODEL", request.model, "An OBJ, IFC, glTF or other model file")
        ->required();
    fromModel->add_option("OUT", request.out, "The document to save")->required();
    fromModel->add_option("--preview", request.preview, "A PNG picture to show for the document");
    fromModel->add_flag("--flat", request.isFlat,
                        "One mesh with everything in its place, without components");
    fromModel->footer(
        "Each material becomes a property, each mesh a component, each place of a mesh an "
        "instance,\neach node below the root a layer. The three angles of an instance are radians: "
        "the component\nis scaled, turned about the X axis, then about Y, then about Z, all of "
        "them fixed, and then\nmoved. A place that this can't tell gets a component of its own.\n\n"
        "Example: zel from-model house.ifc house.zel --preview house.png");
    fromModel->callback([&] {
        arguments.command = [&] {
            fromModelCommand(arguments.fromModel);
            return eDone;
        };
    });
}

static void addToModel(CLI::App& app, CArguments& arguments)
{
    CLI::App* toModel = app.add_subcommand("to-model", "Writes the meshes of a document as OBJ");
    toModel->add_option("IN", arguments.in, "The document to load")->required();
    toModel->add_option("OUT.obj", arguments.out, "The model to write")->required();
    toModel->footer("The properties go to an MTL file of the same name. Each component is written "
                    "where each of\nits instances places it, with the angles as from-model has "
                    "them. A material index N without\na property becomes the name "
                    "material_N.\n\n"
                    "Example: zel to-model house.zel house.obj");
    toModel->callback([&] {
        arguments.command = [&] {
            toModelCommand(arguments.in, arguments.out);
            return eDone;
        };
    });
}

static void addShaderExport(CLI::App& shader, CShader& request)
{
    CLI::App* command = shader.add_subcommand("export", "Writes a material as a shader document");
    command->add_option("FILE", request.file, "The document to load")->required();
    command->add_option("NAME", request.name, "Name of the material, or #N")->required();
    command->add_option("OUT", request.out, "The shader document to write")->required();
    command->footer("Example: zel shader export house.zel Oak oak.xml");
}

static void addShaderImport(CLI::App& shader, CShader& request)
{
    CLI::App* command = shader.add_subcommand(
        "import", "Puts a shader document into a material, or into a new one of that name");
    command->add_option("FILE", request.file, "The document to load")->required();
    command->add_option("NAME", request.name, "Name of the material, or #N")->required();
    command->add_option("SHADER", request.shader, "The shader document to read")->required();
    command->add_option("OUT", request.out, "The document to save; may be FILE")->required();
    command->footer("Name and identifier of the material stay as they are.\n\n"
                    "Example: zel shader import garden.zel Oak oak.xml garden.zel");
}

static void addShader(CLI::App& app, CArguments& arguments)
{
    CLI::App* shader =
        app.add_subcommand("shader", "Moves a material between documents, as a shader document");
    shader->require_subcommand(1);
    addShaderExport(*shader, arguments.shader);
    addShaderImport(*shader, arguments.shader);
    shader->footer("#N is the material of number N, from 0, where none has that name. Where "
                   "several have\nthe name, only the number will do.\n\n"
                   "Example: zel shader export house.zel Oak oak.xml");
    shader->callback([&arguments, shader] {
        arguments.command = [&arguments, isExport = shader->got_subcommand("export")] {
            isExport ? exportShaderCommand(arguments.shader)
                     : importShaderCommand(arguments.shader);
            return eDone;
        };
    });
}

static void addImport(CLI::App& app, CArguments& arguments, CToolOutput& output)
{
    CLI::App* command = app.add_subcommand("import", "Merges a fresh export into a document");
    addImportOptions(*command, arguments.import);
    command->callback([&] {
        arguments.command = [&] {
            importCommand(arguments.import, output);
            return eDone;
        };
    });
}

static void addDiff(CLI::App& app, CArguments& arguments, CToolOutput& output)
{
    CLI::App* diff = app.add_subcommand("diff", "Tells what differs between two documents");
    addDiffOptions(*diff, arguments.diff);
    diff->callback(
        [&] { arguments.command = [&] { return diffCommand(arguments.diff, output); }; });
}

// Help is output and goes where output goes; everything else that stops parsing is a usage error.
static EExit stopParsing(const CLI::App& app, const CLI::ParseError& error, CToolOutput& output)
{
    std::ostringstream help;
    std::ostringstream complaint;
    const int code = app.exit(error, help, complaint);
    output.write(help.str());
    std::fputs(complaint.str().c_str(), stderr);
    return code == 0 ? eDone : eUsage;
}

static EExit run(const std::vector<std::string>& words, CToolOutput& output)
{
    CLI::App app("Looks into, converts and rewrites ZEL scene documents.", "zel");
    app.allow_windows_style_options(false); // a path may begin with a slash there too
    app.footer(
        "Exit codes: 0 done, 1 check has findings or diff has differences, 64 wrong usage, "
        "65 not\nreadable, 69 built without what it takes, 70 a worker process ended on a file, "
        "74 a file can't\nbe read or written, 130 and 143 stopped by Ctrl-C or SIGTERM; the "
        "output file is then as it\nwas. Of many files the highest.\n"
        "Output goes to standard output, messages to standard error.\n\n"
        "Example: zel info house.zel");
    app.require_subcommand(1);
    CArguments arguments;
    addInfo(app, arguments, output);
    addShow(app, arguments, output);
    addCheck(app, arguments, output);
    addPreview(app, arguments);
    addRewrite(app, arguments, output);
    addFromModel(app, arguments);
    addToModel(app, arguments);
    addShader(app, arguments);
    addImport(app, arguments, output);
    addDiff(app, arguments, output);
    try {
        // Without the name of the program, and the last one first, as the parser takes them.
        app.parse(std::vector<std::string>(words.rbegin(), words.rend() - !words.empty()));
    } catch (const CLI::RequiredError& error) {
        // Behind a word that is no command, the command itself is what the parser misses first.
        const std::vector<std::string> unknown = app.remaining(true);
        if (!unknown.empty())
            return stopParsing(app, CLI::ExtrasError(unknown), output);
        return stopParsing(app, error, output);
    } catch (const CLI::ParseError& error) {
        return stopParsing(app, error, output);
    }
    return arguments.command();
}

} // namespace tool

// Nobody needs to be told of what was asked for.
static int failure(const char* text, tool::EExit code)
{
    if (tool::isInterrupted())
        return tool::interruptExit();
    tool::complain(text);
    return code;
}

int main(int argc, char** argv)
{
    tool::watchInterrupts();
    tool::CToolOutput output;
    try {
        return tool::run(tool::programArguments(argc, argv), output);
    } catch (const tool::CToolError& error) {
        return failure(error.what(), error.code());
    } catch (const std::exception& error) {
        return failure(error.what(), tool::eIoError);
    }
}
