#ifdef ZEL_TOOL // without the tool there is nothing to test

#include "tests/support/CClientDocument.h"
#include "tests/support/soundScene.h"
#include "tests/toolRun.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace {

using namespace OvZel;
using nlohmann::json;
using testing::HasSubstr;
using testing::Not;
using ZelTest::addMaterial;
using ZelTest::addNamed;

class ToolShow : public testing::Test {
protected:
    std::string file()
    {
        EXPECT_TRUE(mDocument.write());
        return mFolder.put("in.zel", mDocument.written);
    }
    json shown()
    {
        const CRun run = runTool({"show", "--json", file()});
        EXPECT_EQ(run.code, 0) << run.messages;
        return json::parse(run.output);
    }
    std::string text() { return runTool({"show", file()}).output; }
    /// The only element of a list, without its identifier, which is random.
    json only(const char* list)
    {
        json elements = shown()[list];
        EXPECT_EQ(elements.size(), 1u) << list;
        elements[0].erase("uuid");
        return elements[0];
    }

    ZelTest::CClientDocument mDocument;
    ZelTest::CSoundScene mScene{*mDocument.get()};
    CTempFolder mFolder;
};

TEST_F(ToolShow, EveryOtherListHasAsManyElementsAsItsCount)
{
    const json outline = shown();
    for (const auto& [name, count] : outline["counts"].items())
        if (outline.contains(name)) {
            EXPECT_EQ(outline[name].size(), count.get<std::size_t>()) << name;
        }
    for (const char* name :
         {"properties", "lights", "lightsGroups", "heliodons", "definitions", "externalDefinitions",
          "objectInstances", "layers", "billboards", "grounds", "environments", "cameras",
          "parallelViews", "viewObjects", "workingViews", "images"})
        EXPECT_TRUE(outline.contains(name)) << name;
}

TEST_F(ToolShow, AMaterialHasItsNodesInTheOrderOfTheTree)
{
    EXPECT_EQ(only("properties"), json::parse(R"({"name":"Oak","visible":true,"shader":"","nodes":[
        {"depth":0,"type":"Mapping","width":1.0,"height":1.0,"specular":"#000000",
         "reflection":"#000000","transparent":"#000000","maps":{"diffuse":"oak.jpg"}},
        {"depth":1,"type":"Leaf","diffuse":"#1020FF","specular":"#000000","reflection":"#000000",
         "transparent":"#000000","emitting":"#000000","glossy":1000.0,"refraction":1.0}]})"));
    EXPECT_THAT(text(), HasSubstr(" name=Oak visible=true\n"
                                  "      nodes:\n"
                                  "        Mapping width=1.0 height=1.0 specular=#000000 "
                                  "reflection=#000000 transparent=#000000\n"
                                  "          maps: diffuse=oak.jpg\n"
                                  "          Leaf diffuse=#1020FF "));
}

TEST_F(ToolShow, EveryKindOfMapHasItsName)
{
    IZelMultiMaps& maps = *mScene.material.getMappingNode(0)->getMaps();
    for (int kind = 1; kind <= 11; ++kind)
        maps.setURL(kind, std::to_string(kind).c_str());
    EXPECT_EQ(only("properties")["nodes"][0]["maps"],
              json::parse(R"({"diffuse":"1","specular":"2","glossy":"3","reflection":"4",
                  "environment":"5","alpha":"6","bump":"7","normalMap":"8","neon":"9",
                  "relief":"10","movie":"11"})"));
}

TEST_F(ToolShow, EveryTypeOfNodeHasItsName)
{
    const struct {
        eNodeType type;
        const char* name;
    } cases[] = {
        {eChessNode, "Chess"},           {eTurbulenceNode, "Turbulence"},
        {eFresnelNode, "Fresnel"},       {eFresnelDiffuseNode, "FresnelDiffuse"},
        {eGlazingNode, "Glazing"},       {eAltitudeNode, "Altitude"},
        {eCustomNode, "Custom"},         {eMultiTextureNode, "MultiTexture"},
        {eWangTilesNode, "WangTexture"}, {eMatteShadowNode, "MatteShadow"},
    };
    IZelTCE& tree = *mScene.material.getTCE();
    ITCENode* parent = tree.getRootNode();
    ITCENode* leaf = parent->getChild(0)->getChild(0);
    leaf->AddRef();
    parent->removeChild(0);
    for (const auto& [type, name] : cases) {
        ITCENode* node = tree.createNode(type);
        node->setParent(parent);
        parent->addChild(node);
        parent = node;
        node->Release();
    }
    leaf->setParent(parent);
    parent->addChild(leaf);
    leaf->Release();

    // A chess node has two children.
    ITCENode* second = tree.createNode(eLeafNode);
    tree.getRootNode()->getChild(0)->addChild(second);
    second->Release();

    const json nodes = only("properties")["nodes"];
    ASSERT_EQ(nodes.size(), std::size(cases) + 2);
    for (std::size_t i = 0; i < std::size(cases); ++i) {
        EXPECT_EQ(nodes[i]["type"], cases[i].name);
        EXPECT_EQ(nodes[i]["depth"], i);
    }
    EXPECT_EQ(nodes[std::size(cases)]["type"], "Leaf");
    EXPECT_EQ(nodes.back()["type"], "Leaf");
    EXPECT_EQ(nodes.back()["depth"], 1);
}

TEST_F(ToolShow, ImagesAndTilesHaveTheirMaps)
{
    IZelTCE& tree = *mScene.material.getTCE();
    ITCENode* node = tree.createNode(eWangTilesNode);
    IZelMultiMaps& tile = *node->asWangTilesNode()->getTiles()->newZelObject(-1);
    tile.setURL(1, "tile.jpg");
    ITCENode* leaf = tree.getRootNode()->getChild(0)->getChild(0);
    leaf->setParent(node);
    node->addChild(leaf);
    tree.getRootNode()->addChild(node); // behind the mapping node, which goes
    tree.getRootNode()->removeChild(0);
    node->Release();
    const json shownNode = only("properties")["nodes"][0];
    EXPECT_EQ(shownNode["type"], "WangTexture");
    EXPECT_EQ(shownNode["tiles"], json::parse(R"([{"diffuse":"tile.jpg"}])"));
}

TEST_F(ToolShow, ADeepMaterialIsShown)
{
    IZelTCE& tree = *mScene.material.getTCE();
    ITCENode* below = tree.getRootNode()->getChild(0);
    below->AddRef();
    tree.getRootNode()->removeChild(0);
    constexpr std::size_t kDepth = 5000;
    for (std::size_t i = 0; i < kDepth; ++i) {
        ITCENode* node = tree.createNode(eTurbulenceNode);
        below->setParent(node);
        node->addChild(below);
        below->Release();
        below = node;
    }
    below->setParent(tree.getRootNode());
    tree.getRootNode()->addChild(below);
    below->Release();
    EXPECT_EQ(only("properties")["nodes"].size(), kDepth + 2);
    EXPECT_LT(text().size(), std::size_t{1} << 20);
}

TEST_F(ToolShow, LightsHaveTheirValuesAndGroupsByName)
{
    EXPECT_EQ(only("lights"), json::parse(R"({"name":"Porch","type":"spot","active":true,
        "power":1200.0,"color":"#FFFFFF","position":[1.0,2.0,3.5],"groups":["Lamps"]})"));
    EXPECT_EQ(only("lightsGroups"), json::parse(R"({"name":"Lamps"})"));
    EXPECT_THAT(text(), HasSubstr(" name=Porch type=spot active=true power=1200.0 color=#FFFFFF "
                                  "position=1.0,2.0,3.5 groups=Lamps\n"));
}

TEST_F(ToolShow, WhatIsNotThereIsShownByItsIdentifier)
{
    *mScene.light.getLightsGroups()->newZelObject(-1) =
        CZelUUID("00112233445566778899AABBCCDDEEFF");
    EXPECT_EQ(only("lights")["groups"],
              json::parse(R"(["Lamps","00112233445566778899AABBCCDDEEFF"])"));
}

TEST_F(ToolShow, AHeliodonHasWhatItsPlacementTakes)
{
    mScene.heliodon.setTheta(0.5);
    const json manual = only("heliodons");
    EXPECT_EQ(manual["placement"], "manual");
    EXPECT_EQ(manual["theta"], 0.5);
    EXPECT_EQ(manual["phi"], 0.785398);
    EXPECT_FALSE(manual.contains("date"));

    mScene.heliodon.setPlacementKind(1);
    const json halfway = only("heliodons");
    EXPECT_EQ(halfway["placement"], "45-degrees");
    EXPECT_FALSE(halfway.contains("theta") || halfway.contains("date"));

    mScene.heliodon.setPlacementKind(2);
    IZelTime& time = *mScene.heliodon.getTime();
    time.setYear(2004);
    time.setMonth(6);
    time.setDay(5);
    time.setHour(7);
    time.setMinute(30);
    mScene.heliodon.getPlace()->setLatitude(4820);
    const json dated = only("heliodons");
    EXPECT_EQ(dated["placement"], "date-and-place");
    EXPECT_EQ(dated["date"], "2004-06-05 07:30");
    EXPECT_EQ(dated["place"],
              json::parse(R"({"longitude":0,"latitude":4820,"timeZone":0,"daylight":false})"));
    EXPECT_FALSE(dated.contains("theta"));
}

TEST_F(ToolShow, AHeliodonHasItsSky)
{
    mScene.heliodon.setSunshine(0.25);
    mScene.heliodon.getFog()->setActive(true);
    const json shownOne = only("heliodons");
    EXPECT_EQ(shownOne["active"], true);
    EXPECT_EQ(shownOne["sunshine"], 0.25);
    EXPECT_EQ(shownOne["shadow"], true);
    EXPECT_EQ(shownOne["skylight"],
              json::parse(R"({"used":false,"factor":0.75,"color":"#FFFFFF"})"));
    EXPECT_EQ(shownOne["fog"], json::parse(R"({"active":true,"color":"#DDDDDD","density":0.5})"));
    EXPECT_EQ(shownOne["clouds"]["active"], false);
    EXPECT_THAT(text(), HasSubstr("\n      fog: active=true color=#DDDDDD density=0.5\n"));
}

TEST_F(ToolShow, DefinitionsHaveTheirMaterialsAndSetUps)
{
    mScene.definition.getSetups()->newZelObject(-1)->getName()->setCurrentText("Open");
    EXPECT_EQ(only("definitions"),
              json::parse(R"({"name":"Shed","class":"ModelObject","level":0,"points":3,
                  "polygons":1,"properties":["Plank"],"setups":["Open"]})"));
    EXPECT_EQ(only("externalDefinitions"),
              json::parse(R"({"name":"","url":"chair.zob","properties":[]})"));
}

TEST_F(ToolShow, InstancesNameWhatTheyPlace)
{
    json instances = shown()["objectInstances"];
    ASSERT_EQ(instances.size(), 2u);
    for (json& instance : instances)
        instance.erase("uuid");
    EXPECT_EQ(instances[0], json::parse(R"({"name":"Shed 1","class":"ModelObject","layer":"Garden",
        "component":"Shed","attachedTo":"","visible":true,"translation":[10.0,0.0,-2.5],
        "materials":["Painted plank"]})"));
    EXPECT_EQ(instances[1], json::parse(R"({"name":"Chair 1","class":"ZelObject","layer":"",
        "externalDefinition":"chair.zob","url":"","attachedTo":"Shed 1","visible":true,
        "translation":[0.0,0.0,0.0],"materials":[]})"));
}

TEST_F(ToolShow, LayersHaveTheActiveOneAndTheDefaults)
{
    EXPECT_EQ(only("layers"), json::parse(R"({"name":"Garden"})"));
    EXPECT_EQ(shown()["layerInfo"],
              json::parse(R"({"active":"Garden","defaults":{"3DPlant":"","ZelObject":"",
                  "Billboard":"Garden","LightObject":"","AnimatedObject":""}})"));
    EXPECT_THAT(text(), HasSubstr("\n  layerInfo: active=Garden\n"
                                  "    defaults: Billboard=Garden\n"));
}

TEST_F(ToolShow, BillboardsGroundsAndEnvironmentsAreShown)
{
    IZelBBMgrData& billboard = *mDocument.more().getBillboards()->newZelObject(-1);
    billboard.getTexture()->setURL("oak.png");
    billboard.getBillboard()->getNames()->newZelObject(-1)->setText("Oak");
    billboard.getQuads()->newZelObject(-1);
    mScene.ground.setHeight(-2.0);
    mScene.environment.setName("Spring");
    mScene.environment.getBackgroundPicture()->setURL("sky.jpg");

    EXPECT_EQ(shown()["billboards"],
              json::parse(R"([{"names":["Oak"],"kind":"uniface","faces":0,"triangles":1,
                  "url":"oak.png","width":0.0,"height":0.0}])"));
    const json ground = only("grounds");
    EXPECT_EQ(ground["name"], "Meadow");
    EXPECT_EQ(ground["height"], -2.0);
    EXPECT_EQ(ground["material"]["nodes"][0]["diffuse"], "#808080");
    const json environment = only("environments");
    EXPECT_EQ(environment["name"], "Spring");
    EXPECT_EQ(environment["background"], "sky.jpg");
}

TEST_F(ToolShow, ViewsNameWhatTheyUse)
{
    mScene.camera.setPosition({1.0, 2.0, 3.0});
    mScene.environment.setName("Spring");
    EXPECT_EQ(only("cameras"), json::parse(R"({"name":"Street","position":[1.0,2.0,3.0],
        "target":[50.0,50.0,50.0],"focal":50.0,"heliodon":"Noon","environment":"Spring",
        "ground":"Meadow","lightsGroups":["Lamps"],"layers":["Garden"]})"));
}

TEST_F(ToolShow, EachKindOfViewIsShown)
{
    addNamed(*mDocument->getParallelViews(), "Plan").setSize(12.5);
    addNamed(*mDocument->getViewObjects(), "Turn").setRadius(7.0);
    addNamed(*mDocument.more().getWorkingViews(), "Front").setType(0);
    const json outline = shown();
    EXPECT_EQ(outline["parallelViews"][0]["type"], "plan");
    EXPECT_EQ(outline["parallelViews"][0]["size"], 12.5);
    EXPECT_EQ(outline["viewObjects"][0]["name"], "Turn");
    EXPECT_EQ(outline["viewObjects"][0]["radius"], 7.0);
    EXPECT_EQ(outline["workingViews"][0]["type"], "front");
    EXPECT_EQ(outline["workingViews"][0]["name"], "Front");
}

TEST_F(ToolShow, TextsOfTheFileStayInTheirLine)
{
    mScene.light.getBasicData()->setName("a\nb\x1B");
    EXPECT_THAT(text(), HasSubstr(" name=a?b? type=spot "));
    EXPECT_THAT(text(), Not(HasSubstr("\x1B")));
}

} // namespace

#endif
