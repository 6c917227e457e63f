#include "tools/commands.h"

#include "tools/CFileRun.h"
#include "tools/CFindings.h"
#include "tools/CToolDocument.h"
#include "tools/checkParts.h"
#include "tools/eachFile.h"

#include <exception>

namespace tool {

// Programs compare the codes, so that none ever changes its meaning or is used again.
static constexpr struct {
    const char* code;
    const char* meaning;
} kCodes[] = {
    {"E001", "a message while loading"},
    {"W101", "a corner at a point that the mesh does not have"},
    {"W102", "two definitions of one identifier"},
    {"W103", "a null identifier"},
    {"W104", "a section of an early version, which a save drops"},
    {"W105", "application data, which a save drops"},
    {"W106", "a polygon with fewer than three corners"},
    {"W107", "a section that the library does not know, kept as it is"},
    {"W108", "written by a newer library"},
    {"W109", "a node of maps, or one of its images, without any address"},
    {"W110", "a polygon of a material that its owner does not have"},
    {"W111", "two materials of one name in a list"},
    {"W112", "two materials of one identifier in a list"},
    {"W113", "a material with a branch that does not end in a leaf"},
    {"W114", "a light of a group that does not exist"},
    {"W115", "a spot light with a cone of 0"},
    {"W116", "two heliodons of one name"},
    {"W117", "an instance of a component that does not exist"},
    {"W118", "an instance of an external definition that does not exist"},
    {"W119", "an instance on a layer that does not exist"},
    {"W120", "an instance attached to an object that does not exist"},
    {"W121", "a definition that no instance places"},
    {"W122", "a polygon without area, or with a corner twice in a row"},
    {"W123", "a view with a heliodon that does not exist"},
    {"W124", "a view with an environment that does not exist"},
    {"W125", "a view with a ground that does not exist"},
    {"W126", "a view with a light group that does not exist"},
    {"W127", "a view with a layer that does not exist"},
    {"W128", "an animated object that does not exist"},
    {"W129", "a channel along a 3D path that does not exist"},
    {"W130", "a sequence that ends behind the maximum time of its scenario"},
    {"W131", "a panorama that starts at a node that it does not have"},
    {"W132", "a panorama with a current node that it does not have"},
    {"W133", "a link of a panorama along a 3D path that does not exist"},
};

std::string findingCodes()
{
    std::string text;
    for (const auto& each : kCodes)
        text += std::string("  ") + each.code + " " + each.meaning + "\n";
    return text;
}

static void checkVersion(CFileReadStream& stream, CFindings& findings)
{
    OvZel::IZelMgr::eReadability readability = OvZel::IZelMgr::eUnknown;
    OvZel::IZelMgr::checkFormat2(&stream, &readability, nullptr, nullptr, 0);
    if (readability >= OvZel::IZelMgr::eNewer && readability <= OvZel::IZelMgr::eTooNew)
        findings.add("W108", "written by a newer library");
}

static void checkContent(OvZel::IZelMgr& document, CFindings& findings)
{
    checkIds(document, findings);
    checkSections(document, findings);
    checkMeshes(document, findings);
    checkMaterials(document, findings);
    checkLights(document, findings);
    checkInstances(document, findings);
    checkViews(document, findings);
    checkPanoramas(document, findings);
    checkAnimation(document, findings);
}

static EExit checkFile(const CFileTask& task, bool asJson, CToolOutput& output)
{
    CFileReadStream stream(task.file);
    CFindings findings(task, asJson, output);
    checkVersion(stream, findings);
    std::exception_ptr failure; // the library swallows what a receiver throws
    CToolDocument document;
    document.feedback().setReceiver([&](const std::string& message) {
        try {
            findings.add(isUnknownBlock(message) ? "W107" : "E001", message);
        } catch (...) {
            failure = std::current_exception();
        }
    });
    document.read(stream, task.file);
    if (failure)
        std::rethrow_exception(failure);
    checkContent(*document, findings);
    return findings.isEmpty() ? eDone : eFindings;
}

EExit checkCommand(const CFileRun& run, CToolOutput& output)
{
    return eachFile(
        run, [&](const CFileTask& task) { return checkFile(task, run.asJson, output); }, output);
}

} // namespace tool
