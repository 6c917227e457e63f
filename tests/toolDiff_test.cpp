#ifdef ZEL_TOOL // without the tool there is nothing to test

#include "tests/support/CClientDocument.h"
#include "tests/support/soundScene.h"
#include "tests/toolRun.h"

#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace {

using namespace OvZel;
using nlohmann::json;
using testing::HasSubstr;
using testing::IsEmpty;
using ZelTest::addNamed;

/// A scene that is saved, changed and saved again.
struct CChange {
    explicit CChange(const std::function<void(ZelTest::CSoundScene&, IZelMgr&)>& change)
    {
        EXPECT_TRUE(document.write());
        before = folder.put("before.zel", document.written);
        change(scene, *document.get());
        EXPECT_TRUE(document.write());
        after = folder.put("after.zel", document.written);
    }

    CRun diff(std::vector<std::string> options = {}) const
    {
        options.insert(options.begin(), "diff");
        options.push_back(before);
        options.push_back(after);
        return runTool(std::move(options));
    }

    ZelTest::CClientDocument document;
    ZelTest::CSoundScene scene{*document.get()};
    CTempFolder folder;
    std::string before;
    std::string after;
};

void expectSame(const std::string& a, const std::string& b)
{
    const CRun run = runTool({"diff", a, b});
    EXPECT_EQ(run.code, 0) << a;
    EXPECT_EQ(run.output, "") << a;
}

// That of an early version has nodes without identifiers, which each load makes up anew.
TEST(ToolDiff, ADocumentIsTheSameAsItselfAndAsWhatIsSavedOfIt)
{
    const CTempFolder folder;
    for (const char* name : {"house.zel", "legacy.zel", "minimal.zel"}) {
        expectSame(sample(name), sample(name));
        const std::string saved = folder.file(name);
        ASSERT_EQ(runTool({"rewrite", sample(name), saved}).code, 0);
        expectSame(sample(name), saved);
        expectSame(saved, sample(name));
    }
    const CChange nothing([](auto&, auto&) {});
    expectSame(nothing.before, nothing.after);
}

struct CCase {
    std::function<void(ZelTest::CSoundScene&)> change;
    const char* told; ///< what stands behind "zel diff"
};

void expectTold(const std::vector<CCase>& cases)
{
    for (const auto& [change, told] : cases) {
        const CChange changed([&change = change](auto& scene, auto&) { change(scene); });
        const CRun run = changed.diff();
        EXPECT_EQ(run.output, told);
        EXPECT_EQ(run.code, 1) << told;
        EXPECT_THAT(run.messages, IsEmpty());
        expectSame(changed.after, changed.after);
    }
}

TEST(ToolDiff, TellsOneFieldWithItsPath)
{
    using C = ZelTest::CSoundScene;
    expectTold({
        {[](C& scene) { scene.light.setPower(2500.5); },
         "changed lights[Porch]/Power: \"1200.000000\" -> \"2500.500000\"\n"},
        {[](C& scene) { scene.light.getBasicData()->setName("Yard"); },
         "changed lights[Porch]/Name/@en: \"Porch\" -> \"Yard\"\n"},
        {[](C& scene) {
             scene.light.setPosition({1.0, 2.0, 4.5});
         },
         "changed lights[Porch]/Position/@Z: \"3.500000\" -> \"4.500000\"\n"},
        {[](C& scene) { scene.light.setRadiosity(false); },
         "removed lights[Porch]/Radiosity: \"\" -> none\n"},
        {[](C& scene) { scene.material.setDiffuseMapUrl("ash.jpg"); },
         "changed properties[Oak]/Node/Maps/URL: \"oak.jpg\" -> \"ash.jpg\"\n"},
        {[](C& scene) { scene.material.setDiffuseColor(CZelColor::rgb(17, 32, 255)); },
         "changed properties[Oak]/Node/Node/Diffuse/@R: \"16\" -> \"17\"\n"},
        {[](C& scene) {
             scene.shed.setTranslation({10.0, 1.0, -2.5});
         },
         "changed objectInstances[Shed 1]/Translation/@Y: \"0.000000\" -> \"1.000000\"\n"},
        {[](C& scene) {
             scene.shed.asInternalComponentInstance()
                 ->getProperties()
                 ->getZelObject(0)
                 ->setDiffuseColor(CZelColor::rgb(1, 32, 255));
         },
         "changed objectInstances[Shed 1]/Instance.Data/Properties/Property/Node/Diffuse/@R: "
         "\"16\" -> \"1\"\n"},
        {[](C& scene) { addNamed(*scene.definition.getProperties(), "Nail"); },
         "added definitions[Shed]/Object.Definition/Properties/Property[Nail]: none -> \"Nail\"\n"},
        {[](C& scene) { scene.definition.setGeometryLevel(2); },
         "changed definitions[Shed]/Geometry.Level: \"0\" -> \"2\"\n"},
        {[](C& scene) { scene.camera.getViewInfo()->getLayers()->removeAllObjects(); },
         "removed cameras[Street]/View.Info/Layers: \"\" -> none\n"},
        // Once, although the camera's part of the file holds it too.
        {[](C& scene) { scene.environment.setName("Evening"); },
         "changed environments[Environment 1]/Name/@en: \"Environment 1\" -> \"Evening\"\n"},
    });
}

TEST(ToolDiff, TellsCountsBoundsAndFirstDifferenceOfMeshes)
{
    using C = ZelTest::CSoundScene;
    expectTold({
        {[](C& scene) { scene.definition.getPoints()->getZelObject(1)->x = 5.0; },
         "changed definitions[Shed]/Mesh/@Maximum: \"4 3 0\" -> \"5 3 0\"\n"
         "changed definitions[Shed]/Mesh/Point[#1]: \"4 0 0\" -> \"5 0 0\"\n"},
        {[](C& scene) {
             *scene.definition.getPoints()->newZelObject(-1) = {1.0, 1.0, -2.0};
         },
         "changed definitions[Shed]/Mesh/@Points: \"3\" -> \"4\"\n"
         "changed definitions[Shed]/Mesh/@Minimum: \"0 0 0\" -> \"0 0 -2\"\n"},
        {[](C& scene) { scene.definition.getPolygons()->getZelObject(0)->setMaterial(3); },
         "changed definitions[Shed]/Mesh/Polygon[#0]/@Material: \"0\" -> \"3\"\n"},
        {[](C& scene) { scene.definition.getPolygons()->getZelObject(0)->setSmooth(true); },
         "changed definitions[Shed]/Mesh/Polygon[#0]/@Smooth: \"0\" -> \"1\"\n"},
        {[](C& scene) {
             auto* vertices = scene.definition.getPolygons()->getZelObject(0)->getVertices();
             vertices->getZelObject(2)->pointIndex = 1;
         },
         "changed definitions[Shed]/Mesh/Polygon[#0]/Corner[#2]/@Point: \"2\" -> \"1\"\n"},
        {[](C& scene) {
             auto* vertices = scene.definition.getPolygons()->getZelObject(0)->getVertices();
             vertices->removeObject(2);
         },
         "changed definitions[Shed]/Mesh/Polygon[#0]/@Corners: \"3\" -> \"2\"\n"},
        {[](C& scene) { scene.definition.getPolygons()->removeObject(0); },
         "changed definitions[Shed]/Mesh/@Polygons: \"1\" -> \"0\"\n"},
        {[](C& scene) {
             auto* hole = scene.definition.getPolygons()->getZelObject(0)->getHoles();
             hole->newZelObject(-1)->getVertices()->newZelObject(-1);
         },
         "changed definitions[Shed]/Mesh/Polygon[#0]/@Holes: \"0\" -> \"1\"\n"},
    });
}

TEST(ToolDiff, TellsOfWhatTheDocumentHasOnce)
{
    const CChange change([](auto&, IZelMgr& document) {
        const std::uint8_t pixel[4] = {1, 2, 3, 4};
        document.setApplication("Other", "1");
        document.setComment("new", 0);
        document.getObjectDefinition()->setInitialAngle(0.5);
        document.getLayerInfo()->setDefaultLayer("ZelObject",
                                                 CZelUUID("00000000000000000000000000000001"));
        document.getMgrEx(eVersionZel)->getRenderParameters()->entries[3].value = 2.5;
        document.getImages()->newZelObject(-1)->setImage(1, 1, pixel);
    });
    EXPECT_EQ(change.diff().output,
              "added images[#0]\n"
              "changed document[#0]/@Application: \"\" -> \"Other\"\n"
              "changed document[#0]/@Application.Version: \"\" -> \"1\"\n"
              "added document[#0]/Comment: none -> \"new\"\n"
              "changed scene[#0]/Object.Definition/Initial.Angle: \"0.000000\" -> \"0.500000\"\n"
              "changed layerInfo[#0]/Default.Layer.Map/@ZelObject: "
              "\"00000000000000000000000000000000\" -> \"00000000000000000000000000000001\"\n"
              "changed renderParameters[#0]/Entry[#3]/@Value: \"0\" -> \"2.5\"\n");
}

TEST(ToolDiff, TellsWhatWasAddedRemovedAndMoved)
{
    const CChange change([](ZelTest::CSoundScene&, IZelMgr& document) {
        addNamed(*document.getCameras(), "Yard");
        document.getLights()->removeObject(0);
    });
    EXPECT_EQ(change.diff().output, "removed lights[Porch]\nadded cameras[Yard]\n");

    // Of five layers one goes to the front: the four behind it have not moved against each other.
    const CTempFolder folder;
    ZelTest::CClientDocument document;
    for (const char* name : {"A", "B", "C", "D", "E"})
        addNamed(*document->getLayers(), name);
    const std::string before = folder.put("before.zel", document.save());
    document->getLayers()->moveObject(3, 0);
    const std::string after = folder.put("after.zel", document.save());
    EXPECT_EQ(runTool({"diff", before, after}).output, "moved layers[D]: \"3\" -> \"0\"\n");
}

// A new identifier does not make it another object, but two of one name are told apart by it.
TEST(ToolDiff, PairsByIdentifierElseByName)
{
    const CZelUUID first("00000000000000000000000000000001");
    const CZelUUID second("00000000000000000000000000000002");
    const CTempFolder folder;
    ZelTest::CClientDocument document;
    for (const CZelUUID& id : {first, second})
        addNamed(*document->getLayers(), "Trees").getBasicData()->setId(&id);
    const std::string before = folder.put("before.zel", document.save());
    document->getLayers()->removeObject(0);
    const std::string fewer = folder.put("fewer.zel", document.save());
    const CRun removed = runTool({"diff", "--json", before, fewer});
    const json told = json::parse(removed.output)["differences"];
    ASSERT_EQ(told.size(), 1u);
    EXPECT_EQ(told[0], json::parse(R"({"kind": "removed", "list": "layers", "name": "Trees",
        "uuid": "00000000000000000000000000000001", "index": 0, "path": "", "a": null, "b": null})"));

    document->getLayers()->getZelObject(0)->getBasicData()->setId(&first);
    const std::string other = folder.put("other.zel", document.save());
    EXPECT_EQ(runTool({"diff", fewer, other}).output,
              "changed layers[Trees]/@UUID: \"00000000000000000000000000000002\" -> "
              "\"00000000000000000000000000000001\"\n");
}

TEST(ToolDiff, NumbersMayDifferByTheTolerance)
{
    const struct {
        double power;
        const char* tolerance;
        int code;
    } cases[] = {
        {1200.001, "1e-6", 0}, {1200.002, "1e-6", 1}, {1200.002, "1e-5", 0},
        {1200.000001, "0", 1}, {1800.0, "0.5", 0},
    };
    for (const auto& [power, tolerance, code] : cases) {
        const CChange change([power = power](auto& scene, auto&) { scene.light.setPower(power); });
        EXPECT_EQ(change.diff({"--tolerance", tolerance}).code, code) << power << " " << tolerance;
    }
    const CChange close([](auto& scene, auto&) { scene.light.setPower(1200.001); });
    EXPECT_EQ(close.diff().code, 0);
    const CChange whole([](auto& scene, auto&) { scene.light.setMapSize(1025); });
    EXPECT_EQ(whole.diff({"--tolerance", "0.5"}).code, 1);
    const CChange name([](auto& scene, auto&) { scene.light.getBasicData()->setName("1.0"); });
    EXPECT_EQ(name.diff({"--tolerance", "1"}).code, 1);
    const CChange point([](auto& scene, auto&) {
        scene.definition.getPoints()->getZelObject(0)->z = 0.000003; // of a mesh 4 units wide
    });
    EXPECT_EQ(point.diff().code, 0);
    EXPECT_EQ(point.diff({"--tolerance", "1e-7"}).code, 1);
}

TEST(ToolDiff, WhatCannotBeComparedHasItsExitCode)
{
    const CTempFolder folder;
    const std::string text = folder.put("text.zel", "no document");
    const std::string house = sample("house.zel");
    EXPECT_EQ(runTool({"diff", house}).code, 64);
    EXPECT_EQ(runTool({"diff", house, house, "--tolerance", "much"}).code, 64);
    EXPECT_EQ(runTool({"diff", house, house, "--tolerance", "-1"}).code, 64);
    EXPECT_EQ(runTool({"diff", house, text}).code, 65);
    EXPECT_EQ(runTool({"diff", text, house}).code, 65);
    EXPECT_EQ(runTool({"diff", house, folder.file("missing")}).code, 74);
    EXPECT_THAT(runTool({"diff", house, text}).messages, HasSubstr("not readable"));
}

} // namespace

#endif
