#include "tools/commands.h"

#include "tools/CMeshCheck.h"
#include "tools/CToolDocument.h"
#include "tools/CToolOutput.h"
#include "tools/droppedSections.h"
#include "tools/eachFile.h"
#include "tools/oneLine.h"

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
};

std::string findingCodes()
{
    std::string text;
    for (const auto& each : kCodes)
        text += std::string("  ") + each.code + " " + each.meaning + "\n";
    return text;
}

namespace {

// Writes the findings of one file as they come.
class CFindings {
public:
    CFindings(const std::string& file, bool asJson, CToolOutput& output)
        : mFile(file), mAsJson(asJson), mOutput(output)
    {
    }

    void add(const char* code, const std::string& text)
    {
        mIsEmpty = false;
        mOutput.write(mAsJson ? jsonLine({{"file", mFile}, {"code", code}, {"text", text}})
                              : oneLine(mFile) + "\t" + code + "\t" + oneLine(text) + "\n");
    }
    bool isEmpty() const { return mIsEmpty; }

private:
    const std::string& mFile;
    bool mAsJson;
    CToolOutput& mOutput;
    bool mIsEmpty = true;
};

} // namespace

static void checkVersion(CFileReadStream& stream, CFindings& findings)
{
    OvZel::IZelMgr::eReadability readability = OvZel::IZelMgr::eUnknown;
    OvZel::IZelMgr::checkFormat2(&stream, &readability, nullptr, nullptr, 0);
    if (readability >= OvZel::IZelMgr::eNewer && readability <= OvZel::IZelMgr::eTooNew)
        findings.add("W108", "written by a newer library");
}

static void checkId(const OvZel::CZelUUID& id, const std::string& owner, CFindings& findings)
{
    if (id.isNull())
        findings.add("W103", owner + " has a null identifier");
}

static void checkIds(OvZel::IZelMgr& document, CFindings& findings)
{
    checkId(*document.getFileInfo()->getBasicData()->getId(), "the file", findings);
    for (std::int32_t i = 0; i < document.getImages()->getNbObjects(); ++i)
        checkId(*document.getImages()->getZelObject(i)->getId(), "image " + std::to_string(i),
                findings);
    for (std::int32_t i = 0; i < document.getDefinitions()->getNbObjects(); ++i)
        checkId(*document.getDefinitions()->getZelObject(i)->getBasicData()->getId(),
                "definition " + std::to_string(i), findings);
    for (const std::string& id : repeatedComponents(document))
        findings.add("W102", "more than one definition has the identifier " + id);
}

static void checkSections(OvZel::IZelMgr& document, CFindings& findings)
{
    const CDropped dropped = droppedSections(document);
    for (const std::string& name : dropped.earlySections)
        findings.add("W104", "a save drops the section \"" + name + "\" of an early version");
    if (dropped.hasApplicationData)
        findings.add("W105", "a save drops the section \"Application.Data\"");
}

static void checkMesh(const std::string& owner, OvZel::TZelObjectMgr<OvZel::CZelPoint>& points,
                      OvZel::TZelObjectMgr<OvZel::IZelPolygon>& polygons, CFindings& findings)
{
    CMeshCheck check(points.getNbObjects());
    for (std::int32_t i = 0; i < polygons.getNbObjects(); ++i)
        check.addPolygon(*polygons.getZelObject(i), i);
    if (check.badCorners().count > 0)
        findings.add("W101", owner + ": corners at points that the mesh does not have: " +
                                 check.badCorners().text());
    if (check.shortLoops().count > 0)
        findings.add("W106",
                     owner + ": loops with fewer than three corners: " + check.shortLoops().text());
}

static void checkMeshes(OvZel::IZelMgr& document, CFindings& findings)
{
    checkMesh("the document's mesh", *document.getPoints(), *document.getPolygons(), findings);
    OvZel::TZelObjectMgr<OvZel::IZelZelObjectDefinition>& definitions = *document.getDefinitions();
    for (std::int32_t i = 0; i < definitions.getNbObjects(); ++i) {
        OvZel::IZelZelObjectDefinition& definition = *definitions.getZelObject(i);
        checkMesh("definition " + idText(*definition.getBasicData()->getId()),
                  *definition.getPoints(), *definition.getPolygons(), findings);
    }
}

static EExit checkFile(const std::string& file, bool asJson, CToolOutput& output)
{
    CFileReadStream stream(file);
    CFindings findings(file, asJson, output);
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
    document.read(stream, file);
    if (failure)
        std::rethrow_exception(failure);
    checkIds(*document, findings);
    checkSections(*document, findings);
    checkMeshes(*document, findings);
    return findings.isEmpty() ? eDone : eFindings;
}

EExit checkCommand(const std::vector<std::string>& files, bool asJson, CToolOutput& output)
{
    return eachFile(files,
                    [&](const std::string& file) { return checkFile(file, asJson, output); });
}

} // namespace tool
