#ifdef ZEL_TOOL // without the tool there is nothing to test

#include "tests/support/CClientDocument.h"
#include "tests/support/soundScene.h"
#include "tests/toolRun.h"

#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <sstream>

// What `zel check` finds in a scene: each finding in a scene that is sound but for one thing.

namespace {

using namespace OvZel;
using nlohmann::json;
using testing::HasSubstr;
using testing::IsEmpty;
using ZelTest::addMaterial;
using ZelTest::addNamed;
using ZelTest::CSoundScene;

const CZelUUID kUnknown("00112233445566778899AABBCCDDEEFF");

/// A document that is to be looked at.
struct CScene {
    ZelTest::CClientDocument document;
    CSoundScene sound{*document.get()};
    CTempFolder folder;

    std::string file()
    {
        EXPECT_TRUE(document.write());
        EXPECT_THAT(document.takeMessages(), IsEmpty());
        return folder.put("in.zel", document.written);
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

void appendNode(ITCENode& parent, IZelTCE& tree, eNodeType type,
                const std::function<void(ITCENode&)>& fill)
{
    ITCENode* node = tree.createNode(type);
    node->setParent(&parent);
    fill(*node);
    parent.addChild(node);
    node->Release();
}

/// Puts a node with two images ahead of the leaf of the scene's material.
void useImages(CScene& scene, const char* second)
{
    IZelTCE& tree = *scene.sound.material.getTCE();
    ITCENode& root = *tree.getRootNode();
    ITCENode* below = root.getChild(0);
    below->AddRef();
    root.removeChild(0);
    appendNode(root, tree, eMultiTextureNode, [&](ITCENode& node) {
        for (const char* url : {"one.jpg", second})
            node.asMultiTextureNode()->getSubParts()->newZelObject(-1)->setURL(1, url);
        node.addChild(below);
        below->setParent(&node);
    });
    below->Release();
}

void useCustomNodeAlone(CScene& scene)
{
    IZelTCE& tree = *addMaterial(*scene.document->getProperties(), "Cut").getTCE();
    tree.getRootNode()->removeChild(0);
    appendNode(*tree.getRootNode(), tree, eCustomNode, [](ITCENode&) {});
}

void setCorners(CScene& scene, std::initializer_list<int> points)
{
    TZelObjectMgr<CZelVertex>& vertices =
        *scene.sound.definition.getPolygons()->getZelObject(0)->getVertices();
    vertices.removeAllObjects();
    for (const int point : points)
        vertices.newZelObject(-1)->pointIndex = point;
}

TEST(ToolFindings, ASoundSceneHasNone)
{
    CScene scene;
    const CRun run = runTool({"check", scene.file()});
    EXPECT_EQ(run.code, 0);
    EXPECT_THAT(run.output, IsEmpty());
    EXPECT_THAT(run.messages, IsEmpty());
}

TEST(ToolFindings, WhatIsOddButAllowedIsNone)
{
    const struct {
        const char* what;
        std::function<void(CScene&)> change;
    } cases[] = {
        {"all images have addresses", [](CScene& s) { useImages(s, "two.jpg"); }},
        {"two unnamed materials",
         [](CScene& s) {
             addMaterial(*s.document->getProperties(), "");
             addMaterial(*s.document->getProperties(), "");
         }},
        {"one name in two lists",
         [](CScene& s) { addMaterial(*s.sound.definition.getProperties(), "Oak"); }},
        {"a cone of 0 that is no spot",
         [](CScene& s) {
             s.sound.light.setType(0);
             s.sound.light.setConeAngle(0.0);
         }},
        {"no heliodon", [](CScene& s) { s.sound.camera.getViewInfo()->setHeliodonName(""); }},
        {"no layer", [](CScene& s) { s.sound.shed.setLayerId(CZelUUID()); }},
        {"no ground", [](CScene& s) { s.sound.camera.getViewInfo()->setGround(CZelUUID()); }},
    };
    for (const auto& [what, change] : cases) {
        CScene scene;
        change(scene);
        EXPECT_THAT(scene.findings(), IsEmpty()) << what;
    }
}

TEST(ToolFindings, EachHasItsCode)
{
    const struct {
        std::vector<std::pair<const char*, const char*>> expected; // code, part of the text
        std::function<void(CScene&)> change;
    } cases[] = {
        {{{"W109", "the document: material 0 \"Oak\" has nodes with maps without an address: 1"}},
         [](CScene& s) { s.sound.material.setDiffuseMapUrl(""); }},
        {{{"W109", "without an address: 1"}}, [](CScene& s) { useImages(s, ""); }},
        {{{"W110", "materials beyond the 1 of the owner: 1, the first in polygon 0"}},
         [](CScene& s) { s.sound.definition.getPolygons()->getZelObject(0)->setMaterial(1); }},
        {{{"W110", "materials beyond the 1 of the owner: 1, the first in polygon 0"}},
         [](CScene& s) { s.sound.definition.getPolygons()->getZelObject(0)->setMaterial(-1); }},
        {{{"W111", "the document: more than one material has the name \"Oak\""}},
         [](CScene& s) {
             for (int i = 0; i < 2; ++i)
                 addMaterial(*s.document->getProperties(), "Oak");
         }},
        {{{"W111", "the scene's definition: more than one material has the name \"Oak\""}},
         [](CScene& s) {
             for (int i = 0; i < 2; ++i)
                 addMaterial(*s.document->getObjectDefinition()->getProperties(), "Oak");
         }},
        {{{"W111", ": more than one material has the name \"Painted plank\""}},
         [](CScene& s) {
             addMaterial(*s.sound.shed.asInternalComponentInstance()->getProperties(),
                         "Painted plank");
         }},
        {{{"W109", "material 0 \"Grass\" has nodes with maps without an address: 1"}},
         [](CScene& s) {
             IZelProperty& property = *s.sound.ground.getProperty();
             property.getBasicData()->setName("Grass");
             property.setDiffuseMapUrl("");
         }},
        {{{"W112", "more than one material has the identifier "}},
         [](CScene& s) {
             addMaterial(*s.document->getProperties(), "Ash")
                 .getBasicData()
                 ->setId(s.sound.material.getBasicData()->getId());
         }},
        {{{"W113", "material 1 \"Cut\" has a branch that does not end in a leaf"}},
         useCustomNodeAlone},
        {{{"W114", "\"Porch\" is of the group 00112233445566778899AABBCCDDEEFF"}},
         [](CScene& s) { *s.sound.light.getLightsGroups()->newZelObject(-1) = kUnknown; }},
        {{{"W114", "\"Bulb\" is of the group 00112233445566778899AABBCCDDEEFF"}},
         [](CScene& s) {
             IZelLight& bulb = addNamed(*s.sound.chair.asZelObjectInstance()->getLights(), "Bulb");
             *bulb.getLightsGroups()->newZelObject(-1) = kUnknown;
         }},
        {{{"W115", "\"Porch\" is a spot with a cone of 0"}},
         [](CScene& s) { s.sound.light.setConeAngle(0.0); }},
        {{{"W116", "more than one heliodon has the name \"Noon\""}},
         [](CScene& s) { addNamed(*s.document->getHeliodons(), "Noon"); }},
        {{{"W117", "\"Shed 1\" places the component 00112233445566778899AABBCCDDEEFF"},
          {"W121", "no instance places the definition "}},
         [](CScene& s) { s.sound.shed.asInternalComponentInstance()->setComponentUUID(kUnknown); }},
        {{{"W118", "\"Chair 1\" places the external definition 00112233445566778899AABBCCDDEEFF"},
          {"W121", "no instance places the external definition "}},
         [](CScene& s) { s.sound.chair.asZelObjectInstance()->setExternalDefinitionId(kUnknown); }},
        {{{"W119", "\"Shed 1\" is on the layer 00112233445566778899AABBCCDDEEFF"}},
         [](CScene& s) { s.sound.shed.setLayerId(kUnknown); }},
        {{{"W120", "\"Chair 1\" is attached to the object 00112233445566778899AABBCCDDEEFF"}},
         [](CScene& s) { s.sound.chair.setAttachId(kUnknown); }},
        {{{"W122", "a corner twice in a row: 1, the first in polygon 0"}},
         [](CScene& s) {
             *s.sound.definition.getPoints()->getZelObject(2) = {8.0, 0.0, 0.0};
         }},
        {{{"W122", ": 1, the first in polygon 0"}},
         [](CScene& s) {
             setCorners(s, {0, 1, 1, 2});
         }},
        {{{"W122", ": 1, the first in polygon 0"}},
         [](CScene& s) {
             setCorners(s, {0, 1, 2, 0});
         }},
        {{{"W123", "\"Street\" has the heliodon \"Evening\""}},
         [](CScene& s) { s.sound.camera.getViewInfo()->setHeliodonName("Evening"); }},
        {{{"W124", "\"Street\" has the environment 00112233445566778899AABBCCDDEEFF"}},
         [](CScene& s) { s.sound.camera.getViewInfo()->setEnvironment(kUnknown); }},
        {{{"W125", "\"Street\" has the ground 00112233445566778899AABBCCDDEEFF"}},
         [](CScene& s) { s.sound.camera.getViewInfo()->setGround(kUnknown); }},
        {{{"W126", "\"Street\" has the light group 00112233445566778899AABBCCDDEEFF"}},
         [](CScene& s) {
             *s.sound.camera.getViewInfo()->getLightsGroups()->newZelObject(-1) = kUnknown;
         }},
        {{{"W127", "\"Street\" has the layer 00112233445566778899AABBCCDDEEFF"}},
         [](CScene& s) {
             *s.sound.camera.getViewInfo()->getLayers()->newZelObject(-1) = kUnknown;
         }},
        {{{"W123", "\"Plan\" has the heliodon \"Heliodon\""}},
         [](CScene& s) { addNamed(*s.document->getParallelViews(), "Plan"); }},
        {{{"W123", "\"Turn\" has the heliodon \"Heliodon\""}},
         [](CScene& s) { addNamed(*s.document->getViewObjects(), "Turn"); }},
        {{{"W123", "\"Window\" has the heliodon \"Heliodon\""}},
         [](CScene& s) { addNamed(*s.document.more().getWorkingViews(), "Window"); }},
    };
    for (const auto& [expected, change] : cases) {
        CScene scene;
        change(scene);
        const std::vector<json> found = scene.findings();
        ASSERT_EQ(found.size(), expected.size()) << expected[0].second << json(found);
        for (std::size_t i = 0; i < found.size(); ++i) {
            EXPECT_EQ(found[i]["code"], expected[i].first) << found[i];
            EXPECT_THAT(found[i]["text"].get<std::string>(), HasSubstr(expected[i].second));
        }
    }
}

TEST(ToolFindings, ALargeBrokenMeshTakesALine)
{
    CScene scene;
    TZelObjectMgr<IZelPolygon>& polygons = *scene.sound.definition.getPolygons();
    for (int i = 0; i < 100; ++i) {
        IZelPolygon& polygon = *polygons.newZelObject(-1);
        polygon.setMaterial(7);
        for (const int point : {1, 2, 1})
            polygon.getVertices()->newZelObject(-1)->pointIndex = point;
    }
    const std::vector<json> found = scene.findings();
    ASSERT_EQ(found.size(), 2u) << json(found);
    EXPECT_THAT(found[0]["text"].get<std::string>(), HasSubstr(": 100, the first in polygon 1"));
    EXPECT_THAT(found[1]["text"].get<std::string>(), HasSubstr(": 100, the first in polygon 1"));
}

} // namespace

#endif
