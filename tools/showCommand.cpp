#include "tools/commands.h"

#include "tools/CToolDocument.h"
#include "tools/CToolOutput.h"
#include "tools/oneLine.h"
#include "tools/outlineText.h"
#include "tools/showParts.h"

#include <zel/IZelMgrEx.h>

namespace tool {

using nlohmann::ordered_json;

// The number of elements of each list of the document, under the name of the operation that gives
// it.
static ordered_json counts(OvZel::IZelMgr& document)
{
    OvZel::IZelMgrEx* more = document.getMgrEx(OvZel::eVersionZel);
    if (!more)
        throw CToolError(eNotReadable, "the library is another one than the tool was made for");
    const struct {
        const char* name;
        const OvZel::IZelObjectMgrBase* manager;
    } rows[] = {
        {"images", document.getImages()},
        {"definitions", document.getDefinitions()},
        {"externalDefinitions", document.getExternalDefinitions()},
        {"objectInstances", document.getObjectInstances()},
        {"points", document.getPoints()},
        {"polygons", document.getPolygons()},
        {"properties", document.getProperties()},
        {"layers", document.getLayers()},
        {"lights", document.getLights()},
        {"lightsGroups", document.getLightsGroups()},
        {"cameras", document.getCameras()},
        {"parallelViews", document.getParallelViews()},
        {"viewObjects", document.getViewObjects()},
        {"workingViews", more->getWorkingViews()},
        {"3DPaths", document.get3DPaths()},
        {"animations", more->getAnimations()},
        {"scenarios", document.getScenarios()},
        {"environments", document.getEnvironments()},
        {"heliodons", document.getHeliodons()},
        {"panoramas", document.getPanoramas()},
        {"grounds", document.getGrounds()},
        {"billboards", more->getBillboards()},
    };
    ordered_json numbers;
    for (const auto& row : rows)
        numbers[row.name] = row.manager ? row.manager->getNbObjects() : 0;
    return numbers;
}

static ordered_json outline(OvZel::IZelMgr& document, const std::string& file)
{
    ordered_json object = {{"file", file},
                           {"uuid", idText(*document.getFileInfo()->getBasicData()->getId())},
                           {"application", document.getApplicationName()},
                           {"name", document.getObjectDefinition()->getName()->getCurrentText()},
                           {"counts", counts(document)}};
    showMaterials(document, object);
    showLights(document, object);
    showSurroundings(document, object);
    showDefinitions(document, object);
    showInstances(document, object);
    showViews(document, object);
    showPanoramas(document, object);
    showAnimation(document, object);
    return object;
}

void showCommand(const std::string& file, bool asJson, CToolOutput& output)
{
    CFileReadStream stream(file);
    CToolDocument document;
    document.read(stream, file);
    const ordered_json object = outline(*document, file);
    output.write(asJson ? jsonLine(object) : outlineText(object));
}

} // namespace tool
