#ifdef ZEL_TOOL // without the tool there is nothing to test

#include "tests/colladaModel.h"
#include "tests/modelDigest.h"
#include "tests/support/CClientDocument.h"
#include "tests/support/CTimeZone.h"
#include "tests/toolRun.h"

#include <zel/IZelMgr.h>

#include <algorithm>
#include <assimp/Exporter.hpp>
#include <assimp/Importer.hpp>
#include <assimp/scene.h>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <iterator>
#include <map>
#include <memory>
#include <set>

namespace {

using OvZel::CZelColor;
using OvZel::CZelPoint;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

const CMatrix kTurned =
    moved(10, 20, 30) * turnedZ(1.2) * turnedY(-0.5) * turnedX(0.3) * scaled(2, 3, 0.5);
const CMatrix kSheared = {1, 0.5, 0, 5, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};

void expectPoint(const CZelPoint& point, double x, double y, double z)
{
    EXPECT_NEAR(point.x, x, 1e-6);
    EXPECT_NEAR(point.y, y, 1e-6);
    EXPECT_NEAR(point.z, z, 1e-6);
}

std::string nameOf(OvZel::IZelBasic* object)
{
    return object->getBasicData()->getName();
}

template <class T>
std::vector<std::string> namesOf(OvZel::TZelObjectMgr<T>* list)
{
    std::vector<std::string> names;
    for (std::int32_t i = 0; i < list->getNbObjects(); ++i)
        names.push_back(nameOf(list->getZelObject(i)));
    return names;
}

std::vector<std::string> linesOf(const std::string& path, const std::string& start)
{
    std::vector<std::string> lines;
    std::ifstream file(path);
    for (std::string line; std::getline(file, line);)
        if (line.compare(0, start.size(), start) == 0)
            lines.push_back(line.substr(start.size()));
    return lines;
}

/// The identifiers of a document by kind and name, with a stroke at a name that was there already.
class CIds {
public:
    explicit CIds(OvZel::IZelMgr& document)
    {
        add("document", *document.getObjectDefinition());
        add("file", *document.getFileInfo());
        auto* views = document.getCameras(); // whose own ones no file keeps
        for (std::int32_t i = 0; i < views->getNbObjects(); ++i)
            add("view", *views->getZelObject(i)->getViewInfo());
        addAll("heliodon", document.getHeliodons());
        addAll("layer", document.getLayers());
        addAll("instance", document.getObjectInstances());
        addAll("component", document.getDefinitions());
        addAll("material", document.getProperties());
        auto* definitions = document.getDefinitions();
        for (std::int32_t i = 0; i < definitions->getNbObjects(); ++i) {
            OvZel::IZelZelObjectDefinition& component = *definitions->getZelObject(i);
            addAll("in " + nameOf(&component), component.getProperties());
        }
    }

    /// The keys that only one of the two has, or that say another thing.
    std::vector<std::string> differences(const CIds& other) const
    {
        std::set<std::pair<std::string, OvZel::CZelUUID>> all;
        std::set_symmetric_difference(mIds.begin(), mIds.end(), other.mIds.begin(),
                                      other.mIds.end(), std::inserter(all, all.end()));
        std::set<std::string> keys;
        for (const auto& [key, id] : all)
            keys.insert(key);
        return {keys.begin(), keys.end()};
    }
    OvZel::CZelUUID at(const std::string& key) const { return mIds.at(key); }
    std::size_t getNbDistinct() const
    {
        std::set<OvZel::CZelUUID> distinct;
        for (const auto& [key, id] : mIds)
            if (!id.isNull())
                distinct.insert(id);
        return distinct.size();
    }
    std::size_t size() const { return mIds.size(); }

private:
    void add(std::string key, OvZel::IZelBasic& object)
    {
        while (mIds.count(key) > 0)
            key += "'";
        mIds[key] = *object.getBasicData()->getId();
    }
    template <class T>
    void addAll(const std::string& kind, OvZel::TZelObjectMgr<T>* list)
    {
        for (std::int32_t i = 0; i < list->getNbObjects(); ++i)
            add(kind + " " + nameOf(list->getZelObject(i)), *list->getZelObject(i));
    }

    std::map<std::string, OvZel::CZelUUID> mIds;
};

class ToolModel : public testing::Test {
protected:
    void expectDone(const std::vector<std::string>& arguments) const
    {
        const CRun run = runTool(arguments);
        ASSERT_EQ(run.code, 0) << testing::PrintToString(arguments) << run.messages;
        EXPECT_EQ(run.messages, "");
    }

    /// Makes a document of a model and loads it.
    void load(const std::string& model, bool isFlat = false)
    {
        std::vector<std::string> arguments = {"from-model", model, mFile};
        if (isFlat)
            arguments.insert(arguments.begin() + 1, "--flat");
        expectDone(arguments);
        mDocument = std::make_unique<ZelTest::CClientDocument>();
        ASSERT_TRUE(mDocument->read(contents(mFile)));
        EXPECT_THAT(mDocument->takeMessages(), ElementsAre());
    }

    /// Saves the document and makes a model of it.
    void write()
    {
        mFolder.put("in.zel", mDocument->save());
        expectDone({"to-model", mFolder.file("in.zel"), mObj});
    }

    OvZel::IZelMgr& document() { return *mDocument->get(); }

    OvZel::IZelObjectInstance& instance(std::int32_t index)
    {
        return *document().getObjectInstances()->getZelObject(index);
    }

    OvZel::IZelZelObjectDefinition& definition(std::int32_t index)
    {
        return *document().getDefinitions()->getZelObject(index);
    }

    const OvZel::CZelUUID& componentOf(std::int32_t index)
    {
        return instance(index).asInternalComponentInstance()->getComponentUUID();
    }

    /// A component with one triangle of a property of that name and colour.
    OvZel::IZelZelObjectDefinition& addTriangle(const char* name, const char* paint,
                                                const CZelColor& color)
    {
        OvZel::IZelZelObjectDefinition& made = *document().getDefinitions()->newZelObject(-1);
        made.getBasicData()->setName(name);
        OvZel::IZelProperty& property = *made.getProperties()->newZelObject(-1);
        property.getBasicData()->setName(paint);
        property.setDiffuseColor(color);
        OvZel::IZelPolygon& polygon = *made.getPolygons()->newZelObject(-1);
        for (std::int32_t i = 0; i < 3; ++i) {
            *made.getPoints()->newZelObject(-1) = {i == 1 ? 1.0 : 0.0, i == 2 ? 1.0 : 0.0, 0.0};
            polygon.getVertices()->newZelObject(-1)->pointIndex = i;
        }
        return made;
    }

    OvZel::IZelObjectInstance& place(OvZel::IZelZelObjectDefinition& component, const char* name)
    {
        OvZel::IZelObjectInstance& made = *document().getObjectInstances()->newZelObject(-1);
        made.setClass("ModelObject");
        made.getBasicData()->setName(name);
        made.asInternalComponentInstance()->setComponentUUID(*component.getBasicData()->getId());
        return made;
    }

    CTempFolder mFolder;
    std::string mFile = mFolder.file("made.zel");
    std::string mObj = mFolder.file("back.obj");
    std::unique_ptr<ZelTest::CClientDocument> mDocument =
        std::make_unique<ZelTest::CClientDocument>();
};

TEST_F(ToolModel, EachMeshIsAComponentAndEachPlaceAnInstance)
{
    load(mFolder.put("two.dae", collada({{"near", "tri", "red", moved(0, 0, 0)},
                                         {"far", "tri", "red", kTurned},
                                         {"floor", "sq", "steel", moved(0, -1, 0)}})));
    ASSERT_EQ(document().getDefinitions()->getNbObjects(), 2);
    EXPECT_STREQ(definition(0).getClass(), "ModelObject");
    EXPECT_EQ(document().getPoints()->getNbObjects(), 0);
    EXPECT_EQ(definition(0).getPoints()->getNbObjects(), 3);
    EXPECT_EQ(definition(1).getPolygons()->getNbObjects(), 1);

    EXPECT_THAT(namesOf(document().getObjectInstances()), ElementsAre("near", "far", "floor"));
    EXPECT_STREQ(instance(1).getClass(), "ModelObject");
    EXPECT_EQ(componentOf(0), *definition(0).getBasicData()->getId());
    EXPECT_EQ(componentOf(1), *definition(0).getBasicData()->getId());
    EXPECT_EQ(componentOf(2), *definition(1).getBasicData()->getId());
    expectPoint(instance(1).getTranslation(), 10, 20, 30);
    expectPoint(instance(1).getRotation(), 0.3, -0.5, 1.2);
    expectPoint(instance(1).getScale(), 2, 3, 0.5);
    expectPoint(instance(2).getTranslation(), 0, -1, 0);
    expectPoint(instance(2).getRotation(), 0, 0, 0);
}

TEST_F(ToolModel, EachNodeBelowTheRootIsALayer)
{
    load(mFolder.put("two.dae", collada({{"near", "tri", "red", moved(0, 0, 0)},
                                         {"floor", "sq", "steel", moved(0, -1, 0)}})));
    ASSERT_THAT(namesOf(document().getLayers()), ElementsAre("near", "floor"));
    for (std::int32_t i = 0; i < 2; ++i)
        EXPECT_EQ(instance(i).getLayerId(),
                  *document().getLayers()->getZelObject(i)->getBasicData()->getId());
}

TEST_F(ToolModel, EachMaterialIsAProperty)
{
    load(mFolder.put("two.dae", collada({{"near", "tri", "red", moved(0, 0, 0)},
                                         {"floor", "sq", "steel", moved(0, -1, 0)}})));
    ASSERT_THAT(namesOf(document().getProperties()), ElementsAre("Red paint", "Steel"));
    const OvZel::IZelProperty& red = *document().getProperties()->getZelObject(0);
    EXPECT_STREQ(red.getDiffuseMapUrl(), "brick wall.png");
    EXPECT_EQ(red.getProjection(), 7U);
    EXPECT_TRUE(red.getUVDefined());
    double height = 0.0, width = 0.0;
    EXPECT_TRUE(red.getMapSize(&height, &width));
    EXPECT_EQ(height, 1.0);
    EXPECT_EQ(width, 1.0);
    EXPECT_EQ(red.getSpecularColor(), CZelColor::rgb(51, 102, 153));
    EXPECT_EQ(red.getGlossy(), 25.0);
    const OvZel::IZelProperty& steel = *document().getProperties()->getZelObject(1);
    EXPECT_STREQ(steel.getDiffuseMapUrl(), "");
    EXPECT_FALSE(steel.getUVDefined());
    EXPECT_EQ(steel.getDiffuseColor(), CZelColor::rgb(102, 153, 204));
    EXPECT_EQ(steel.getTransparentColor(), CZelColor::rgb(153, 153, 153));

    // The polygons of a component have its own one.
    for (std::int32_t i = 0; i < 2; ++i) {
        EXPECT_THAT(namesOf(definition(i).getProperties()),
                    ElementsAre(i == 0 ? "Red paint" : "Steel"));
        EXPECT_EQ(definition(i).getPolygons()->getZelObject(0)->getMaterial(), 0);
    }
    EXPECT_STREQ(definition(0).getProperties()->getZelObject(0)->getDiffuseMapUrl(),
                 "brick wall.png");
}

TEST_F(ToolModel, AnUnchangedModelGivesTheSameDocument)
{
    const std::string model = collada({{"near", "tri", "red", kTurned},
                                       {"near", "tri", "red", kSheared},
                                       {"floor", "sq", "steel", moved(0, -1, 0)}},
                                      {{"view", "wide", moved(0, 0, 0), moved(1, 2, 3)}});
    CTempFolder elsewhere;
    mFolder.put("in.mtl", "newmtl Wall\nKd 0.5 0.25 0.125\nmap_Kd a wall.jpg\n");
    elsewhere.put("in.mtl", contents(mFolder.file("in.mtl")));
    const std::string obj = "mtllib in.mtl\nv 0 0 0\nv 1 0 0\nv 1 1 0\nusemtl Wall\nf 1 2 3\n";
    const std::pair<std::string, std::string> models[] = {
        {mFolder.put("house.dae", model), elsewhere.put("copy.dae", model)},
        {mFolder.put("wall.obj", obj), elsewhere.put("copy.obj", obj)},
    };
    for (const auto& [original, copy] : models)
        for (const bool isFlat : {false, true}) {
            load(original, isFlat);
            const std::string first = contents(mFile);
            const ZelTest::CTimeZone elsewhen("<+05>-5"); // where it is another hour
            load(copy, isFlat);
            EXPECT_TRUE(contents(mFile) == first) << original << (isFlat ? " --flat" : "");
        }
}

TEST_F(ToolModel, AChangeOfTheModelChangesNoOtherIdentifier)
{
    const CNode near{"near", "tri", "red", moved(0, 0, 0)};
    const CNode far{"far", "tri", "red", kTurned};
    const CNode floor{"floor", "sq", "steel", moved(0, -1, 0)};
    const CNode leaning{"leaning", "sq", "steel", kSheared};
    const CNode again{"near", "tri", "red", moved(3, 0, 0)};
    const CNode away{"away", "tri", "red", kTurned};
    const CNode hill{"hill", "big", "steel", moved(0, 0, 9)};
    const CNode raised{"floor", "sq", "steel", moved(0, 7, 0)};
    const CCameraNode view{"view", "wide", moved(0, 0, 0), moved(1, 2, 3)};
    const CCameraNode second{"view", "tall", moved(0, 0, 0), moved(4, 5, 6)};
    load(mFolder.put("house.dae", collada({near, far, floor, leaning, again}, {view, second})));
    ASSERT_EQ(document().getCameras()->getNbObjects(), 2);
    const CIds before(document());
    EXPECT_EQ(before.getNbDistinct(), before.size());
    // Of the instances with one name, and those of another mesh in its own component.
    EXPECT_NE(before.at("instance near"), before.at("instance near'"));
    EXPECT_NE(before.at("component leaning"), before.at("component sq"));

    const struct {
        std::vector<CNode> nodes;
        std::vector<std::string> changed; ///< but for the document and its file
    } cases[] = {
        {{near, far, raised, leaning, again}, {}},
        {{leaning, near, again, floor, far}, {}},
        {{near, away, floor, leaning, again},
         {"instance away", "instance far", "layer away", "layer far"}},
        {{hill, near, far, floor, leaning, again},
         {"component big", "in big Steel", "instance hill", "layer hill"}},
        {{near, far, leaning, again},
         {"component sq", "in sq Steel", "instance floor", "layer floor"}},
        {{near, far, floor, leaning}, {"instance near'"}},
    };
    for (auto item : cases) {
        load(mFolder.put("house.dae", collada(item.nodes, {view, second})));
        item.changed.insert(item.changed.end(), {"document", "file"});
        EXPECT_THAT(before.differences(CIds(document())),
                    testing::UnorderedElementsAreArray(item.changed));
    }
}

TEST_F(ToolModel, MeshesWithoutNamesAreKnownByTheirPlaces)
{
    const CNode near{"near", "tri", "red", moved(0, 0, 0)};
    const CNode floor{"floor", "sq", "steel", moved(0, -1, 0)};
    const CNode hill{"hill", "big", "steel", moved(0, 0, 9)};
    const auto nameless = [&](const std::vector<CNode>& nodes) {
        Assimp::Importer importer;
        const aiScene* scene = importer.ReadFile(mFolder.put("named.dae", collada(nodes)), 0U);
        const std::string path = mFolder.file("nameless.assbin"); // which keeps none of meshes
        EXPECT_EQ(Assimp::Exporter().Export(scene, "assbin", path), aiReturn_SUCCESS);
        return path;
    };
    load(nameless({near, floor}));
    const CIds before(document());
    load(nameless({hill, near, floor}));
    const CIds after(document());
    EXPECT_EQ(after.at("component mesh_1"), before.at("component mesh_0"));
    EXPECT_EQ(after.at("component mesh_2"), before.at("component mesh_1"));
    EXPECT_EQ(after.getNbDistinct(), after.size());
}

TEST_F(ToolModel, EveryPlaceComesBack)
{
    const struct {
        const char* name;
        CMatrix matrix;
        std::int32_t nbComponents;
    } cases[] = {
        {"turned", kTurned, 1},
        {"a quarter turn about Y", turnedY(1.5707963267948966) * turnedX(0.7), 1},
        {"half a turn", turnedZ(3.141592653589793) * turnedX(3.141592653589793), 1},
        {"mirrored", turnedX(0.7) * scaled(1, 1, -2), 1},
        {"sheared", kSheared, 2},
        {"sheared and mirrored", kSheared * scaled(-1, 1, 1), 2},
        {"flattened", scaled(1, 1, 0), 2},
    };
    for (const auto& item : cases) {
        SCOPED_TRACE(item.name);
        const std::string model =
            mFolder.put("one.dae", collada({{"near", "tri", "red", moved(0, 0, 0)},
                                            {"other", "tri", "red", item.matrix}}));
        load(model);
        EXPECT_EQ(document().getDefinitions()->getNbObjects(), item.nbComponents);
        write();
        expectSameModel(mObj, model);
    }
}

TEST_F(ToolModel, AScaleThatSixDecimalsCannotTellMovesThePoints)
{
    const struct {
        double scale;
        std::vector<std::string> components;
        double kept;
    } cases[] = {{0.000123, {"big"}, 0.000123}, {0.00012345678, {"far"}, 1.0}};
    for (const auto& item : cases) {
        const CMatrix matrix = moved(5, 0, 0) * scaled(item.scale, item.scale, item.scale);
        const std::string model =
            mFolder.put("one.dae", collada({{"far", "big", "steel", matrix}}));
        load(model);
        EXPECT_THAT(namesOf(document().getDefinitions()),
                    testing::ElementsAreArray(item.components));
        EXPECT_EQ(instance(0).getScale().x, item.kept);
        write();
        expectSameModel(mObj, model);
    }
}

TEST_F(ToolModel, AModelWithoutMeshesIsAnEmptyDocument)
{
    load(mFolder.put(
        "none.gltf",
        R"({"asset":{"version":"2.0"},"scene":0,"scenes":[{"nodes":[0]}],"nodes":[{}]})"));
    EXPECT_EQ(document().getDefinitions()->getNbObjects(), 0);
    EXPECT_EQ(document().getObjectInstances()->getNbObjects(), 0);
}

TEST_F(ToolModel, AMirrorKeepsTheFrontInFront)
{
    for (const CMatrix& matrix : {scaled(-1, 1, 1), kSheared * scaled(-1, 1, 1)}) {
        load(mFolder.put("one.dae", collada({{"other", "sq", "steel", matrix}})));
        write();
        const std::vector<std::string> points = linesOf(mObj, "v ");
        ASSERT_EQ(points.size(), 4U);
        EXPECT_THAT(points[1], StartsWith(points[0][0] == '5' ? "4 " : "-1 "));
        EXPECT_THAT(linesOf(mObj, "f "), ElementsAre("4 3 2 1"));
    }
}

TEST_F(ToolModel, AnObjFileComesBack)
{
    mFolder.put("in.mtl", "newmtl Wall\nKd 0.5 0.25 0.125\nd 0.25\nmap_Kd a wall.jpg\n"
                          "map_bump bumps.png\nnewmtl Unused\nKd 1 0 0\n"
                          "newmtl Roof\nKd 1 1 0\nKs 0.1 0.2 0.3\nNs 40\n");
    const std::string model =
        mFolder.put("in.obj", "mtllib in.mtl\no House\nv 0 0 0\nv 1 0 0\nv 1 1 0\nv 0 1 0\n"
                              "v 0.5 1.5 0.125\nvt 0 0\nvt 0.25 0\nvt 0.25 0.5\nvt 0 0.5\n"
                              "usemtl Wall\nf 1/1 2/2 3/3 4/4\nusemtl Roof\nf 4 3 5\n"
                              "o Shed\nv 5 0 0\nv 6 0 0\nv 6 1 0\nusemtl Wall\nf 6/1 7/2 8/3\n");
    load(model);
    EXPECT_THAT(namesOf(document().getLayers()), ElementsAre("House", "Shed"));
    write();
    expectSameModel(mObj, model);
    EXPECT_THAT(linesOf(mObj, "v "),
                ElementsAre("0 0 0", "1 0 0", "1 1 0", "0 1 0", "0 1 0", "1 1 0", "0.5 1.5 0.125",
                            "5 0 0", "6 0 0", "6 1 0"));
    EXPECT_THAT(linesOf(mObj, "f "), ElementsAre("1/1 2/2 3/3 4/4", "5 6 7", "8/5 9/6 10/7"));
    EXPECT_THAT(linesOf(mObj, "usemtl "), ElementsAre("Wall", "Roof", "Wall"));
    EXPECT_THAT(linesOf(mObj, "o "), ElementsAre("House", "House", "Shed"));
    EXPECT_THAT(linesOf(mObj, "mtllib "), ElementsAre("back.mtl"));
    EXPECT_THAT(contents(mFolder.file("back.mtl")),
                HasSubstr("newmtl Wall\nKd 0.501961 0.25098 0.12549\nKs 0 0 0\nNs 0\n"
                          "d 0.25098\nmap_Kd a wall.jpg\nmap_bump bumps.png\n"));
    EXPECT_THAT(linesOf(mFolder.file("back.mtl"), "newmtl "),
                testing::IsSupersetOf({"Wall", "Unused", "Roof"}));
}

// Whatever a model has, a document is UTF-8.
TEST_F(ToolModel, NamesBecomeUtf8)
{
    const std::pair<std::string, std::string> cases[] = {
        {"plain", "plain"},
        {"Gr\u00fcn", "Gr\u00fcn"},
        {"\xF0\x9F\x8F\xA0", "\xF0\x9F\x8F\xA0"},
        {"\xEF\xBF\xBD", "\xEF\xBF\xBD"},
        {"Bl\xE4u", "Bl\u00e4u"}, // of Latin 1
        {"cut\xC3", "cut\u00c3"}, // in the middle
        {"cut\xE2\x82", "cut\u00e2\u0082"},
        {"long\xC0\xAF", "long\u00c0\u00af"},           // more bytes than the slash needs
        {"half\xED\xA0\x80", "half\u00ed\u00a0\u0080"}, // of a pair
        {"far\xF4\x90\x80\x80", "far\u00f4\u0090\u0080\u0080"},
        {"odd\x01", "odd?"},
    };
    for (const auto& [name, expected] : cases) {
        mFolder.put("in.mtl", "newmtl " + name + "\nKd 0.5 0.25 0.125\nmap_Kd " + name + ".png\n");
        load(mFolder.put("in.obj", "mtllib in.mtl\nv 0 0 0\nv 1 0 0\nv 1 1 0\no " + name +
                                       "\nusemtl " + name + "\nf 1 2 3\n"));
        EXPECT_THAT(namesOf(definition(0).getProperties()), ElementsAre(expected));
        EXPECT_EQ(definition(0).getProperties()->getZelObject(0)->getDiffuseMapUrl(),
                  expected + ".png");
        EXPECT_THAT(namesOf(document().getObjectInstances()), ElementsAre(expected));
        EXPECT_THAT(namesOf(document().getLayers()), ElementsAre(expected));
        EXPECT_THAT(namesOf(document().getDefinitions()), ElementsAre(expected));
    }
}

TEST_F(ToolModel, FlatIsOneMeshWithTheMaterialsOfTheModel)
{
    const std::string model = mFolder.put(
        "two.dae", collada({{"near", "tri", "red", kTurned}, {"floor", "sq", "steel", kSheared}}));
    load(model, true);
    EXPECT_EQ(document().getDefinitions()->getNbObjects(), 0);
    EXPECT_EQ(document().getObjectInstances()->getNbObjects(), 0);
    EXPECT_EQ(document().getPoints()->getNbObjects(), 7);
    ASSERT_EQ(document().getPolygons()->getNbObjects(), 2);
    EXPECT_THAT(namesOf(document().getProperties()), ElementsAre("Red paint", "Steel"));
    write();
    expectSameModel(mObj, model);
}

TEST_F(ToolModel, PropertiesOfOneNameAreOneMaterialIfTheyAreTheSame)
{
    const CZelColor blue = CZelColor::rgb(0, 0, 255);
    place(addTriangle("a", "Paint", CZelColor::rgb(255, 0, 0)), "A");
    place(addTriangle("b", "Paint", blue), "B");
    place(addTriangle("c", "Paint", blue), "C");
    OvZel::IZelProperty& own = *document().getProperties()->newZelObject(-1);
    own.getBasicData()->setName("Scene paint");
    write();
    EXPECT_THAT(linesOf(mObj, "usemtl "), ElementsAre("Paint", "Paint_2", "Paint_2"));
    const std::string mtl = mFolder.file("back.mtl");
    EXPECT_THAT(linesOf(mtl, "newmtl "), ElementsAre("Scene paint", "Paint", "Paint_2"));
    EXPECT_THAT(linesOf(mtl, "Kd "), ElementsAre("0.392157 0.392157 0.392157", "1 0 0", "0 0 1"));
}

TEST_F(ToolModel, AComponentIsWrittenForEachInstance)
{
    OvZel::IZelZelObjectDefinition& component = addTriangle("part", "Paint", {});
    addTriangle("spare", "Paint", {});
    place(component, "left");
    OvZel::IZelObjectInstance& right = place(component, "");
    right.setTranslation({10, 0, 0});
    right.setRotation({0, 0, 1.5707963267948966});
    right.setScale({2, 1, 1});
    write();
    EXPECT_EQ(contents(mObj), "mtllib back.mtl\n"
                              "o left\nv 0 0 0\nv 1 0 0\nv 0 1 0\nusemtl Paint\nf 1 2 3\n"
                              "o part\nv 10 0 0\nv 10 2 0\nv 9 0 0\nusemtl Paint\nf 4 5 6\n"
                              "o spare\n# no instance places this component\n"
                              "v 0 0 0\nv 1 0 0\nv 0 1 0\nusemtl Paint\nf 7 8 9\n");
}

TEST_F(ToolModel, InstancesOfNothingAreToldOf)
{
    place(addTriangle("part", "Paint", {}), "here");
    document().getObjectInstances()->newZelObject(-1)->setClass("3DPlant");
    document().getObjectInstances()->newZelObject(-1)->setClass("ModelObject");
    const CRun run = runTool({"to-model", mFolder.put("in.zel", mDocument->save()), mObj});
    EXPECT_EQ(run.code, 0);
    EXPECT_THAT(run.messages,
                HasSubstr("instances of no component of the document, left out: 2\n"));
    EXPECT_THAT(linesOf(mObj, "o "), ElementsAre("here"));
}

TEST_F(ToolModel, AFailureLeavesBothFilesAsTheyWere)
{
    const std::string mtl = mFolder.put("back.mtl", "old materials");
    mFolder.put("back.obj", "old model");
    place(addTriangle("part", "Paint", {}), "here");
    const std::string whole = mDocument->save();
    const std::string cut = mFolder.put("cut.zel", whole.substr(0, whole.size() / 2));
    EXPECT_EQ(runTool({"to-model", cut, mObj}).code, 65);
    EXPECT_EQ(contents(mtl), "old materials");
    EXPECT_EQ(contents(mObj), "old model");
    EXPECT_THAT(mFolder.names(), ElementsAre("back.mtl", "back.obj", "cut.zel"));
}

} // namespace

#endif
