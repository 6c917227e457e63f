#include "tools/CListedObject.h"

#include "tools/forEach.h"
#include "tools/meshElement.h"
#include "tools/oneLine.h"
#include "tools/sameValue.h"

#include <zel/IZelMgr.h>
#include <zel/IZelMgrEx.h>

namespace tool {

using namespace OvZel;
using OrvaneXML::XIXMLElement;

static XIXMLElement* addElement(XIXMLElement& above, const char* tag)
{
    return above.AddElement(above.MakeKey(tag));
}

static void addAttribute(XIXMLElement& element, const char* key, const std::string& value)
{
    element.AddAttribute(element.MakeKey(key), value.c_str());
}

static CListedObject::CWriter formOf(IZelBasic& object)
{
    return [&object](XIXMLElement& above) { return object.getBasicData()->putInXML(&above); };
}

static CListedObject::CWriter formOf(IZelXML& object)
{
    return [&object](XIXMLElement& above) { return object.putInXML(&above); };
}

static CListedObject listed(IZelBasic& object)
{
    return {idText(*object.getBasicData()->getId()), object.getBasicData()->getName(),
            formOf(object)};
}

// The identifier of a view is that of its information, which alone is saved.
static CListedObject listed(IZelViewBasic& view)
{
    return {idText(*view.getViewInfo()->getBasicData()->getId()), view.getBasicData()->getName(),
            formOf(view)};
}

static CListedObject listed(IZelEnvironment& environment)
{
    return {idText(environment.getId()), environment.getName(), formOf(environment)};
}

static CListedObject listed(IZelScenario& scenario)
{
    return {"", scenario.getName(), formOf(scenario)};
}

static CListedObject listed(IZelAnimation& animation)
{
    return {"", animation.getName(), formOf(animation)};
}

static CListedObject listed(IZelBBMgrData& billboard)
{
    return {"", "", formOf(billboard)};
}

static CListedObject listed(IZelZelObjectDefinition& definition)
{
    CListedObject object = listed(static_cast<IZelBasic&>(definition));
    object.mesh = {definition.getPoints(), definition.getPolygons()};
    object.write = [form = object.write, mesh = object.mesh](XIXMLElement& above) {
        XIXMLElement* element = form(above);
        if (element)
            addMesh(*element, mesh);
        return element;
    };
    return object;
}

static CListedObject listed(IZelImage& image)
{
    return {idText(*image.getId()), "", [&image](XIXMLElement& above) {
                XIXMLElement* element = addElement(above, "Image");
                addPicture(*element, image);
                return element;
            }};
}

template <class T>
static CObjectList listOf(const char* name, TZelObjectMgr<T>* manager)
{
    CObjectList list{name, {}};
    if (manager)
        forEach(*manager, [&](T& object, std::int32_t) { list.objects.push_back(listed(object)); });
    return list;
}

static XIXMLElement* addDocument(XIXMLElement& above, IZelMgr& document)
{
    XIXMLElement* element = addElement(above, "Document");
    addAttribute(*element, "Application", document.getApplicationName());
    addAttribute(*element, "Application.Version", document.getApplicationVersion());
    std::int32_t number = 0;
    while (const char* comment = document.getComment(number++))
        addElement(*element, "Comment")->AddText(comment);
    addMesh(*element, {document.getPoints(), document.getPolygons()});
    return element;
}

static XIXMLElement* addParameters(XIXMLElement& above, const CZelRenderParameters& parameters)
{
    XIXMLElement* element = addElement(above, "Render.Parameters");
    addAttribute(*element, "Config", parameters.configName);
    for (const CZelRenderParameters::CEntry& each : parameters.entries) {
        XIXMLElement* entry = addElement(*element, "Entry");
        addAttribute(*entry, "Value", numberText(each.value));
        addAttribute(*entry, "Minimum", numberText(each.minimum));
        addAttribute(*entry, "Maximum", numberText(each.maximum));
        addAttribute(*entry, "Flag", each.flag ? "1" : "0");
        addAttribute(*entry, "Text", each.text);
        for (const int i : {1, 2, 3})
            addAttribute(*entry, i == 1 ? "R" : i == 2 ? "G" : "B", std::to_string(each.color[i]));
    }
    return element;
}

// What the document has once. The scene's own definition has no mesh that is saved.
static void addSingles(std::vector<CObjectList>& lists, IZelMgr& document)
{
    const auto add = [&](const char* name, CListedObject::CWriter write, CMesh mesh = {}) {
        lists.push_back({name, {{"", "", std::move(write), mesh}}});
    };
    add("document", [&](XIXMLElement& above) { return addDocument(above, document); },
        {document.getPoints(), document.getPolygons()});
    add("scene", formOf(static_cast<IZelBasic&>(*document.getObjectDefinition())));
    if (IZelLayerInfo* info = document.getLayerInfo())
        add("layerInfo", formOf(*info));
    const CZelRenderParameters* parameters = document.getMgrEx(eVersionZel)->getRenderParameters();
    add("renderParameters",
        [parameters](XIXMLElement& above) { return addParameters(above, *parameters); });
}

std::vector<CObjectList> objectLists(IZelMgr& document)
{
    IZelMgrEx& more = *document.getMgrEx(eVersionZel);
    std::vector<CObjectList> lists = {
        listOf("images", document.getImages()),
        listOf("definitions", document.getDefinitions()),
        listOf("externalDefinitions", document.getExternalDefinitions()),
        listOf("objectInstances", document.getObjectInstances()),
        listOf("properties", document.getProperties()),
        listOf("layers", document.getLayers()),
        listOf("lights", document.getLights()),
        listOf("lightsGroups", document.getLightsGroups()),
        listOf("cameras", document.getCameras()),
        listOf("parallelViews", document.getParallelViews()),
        listOf("viewObjects", document.getViewObjects()),
        listOf("workingViews", more.getWorkingViews()),
        listOf("3DPaths", document.get3DPaths()),
        listOf("animations", more.getAnimations()),
        listOf("scenarios", document.getScenarios()),
        listOf("environments", document.getEnvironments()),
        listOf("heliodons", document.getHeliodons()),
        listOf("panoramas", document.getPanoramas()),
        listOf("grounds", document.getGrounds()),
        listOf("billboards", more.getBillboards()),
    };
    addSingles(lists, document);
    return lists;
}

} // namespace tool
