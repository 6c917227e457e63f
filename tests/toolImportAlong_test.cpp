#ifdef ZEL_TOOL // without the tool there is nothing to test

#include "tests/support/CImportPair.h"
#include "tests/toolRun.h"

#include <functional>
#include <gtest/gtest.h>
#include <regex>

// What each category of an import brings along, as the difference between the destination before
// and after it: that and nothing else.

namespace {

using namespace OvZel;
using namespace ZelTest;

struct CCase {
    const char* flags;
    std::function<void(IZelMgr& destination, IZelMgr& source)> fill;
    const char* changes; ///< with "ID" for identifiers
};

IZelAnimatedElement& addElement(IZelMgr& document, const CZelUUID& id)
{
    IZelAnimatedElement& element = add(firstScenario(document).getAnimatedElements());
    element.setId(id);
    element.setElementType(2);
    return element;
}

/// Something that moves along a path.
void animate(IZelMgr& document, const CZelUUID& id)
{
    IZelAnimatedElement& element = addElement(document, id);
    IZelInterpolatedValue& value = add(element.getInterpolatedValues());
    value.setChannel(3);
    value.setPathId(idOf(add(document.get3DPaths(), "", idOfNumber(50))));
}

IZelGround& addGround(IZelMgr& document, double scale)
{
    IZelGround& ground = add(document.getGrounds(), "Ground");
    ground.getProperty()->getBasicData()->setName("Grass");
    ground.getProperty()->setScale(scale);
    ground.setHeight(scale);
    return ground;
}

/// A house of one component, with a material of its own and one over that of the component.
void addHouse(IZelMgr& document, double scale)
{
    const CZelUUID layer = idOf(add(document.getLayers(), "Trees", idOfNumber(80)));
    IZelZelObjectDefinition& definition = addComponent(document, "", 1);
    const CZelUUID id = idOfNumber(90);
    definition.getBasicData()->setId(&id);
    IZelObjectInstance& house =
        addInstance(document, "House", idOfNumber(70), layer, "ModelObject");
    add(house.getProperties(), "Oak").setScale(scale);
    add(house.asInternalComponentInstance()->getProperties(), "Ash").setScale(scale);
}

template <class I>
IZelViewInfo& addViewOf(TZelObjectMgr<I>* list)
{
    return *addView(list, "A").getViewInfo();
}

/// A view of each kind, the panorama with a node.
void addViews(IZelMgr& document)
{
    addView(document.getCameras(), "A");
    addView(document.getParallelViews(), "A");
    addView(document.getViewObjects(), "A");
    add(addView(document.getPanoramas(), "A").getNodes(), "Node", idOfNumber(60));
    const CZelUUID id = idOfNumber(61);
    addView(firstScenario(document).getSequences(), "A").getBasicData()->setId(&id);
}

/// Both documents have a view of each kind; that of the destination has two layers to show.
void fillViews(IZelMgr& destination, IZelMgr& source)
{
    addViews(destination);
    addViews(source);
    for (const int number : {1, 2})
        add(destination.getLayers(), "Layer", idOfNumber(number));
}

const CCase kCases[] = {
    {"001",
     [](IZelMgr& destination, IZelMgr& source) {
         addGround(destination, 1.0);
         addGround(source, 2.0).setActive(true);
     },
     "changed grounds[Ground]/Property/Scale: \"1.000000\" -> \"2.000000\"\n"
     "changed grounds[Ground]/Property/Node/@Id: \"ID\" -> \"ID\"\n"},
    {"001",
     [](IZelMgr& destination, IZelMgr& source) {
         addHouse(destination, 1.0);
         addHouse(source, 2.0);
     },
     "changed objectInstances[House]/Properties/Property/Scale: \"1.000000\" -> \"2.000000\"\n"
     "changed objectInstances[House]/Instance.Data/Properties/Property/Scale: \"1.000000\" -> "
     "\"2.000000\"\n"},
    {"010",
     [](IZelMgr& destination, IZelMgr& source) {
         add(destination.getLights(), "Lamp", idOfNumber(1));
         IZelLight& lamp = add(source.getLights(), "Lamp");
         addId(lamp.getLightsGroups(),
               idOf(add(source.getLightsGroups(), "Inside", idOfNumber(2))));
         add(source.getLightsGroups(), "Outside", idOfNumber(3));
         animate(source, idOfNumber(1));
         addElement(source, idOfNumber(9));
     },
     "added lights[Lamp]/Lights.Groups: none -> \"\"\n"
     "added lightsGroups[Inside]\n"
     "added 3DPaths[#0]\n"
     "added scenarios[#0]\n"},
    {"020",
     [](IZelMgr& destination, IZelMgr& source) {
         add(destination.getHeliodons(), "Sun", idOfNumber(1));
         add(source.getHeliodons(), "Sun");
         animate(destination, idOfNumber(2));
         animate(source, idOfNumber(1));
     },
     "added scenarios[#0]/Animated.Elements/Animated.Element[#1]: none -> \"Light\"\n"},
    {"040",
     [](IZelMgr& destination, IZelMgr& source) {
         add(destination.getLayers(), "Cars", idOfNumber(81));
         addHouse(source, 2.0);
         animate(source, idOfNumber(70));
         source.getLayerInfo()->setActiveLayer(idOfNumber(80));
         source.getLayerInfo()->setDefaultLayer("Billboard", idOfNumber(80));
         addGround(source, 2.0);
     },
     "added objectInstances[House]\n"
     "added layers[Trees]\n"
     "added 3DPaths[#0]\n"
     "added scenarios[#0]\n"
     "changed layerInfo[#0]/@Active.Layer: \"ID\" -> \"ID\"\n"
     "changed layerInfo[#0]/Default.Layer.Map/@Billboard: \"ID\" -> \"ID\"\n"},
    {"040",
     [](IZelMgr& destination, IZelMgr& source) {
         addGround(destination, 1.0);
         addGround(source, 2.0).setActive(true);
     },
     "added grounds[Ground]/Active: none -> \"\"\n"
     "changed grounds[Ground]/Height: \"1.000000\" -> \"2.000000\"\n"
     "changed grounds[Ground]/Property/Scale: \"1.000000\" -> \"2.000000\"\n"
     "changed grounds[Ground]/Property/Node/@Id: \"ID\" -> \"ID\"\n"},
    {"080",
     [](IZelMgr& destination, IZelMgr& source) {
         IZelViewInfo& there = addViewOf(destination.getCameras());
         IZelViewInfo& here = addViewOf(source.getCameras());
         addId(there.getLayers(), idOf(add(destination.getLayers(), "Trees", idOfNumber(1))));
         addId(here.getLayers(), idOf(add(source.getLayers(), "Trees", idOfNumber(2))));
         addId(here.getLayers(), idOf(add(source.getLayers(), "Cars", idOfNumber(3))));
         add(source.getHeliodons(), "Noon");
         here.setHeliodonName("Noon");
         addId(here.getLightsGroups(), idOf(add(source.getLightsGroups(), "Lamps", idOfNumber(4))));
         IZelEnvironment& fog = add(source.getEnvironments());
         fog.setName("Fog");
         here.setEnvironment(fog.getId());
     },
     "added lightsGroups[Lamps]\n"
     "changed cameras[A]/View.Info/@Environment: \"ID\" -> \"ID\"\n"
     "added cameras[A]/View.Info/Lights.Groups: none -> \"\"\n"
     "changed cameras[A]/View.Info/Heliodon.Name/@en: \"\" -> \"Noon\"\n"
     "added cameras[A]/View.Info/Layers/Layer[#1]: none -> \"\"\n"
     "added environments[Fog]\n"
     "added heliodons[Noon]\n"},
    {"080", fillViews, "added cameras[A]/View.Info/Layers: none -> \"\"\n"},
    {"100", fillViews, "added parallelViews[A]/View.Info/Layers: none -> \"\"\n"},
    {"200", fillViews, "added viewObjects[A]/View.Info/Layers: none -> \"\"\n"},
    {"400", fillViews,
     "changed panoramas[A]/PanoramaV2.Nodes/PanoramaV2.Node/@UUID: \"ID\" -> \"ID\"\n"},
    {"800", fillViews, "added scenarios[#0]/Sequences/Sequence/View.Info/Layers: none -> \"\"\n"},
    {"800", [](IZelMgr&, IZelMgr& source) { firstScenario(source); }, "added scenarios[#0]\n"},
    {"7FF", [](IZelMgr&, IZelMgr& source) { firstScenario(source); }, ""},
};

/// A file without a sun gets one that stands as it does when the file is loaded, which may be in
/// another minute each time.
void addSun(IZelMgr& document)
{
    IZelTime& time = *add(document.getHeliodons(), "Heliodon", idOfNumber(30)).getTime();
    time.setYear(2004);
    time.setMonth(6);
    time.setDay(21);
    time.setHour(12);
    time.setMinute(0);
}

std::string differences(const std::string& before, const std::string& after)
{
    const std::string told = runTool({"diff", before, after}).output;
    return std::regex_replace(told, std::regex("[0-9A-F]{32}"), "ID");
}

TEST(ToolImportAlong, EachCategoryBringsWhatItUsesAndNoMore)
{
    for (const auto& [flags, fill, changes] : kCases) {
        const CTempFolder folder;
        CImportPair pair;
        addSun(*pair.destination.get());
        addSun(*pair.source.get());
        fill(*pair.destination.get(), *pair.source.get());
        const std::string before = folder.put("before", pair.destination.save());
        const std::string source = folder.put("source", pair.source.save());
        const std::string after = folder.file("after");
        const CRun run = runTool({"import", "--reference", source, "--into", before, "--output",
                                  after, "--flags", flags});
        EXPECT_EQ(run.code, 0) << run.messages;
        EXPECT_EQ(differences(before, after), changes) << flags;
    }
}

// Reference, destination and output at once. Nodes of panoramas, mappings and overrides get new
// identifiers, nothing else changes.
TEST(ToolImportAlong, AFileCanBeImportedIntoItself)
{
    CSunlessDocument document;
    addViews(*document.get());
    addHouse(*document.get(), 1.0);
    addGround(*document.get(), 1.0).setActive(true);
    animate(*document.get(), idOf(add(document->getLights(), "Lamp", idOfNumber(1))));
    const CTempFolder folder;
    for (const std::string& text :
         {document.save(), CSunlessDocument().save(), contents(sample("house.zel"))}) {
        const std::string before = folder.put("before", text);
        const std::string file = folder.put("file", text);
        const CRun run = runTool({"import", "--reference", file, "--into", file, "--output", file});
        EXPECT_EQ(run.code, 0) << run.messages;
        const std::regex renewed("changed [^\n]*: \"ID\" -> \"ID\"\n");
        EXPECT_EQ(std::regex_replace(differences(before, file), renewed, ""), "");
    }
    EXPECT_EQ(folder.names(), (std::vector<std::string>{"before", "file"}));
}

} // namespace

#endif
