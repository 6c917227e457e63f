#include "tools/commands.h"

#include "tools/CFileRun.h"
#include "tools/CToolDocument.h"
#include "tools/eachFile.h"
#include "tools/folders.h"
#include "tools/loadForSave.h"
#include "tools/platform.h"

#include <nlohmann/json.hpp>

namespace tool {

namespace fs = std::filesystem;

static void loadBare(CToolDocument& document, const std::string& file)
{
    CFileReadStream stream(file);
    document.read(stream, file);
}

static void rewrite(CToolDocument& document, const CRewrite& request, const std::string& in,
                    const std::string& out)
{
    if (request.bare)
        loadBare(document, in);
    else
        loadForSave(document, in, "--force saves", request.force);
    document.save(out, nullptr, request.minVersion ? &*request.minVersion : nullptr);
}

void rewriteCommand(const CRewrite& request)
{
    CToolDocument document;
    rewrite(document, request, request.in, request.out);
}

// The path as given, below the folder: no two files get one target.
static std::string targetBelow(const std::string& folder, const std::string& file)
{
    const fs::path path = rootlessPath(file);
    if (!path.empty() && *path.begin() == "..")
        throw CToolError(eIoError, file + ": would leave the folder of the output");
    const std::string normal = fileName(plainPath(file).lexically_normal());
    if (!isSameFile(file, normal).value_or(true))
        throw CToolError(eIoError, file + ": goes back behind a link to a folder");
    const fs::path target = plainPath(folder) / path;
    const std::string failure = makeFolders(fileName(target.parent_path()));
    if (!failure.empty())
        throw CToolError(eIoError, fileName(target) + ": can't write: " + failure);
    return fileName(target);
}

static EExit rewriteFile(const CRewrite& request, const CFileTask& task)
{
    const std::string target =
        request.inPlace ? task.file : targetBelow(request.outputDir, task.file);
    CToolDocument document;
    document.feedback().setReceiver(
        [&](const std::string& message) { complain(task.file + ": " + message); });
    rewrite(document, request, task.file, target);
    if (task.object)
        *task.object = {{"output", target}};
    return eDone;
}

EExit rewriteFilesCommand(const CRewrite& request, const CFileRun& run, CToolOutput& output)
{
    return eachFile(
        run, [&](const CFileTask& task) { return rewriteFile(request, task); }, output);
}

} // namespace tool
