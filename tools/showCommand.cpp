#include "tools/commands.h"

#include "tools/CToolDocument.h"
#include "tools/CToolOutput.h"
#include "tools/oneLine.h"

namespace tool {

using nlohmann::ordered_json;
using OvZel::IZelZelObjectDefinition;

// The lists of the document, each under the name of the operation that gives it.
static ordered_json managers(OvZel::IZelMgr& document)
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
    ordered_json counts;
    for (const auto& row : rows)
        counts[row.name] = row.manager ? row.manager->getNbObjects() : 0;
    return counts;
}

static ordered_json outline(OvZel::IZelImage& image)
{
    std::uint32_t width = 0;
    std::uint32_t height = 0;
    image.getImage(&width, &height, nullptr);
    return {{"uuid", idText(*image.getId())}, {"width", width}, {"height", height}};
}

static ordered_json outline(IZelZelObjectDefinition& definition)
{
    return {{"uuid", idText(*definition.getBasicData()->getId())},
            {"name", definition.getName()->getCurrentText()},
            {"level", definition.getGeometryLevel()},
            {"points", definition.getPoints()->getNbObjects()},
            {"polygons", definition.getPolygons()->getNbObjects()}};
}

template <class T>
static ordered_json outlines(OvZel::TZelObjectMgr<T>& manager)
{
    ordered_json list = ordered_json::array();
    for (std::int32_t i = 0; i < manager.getNbObjects(); ++i)
        list.push_back(outline(*manager.getZelObject(i)));
    return list;
}

static ordered_json outline(OvZel::IZelMgr& document, const std::string& file)
{
    return {{"file", file},
            {"uuid", idText(*document.getFileInfo()->getBasicData()->getId())},
            {"application", document.getApplicationName()},
            {"name", document.getObjectDefinition()->getName()->getCurrentText()},
            {"counts", managers(document)},
            {"images", outlines(*document.getImages())},
            {"definitions", outlines(*document.getDefinitions())}};
}

// A text without its quotation marks and escapes, anything else as JSON has it.
static std::string plain(const ordered_json& value)
{
    return value.is_string() ? oneLine(value.get<std::string>()) : value.dump();
}

// Empty texts are left out.
static std::string elementText(const ordered_json& element)
{
    std::string text;
    for (const auto& [key, value] : element.items())
        if (value != "")
            text += " " + (key == "uuid" ? plain(value) : key + "=" + plain(value));
    return text;
}

static std::string textOf(const ordered_json& document)
{
    std::string text = plain(document["file"]) + "\n";
    for (const char* key : {"uuid", "application", "name"})
        text += std::string("  ") + key + ": " + plain(document[key]) + "\n";
    for (const auto& [name, count] : document["counts"].items()) {
        text += "  " + name + ": " + plain(count) + "\n";
        if (!document.contains(name))
            continue;
        for (const ordered_json& element : document[name])
            text += "   " + elementText(element) + "\n";
    }
    return text;
}

void showCommand(const std::string& file, bool asJson, CToolOutput& output)
{
    CFileReadStream stream(file);
    CToolDocument document;
    document.read(stream, file);
    const ordered_json object = outline(*document, file);
    output.write(asJson ? jsonLine(object) : textOf(object));
}

} // namespace tool
