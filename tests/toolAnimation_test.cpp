#ifdef ZEL_TOOL // without the tool there is nothing to test

#include "tests/support/CClientDocument.h"
#include "tests/support/soundScene.h"
#include "tests/toolRun.h"

#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <sstream>

// What `zel show` tells of panoramas and animations, and what `zel check` finds in them.

namespace {

using namespace OvZel;
using nlohmann::json;
using testing::HasSubstr;
using testing::IsEmpty;
using ZelTest::addNamed;
using ZelTest::CSoundScene;

const CZelUUID kUnknown("00112233445566778899AABBCCDDEEFF");
constexpr const char* kPath = "11111111111111111111111111111111";

const CZelUUID& idOf(IZelBasic& object)
{
    return *object.getBasicData()->getId();
}

/// A scene with one of each kind that moves: whatever one of them names is there.
struct CScene {
    ZelTest::CClientDocument document;
    CSoundScene sound{*document.get()};
    IZel3DPath& path = *document->get3DPaths()->newZelObject(-1);
    IZelPanoramaV2& panorama = addNamed(*document->getPanoramas(), "Tour");
    IZelAnimation& animation = *document.more().getAnimations()->newZelObject(-1);
    IZelScenario& scenario = *document->getScenarios()->newZelObject(-1);
    IZelSequence& sequence = addNamed(*scenario.getSequences(), "Shot");
    IZelAnimatedElement& element = *scenario.getAnimatedElements()->newZelObject(-1);
    CTempFolder folder;

    CScene()
    {
        const CZelUUID id(kPath);
        path.getBasicData()->setId(&id);
        path.setClosed(true);
        path.getBezierPoints()->newZelObject(-1);
        sequence.getViewInfo()->setHeliodonName("Noon");
        panorama.getViewInfo()->setHeliodonName("Noon");
        fillPanorama();
        fillAnimation();
        fillScenario();
    }

    void fillPanorama()
    {
        IZelPanoNodeV2& hall = addNamed(*panorama.getNodes(), "Hall");
        IZelPanoNodeV2& yard = addNamed(*panorama.getNodes(), "Yard");
        yard.setPosition({1.0, 2.0, 3.0});
        panorama.setStartNode(idOf(hall));
        panorama.setCurrentNode(idOf(yard));
        IZelPanoLinkV2& link = *panorama.getLinks()->newZelObject(-1);
        link.setStart(idOf(hall));
        link.setEnd(idOf(yard));
        link.setPathId(idOf(path));
    }

    void fillAnimation()
    {
        animation.setName("Flight");
        IZelCameraPath& flight = *animation.getPaths()->newZelObject(-1);
        flight.setName("Round");
        flight.getViewInfo()->setHeliodonName("Noon");
        *flight.getPoints()->newZelObject(-1) = {1.0, 0.0, 0.0};
        *flight.getPoints()->newZelObject(-1) = {2.0, 0.0, 0.0};
        flight.getKeys()->newZelObject(-1);
    }

    void fillScenario()
    {
        scenario.setName("Walk");
        sequence.setEndFrame(500); // the last one that the scenario has
        element.setElementType(2);
        element.setId(idOf(sound.light));
        addChannel(61).setPathId(idOf(path));
        IZelSnd& sound1 = *scenario.getSnds()->newZelObject(-1);
        sound1.setId(kUnknown);
        sound1.setURL("birds.ogg");
        sound1.setStartFrame(12);
        for (const int time : {10, 250})
            scenario.getTimeGuides()->newZelObject(-1)->setTime(time);
    }

    IZelInterpolatedValue& addChannel(std::int32_t channel)
    {
        IZelInterpolatedValue& value = *element.getInterpolatedValues()->newZelObject(-1);
        value.setChannel(channel);
        return value;
    }

    std::string file()
    {
        EXPECT_TRUE(document.write());
        EXPECT_THAT(document.takeMessages(), IsEmpty());
        return folder.put("in.zel", document.written);
    }

    json shown() { return json::parse(runTool({"show", "--json", file()}).output); }
    /// The only element of a list, without its identifier, which is random.
    json only(const char* list)
    {
        json elements = shown()[list];
        EXPECT_EQ(elements.size(), 1u) << list;
        elements[0].erase("uuid");
        return elements[0];
    }

    std::vector<json> findings()
    {
        std::istringstream lines(runTool({"check", "--json", file()}).output);
        std::vector<json> found;
        for (std::string line; std::getline(lines, line);)
            found.push_back(json::parse(line));
        return found;
    }
};

TEST(ToolAnimation, APanoramaHasItsNodesAndLinks)
{
    CScene scene;
    json panorama = scene.only("panoramas");
    for (json& node : panorama["nodes"])
        node.erase("uuid");
    EXPECT_EQ(panorama, json::parse(R"({"name":"Tour","startNode":"Hall","currentNode":"Yard",
        "direction":[0.0,0.0,1.0],"focal":50.0,
        "nodes":[{"name":"Hall","position":[0.0,0.0,0.0],"direction":[0.0,0.0,1.0]},
                 {"name":"Yard","position":[1.0,2.0,3.0],"direction":[0.0,0.0,1.0]}],
        "links":[{"start":"Hall","end":"Yard","path":"11111111111111111111111111111111"}],
        "heliodon":"Noon","environment":"","ground":"","lightsGroups":[],"layers":[]})"));
    EXPECT_THAT(runTool({"show", scene.file()}).output,
                HasSubstr("\n      links:\n        start=Hall end=Yard path="));
}

TEST(ToolAnimation, AnAnimationHasItsCameraPaths)
{
    CScene scene;
    EXPECT_EQ(scene.only("animations"), json::parse(R"({"name":"Flight","currentPath":0,
        "paths":[{"name":"Round","active":true,"duration":4.0,"images":0,"closed":true,
                  "points":2,"keys":1,"heliodon":"Noon","environment":"","ground":"",
                  "lightsGroups":[],"layers":[]}]})"));
    EXPECT_EQ(scene.shown()["3DPaths"],
              json::parse(R"([{"uuid":"11111111111111111111111111111111","closed":true,
                  "points":1}])"));
}

TEST(ToolAnimation, AScenarioHasWhatStandsOnItsTimeLine)
{
    CScene scene;
    scene.addChannel(38).getKeyFrames()->newZelObject(-1);
    json scenario = scene.only("scenarios");
    scenario["sequences"][0].erase("uuid");
    scenario["elements"][0].erase("uuid");
    EXPECT_EQ(scenario, json::parse(R"({"name":"Walk","length":500,"framesPerSecond":25,
        "currentFrame":0,"currentSequence":0,"guides":[10,250],
        "sequences":[{"name":"Shot","start":0,"end":500,"position":[50.0,50.0,-60.0],
            "target":[50.0,50.0,50.0],"targetType":"point","targetObject":"","focal":50.0,
            "heliodon":"Noon","environment":"","ground":"","lightsGroups":[],"layers":[]}],
        "elements":[{"type":"light","name":"Porch","channels":[
            {"channel":"Light.Power","keyFrames":0,"loop":false,"loops":0,
             "path":"11111111111111111111111111111111"},
            {"channel":"Object.Position","keyFrames":1,"loop":false,"loops":0,"path":""}]}],
        "sounds":[{"uuid":"00112233445566778899AABBCCDDEEFF","url":"birds.ogg","start":12}]})"));
    EXPECT_THAT(runTool({"show", scene.file()}).output,
                HasSubstr(" type=light name=Porch\n          channels:\n"
                          "            channel=Light.Power keyFrames=0 loop=false loops=0 path="));
}

TEST(ToolAnimation, EveryChannelHasItsName)
{
    CScene scene;
    for (std::int32_t channel = 1; channel <= 279; ++channel)
        scene.addChannel(channel);
    const json channels = scene.only("scenarios")["elements"][0]["channels"];
    ASSERT_EQ(channels.size(), 280u);
    for (const json& channel : channels)
        EXPECT_THAT(channel["channel"].get<std::string>()[0],
                    testing::AllOf(testing::Ge('A'), testing::Le('Z')));
    EXPECT_EQ(channels[1]["channel"], "Camera.Position");
    EXPECT_EQ(channels[189]["channel"], "WangTilesNode.YRefAxis");
    EXPECT_EQ(channels[279]["channel"], "Heliodon.Skylight.Saturation");
}

TEST(ToolAnimation, ASequenceNamesTheObjectAtWhichItAims)
{
    CScene scene;
    scene.sequence.setTargetType(3);
    scene.sequence.setObjectId(idOf(scene.sound.chair));
    const json sequence = scene.only("scenarios")["sequences"][0];
    EXPECT_EQ(sequence["targetType"], "object");
    EXPECT_EQ(sequence["targetObject"], "Chair 1");
}

TEST(ToolAnimation, ASoundSceneHasNoFindings)
{
    CScene scene;
    const CRun run = runTool({"check", scene.file()});
    EXPECT_EQ(run.code, 0);
    EXPECT_THAT(run.output, IsEmpty());
    EXPECT_THAT(run.messages, IsEmpty());
}

TEST(ToolAnimation, EachKindOfAnimatedObjectIsLookedFor)
{
    using CId = std::function<CZelUUID(CScene&)>;
    const struct {
        std::int32_t kind;
        const char* word;
        CId id;
    } cases[] = {
        {1, "sequence", [](CScene& s) { return idOf(s.sequence); }},
        {2, "light", [](CScene& s) { return idOf(s.sound.light); }},
        {2, "light",
         [](CScene& s) {
             return idOf(*s.sound.chair.asZelObjectInstance()->getLights()->newZelObject(-1));
         }},
        {3, "heliodon", [](CScene& s) { return idOf(s.sound.heliodon); }},
        {4, "object", [](CScene& s) { return idOf(s.sound.shed); }},
        {5, "property", [](CScene& s) { return idOf(s.sound.material); }},
        {5, "property",
         [](CScene& s) { return idOf(*s.sound.definition.getProperties()->getZelObject(0)); }},
        {6, "mapping node",
         [](CScene& s) { return s.sound.material.getMappingNode(0)->getMappingNodeId(); }},
    };
    for (const auto& [kind, word, id] : cases) {
        CScene scene;
        scene.element.setElementType(kind);
        scene.element.setId(id(scene));
        EXPECT_THAT(scene.findings(), IsEmpty()) << word;
        EXPECT_EQ(scene.only("scenarios")["elements"][0]["type"], word);

        const CZelUUID& ofAnother = kind == 4 ? idOf(scene.sound.light) : idOf(scene.sound.chair);
        for (const CZelUUID& wrong : {kUnknown, CZelUUID(), ofAnother}) {
            scene.element.setId(wrong);
            const std::vector<json> found = scene.findings();
            ASSERT_EQ(found.size(), 1u) << json(found);
            EXPECT_EQ(found[0]["code"], "W128") << word;
            EXPECT_THAT(found[0]["text"].get<std::string>(),
                        HasSubstr("scenario 0 \"Walk\" animates the " + std::string(word) + " "));
        }
    }
}

TEST(ToolAnimation, EachFindingHasItsCode)
{
    const struct {
        const char* code;
        const char* text; // a part of it
        std::function<void(CScene&)> change;
    } cases[] = {
        {"W129", "\"Walk\": channel 1 of the light ",
         [](CScene& s) { s.addChannel(62).setPathId(kUnknown); }},
        {"W129", " runs along the 3D path 00112233445566778899AABBCCDDEEFF, which isn't there",
         [](CScene& s) { s.addChannel(62).setPathId(kUnknown); }},
        {"W130", "\"Shot\" ends at frame 501, behind the maximum time 500",
         [](CScene& s) { s.sequence.setEndFrame(501); }},
        {"W130", "\"Shot\" ends at frame 500, behind the maximum time 499",
         [](CScene& s) { s.scenario.setMaxTime(499); }},
        {"W131", "\"Tour\" starts at the node 00112233445566778899AABBCCDDEEFF",
         [](CScene& s) { s.panorama.setStartNode(kUnknown); }},
        {"W132", "\"Tour\" has the current node 00112233445566778899AABBCCDDEEFF",
         [](CScene& s) { s.panorama.setCurrentNode(kUnknown); }},
        {"W133", "\"Tour\": link 0 runs along the 3D path 00112233445566778899AABBCCDDEEFF",
         [](CScene& s) { s.panorama.getLinks()->getZelObject(0)->setPathId(kUnknown); }},
        {"W123", "\"Tour\" has the heliodon \"Evening\"",
         [](CScene& s) { s.panorama.getViewInfo()->setHeliodonName("Evening"); }},
        {"W125", "\"Shot\" has the ground 00112233445566778899AABBCCDDEEFF",
         [](CScene& s) { s.sequence.getViewInfo()->setGround(kUnknown); }},
        {"W127", "\"Round\" has the layer 00112233445566778899AABBCCDDEEFF",
         [](CScene& s) {
             *s.animation.getPaths()->getZelObject(0)->getViewInfo()->getLayers()->newZelObject(
                 -1) = kUnknown;
         }},
    };
    for (const auto& [code, text, change] : cases) {
        CScene scene;
        change(scene);
        const std::vector<json> found = scene.findings();
        ASSERT_EQ(found.size(), 1u) << text << json(found);
        EXPECT_EQ(found[0]["code"], code) << found[0];
        EXPECT_THAT(found[0]["text"].get<std::string>(), HasSubstr(text));
    }
}

TEST(ToolAnimation, WhatNamesNothingIsNoFinding)
{
    CScene scene;
    scene.panorama.setStartNode(CZelUUID());
    scene.panorama.setCurrentNode(CZelUUID());
    scene.panorama.getLinks()->getZelObject(0)->setPathId(CZelUUID());
    scene.element.getInterpolatedValues()->getZelObject(0)->setPathId(CZelUUID());
    EXPECT_THAT(scene.findings(), IsEmpty());
}

} // namespace

#endif
