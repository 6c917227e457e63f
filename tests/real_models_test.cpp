#ifdef ZEL_TOOL // without the tool there is nothing to test

#include "tests/modelDigest.h"
#include "tests/support/CMemoryReadStream.h"
#include "tests/toolRun.h"

#include <zel/IZelMgr.h>

#include <algorithm>
#include <assimp/Importer.hpp>
#include <assimp/postprocess.h>
#include <assimp/scene.h>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <map>
#include <nlohmann/json.hpp>
#include <sstream>
#include <tuple>

namespace {

namespace fs = std::filesystem;

// Real models of two Debian packages, from the model to a document and back. What the importer
// reads from the source is compared with the document and with the OBJ file: as one mesh point by
// point and polygon by polygon, as components material by material.

constexpr double kTolerance = 1e-6;

struct CCorner {
    double x = 0.0, y = 0.0, z = 0.0;
    bool mapped = false;
    double u = 0.0, v = 0.0;
};

struct CFace {
    std::string material;
    std::vector<CCorner> corners;
};

struct CModel {
    std::vector<OvZel::CZelPoint> points;
    std::vector<CFace> faces;
};

void addFace(const aiMesh& mesh, const aiFace& source, const std::string& material, CModel& model)
{
    CFace face{material, {}};
    for (unsigned i = 0; i < source.mNumIndices; ++i) {
        const aiVector3D& place = mesh.mVertices[source.mIndices[i]];
        CCorner corner{place.x, place.y, place.z};
        corner.mapped = mesh.HasTextureCoords(0);
        if (corner.mapped) {
            corner.u = mesh.mTextureCoords[0][source.mIndices[i]].x;
            corner.v = mesh.mTextureCoords[0][source.mIndices[i]].y;
        }
        face.corners.push_back(corner);
    }
    model.faces.push_back(face);
}

void addMesh(const aiScene& scene, const aiMesh& mesh, CModel& model)
{
    const std::string material = scene.mMaterials[mesh.mMaterialIndex]->GetName().C_Str();
    std::map<std::tuple<float, float, float>, bool> known;
    for (unsigned i = 0; i < mesh.mNumVertices; ++i) {
        const aiVector3D& place = mesh.mVertices[i];
        if (known.insert({{place.x, place.y, place.z}, true}).second)
            model.points.push_back({place.x, place.y, place.z});
    }
    for (unsigned i = 0; i < mesh.mNumFaces; ++i)
        if (mesh.mFaces[i].mNumIndices >= 3)
            addFace(mesh, mesh.mFaces[i], material, model);
}

CModel fromSource(const std::string& path)
{
    Assimp::Importer importer;
    const aiScene* scene = importer.ReadFile(path, aiProcess_PreTransformVertices);
    CModel model;
    for (unsigned i = 0; scene && i < scene->mNumMeshes; ++i)
        addMesh(*scene, *scene->mMeshes[i], model);
    return model;
}

CFace faceOf(OvZel::IZelPolygon& polygon, OvZel::IZelMgr& document, const CModel& model)
{
    OvZel::IZelProperty* material = document.getProperties()->getZelObject(polygon.getMaterial());
    CFace face{material ? material->getBasicData()->getName() : "", {}};
    OvZel::TZelObjectMgr<OvZel::CZelVertex>& vertices = *polygon.getVertices();
    for (std::int32_t i = 0; i < vertices.getNbObjects(); ++i) {
        const OvZel::CZelVertex& vertex = *vertices.getZelObject(i);
        const OvZel::CZelPoint& place =
            model.points.at(static_cast<std::size_t>(vertex.pointIndex));
        const bool mapped = vertex.flags & OvZel::CZelVertex::kFlagM;
        face.corners.push_back({place.x, place.y, place.z, mapped, vertex.u, vertex.v});
    }
    return face;
}

CModel fromDocument(const std::string& path)
{
    CModel model;
    OvZel::IZelMgr* document = nullptr;
    OvZel::IZelMgr::newZelMgr(&document, OvZel::eVersionZel, nullptr);
    ZelTest::CMemoryReadStream stream(contents(path));
    EXPECT_TRUE(document->read(&stream, nullptr));
    for (std::int32_t i = 0; i < document->getPoints()->getNbObjects(); ++i)
        model.points.push_back(*document->getPoints()->getZelObject(i));
    for (std::int32_t i = 0; i < document->getPolygons()->getNbObjects(); ++i)
        model.faces.push_back(faceOf(*document->getPolygons()->getZelObject(i), *document, model));
    document->Release();
    return model;
}

double number(const std::string& text)
{
    double value = std::nan("");
    std::from_chars(text.data(), text.data() + text.size(), value);
    return value;
}

// "12" or "12/34", counted from 1.
CCorner objCorner(const std::string& text, const CModel& model,
                  const std::vector<std::pair<double, double>>& mappings)
{
    const OvZel::CZelPoint& place = model.points.at(std::stoul(text) - 1);
    CCorner corner{place.x, place.y, place.z};
    const std::size_t slash = text.find('/');
    corner.mapped = slash != std::string::npos;
    if (corner.mapped)
        std::tie(corner.u, corner.v) = mappings.at(std::stoul(text.substr(slash + 1)) - 1);
    return corner;
}

CModel fromObj(const std::string& path)
{
    CModel model;
    std::vector<std::pair<double, double>> mappings;
    std::string material;
    std::ifstream file(path);
    for (std::string line; std::getline(file, line);) {
        std::istringstream words(line);
        std::string kind, a, b, c;
        words >> kind;
        if (kind == "v" && words >> a >> b >> c)
            model.points.push_back({number(a), number(b), number(c)});
        else if (kind == "vt" && words >> a >> b)
            mappings.push_back({number(a), number(b)});
        else if (kind == "usemtl")
            material = line.substr(std::strlen("usemtl "));
        else if (kind == "f")
            for (model.faces.push_back({material, {}}); words >> a;)
                model.faces.back().corners.push_back(objCorner(a, model, mappings));
        else if (kind != "mtllib")
            ADD_FAILURE() << "unexpected line: " << line;
    }
    return model;
}

bool isNear(const CCorner& a, const CCorner& b)
{
    const double differences[] = {a.x - b.x, a.y - b.y, a.z - b.z, a.u - b.u, a.v - b.v};
    return a.mapped == b.mapped &&
           std::all_of(std::begin(differences), std::end(differences),
                       [](double difference) { return std::abs(difference) <= kTolerance; });
}

void expectSame(const CModel& model, const CModel& source)
{
    ASSERT_EQ(model.points.size(), source.points.size());
    for (std::size_t i = 0; i < source.points.size(); ++i) {
        ASSERT_NEAR(model.points[i].x, source.points[i].x, kTolerance) << "point " << i;
        ASSERT_NEAR(model.points[i].y, source.points[i].y, kTolerance) << "point " << i;
        ASSERT_NEAR(model.points[i].z, source.points[i].z, kTolerance) << "point " << i;
    }
    ASSERT_EQ(model.faces.size(), source.faces.size());
    for (std::size_t i = 0; i < source.faces.size(); ++i) {
        const CFace& face = model.faces[i];
        ASSERT_EQ(face.material, source.faces[i].material) << "polygon " << i;
        ASSERT_EQ(face.corners.size(), source.faces[i].corners.size()) << "polygon " << i;
        for (std::size_t k = 0; k < face.corners.size(); ++k)
            ASSERT_TRUE(isNear(face.corners[k], source.faces[i].corners[k]))
                << "corner " << k << " of polygon " << i;
    }
}

constexpr const char* kMissing =
    "The Debian packages assimp-testmodels and sweethome3d-furniture are missing: ";

struct CSource {
    const char* name;
    const char* archive; // null: a file as it is
    const char* file;
};

void PrintTo(const CSource& source, std::ostream* out)
{
    *out << source.name;
}

class RealModels : public testing::TestWithParam<CSource> {
protected:
    /// The model file, empty when its package is not installed.
    std::string model() const
    {
        const CSource& source = GetParam();
        if (!source.archive)
            return fs::exists(source.file) ? source.file : "";
        const std::string archive =
            std::string("/usr/share/sweethome3d/furniture/") + source.archive;
        if (!fs::exists(archive))
            return "";
        const std::string folder = fs::path(source.file).parent_path().string();
        const CRun run =
            runProgram({"unzip", "-oq", archive, folder + "/*", "-d", mFolder.file("")});
        EXPECT_EQ(run.code, 0) << run.messages;
        return mFolder.file(source.file);
    }

    void expectDone(std::vector<std::string> arguments) const
    {
        const CRun run = runTool(arguments);
        ASSERT_EQ(run.code, 0) << testing::PrintToString(arguments) << run.messages;
    }

    /// The scene as its nodes put it together, material by material.
    void expectComponentsComeBack(const std::string& source) const
    {
        const std::string made = mFolder.file("made.zel");
        const std::string saved = mFolder.file("saved.zel");
        const std::string obj = mFolder.file("model.obj");
        expectDone({"from-model", source, made});
        expectDone({"rewrite", made, saved});
        expectDone({"to-model", saved, obj});
        expectSameModel(obj, source);
    }

    CTempFolder mFolder;
};

TEST_P(RealModels, GoThroughTheWholeRoadAsOneMesh)
{
    const std::string source = model();
    if (source.empty())
        GTEST_SKIP() << kMissing << GetParam().file;
    const std::string made = mFolder.file("made.zel");
    const std::string once = mFolder.file("once.zel");
    const std::string twice = mFolder.file("twice.zel");
    const std::string obj = mFolder.file("model.obj");
    expectDone({"from-model", "--flat", source, made});
    expectDone({"rewrite", made, once});
    expectDone({"rewrite", once, twice});
    expectDone({"to-model", twice, obj});
    EXPECT_EQ(contents(once), contents(twice));

    const CRun info = runTool({"info", "--json", twice});
    EXPECT_EQ(nlohmann::json::parse(info.output)["readability"], 3);

    const CModel expected = fromSource(source);
    ASSERT_FALSE(expected.faces.empty());
    expectSame(fromDocument(twice), expected);
    expectSame(fromObj(obj), expected);
}

TEST_P(RealModels, GoThroughTheWholeRoadAsComponents)
{
    const std::string source = model();
    if (source.empty())
        GTEST_SKIP() << kMissing << GetParam().file;
    expectComponentsComeBack(source);
}

const CSource kModels[] = {
    {"House", nullptr, "/usr/share/assimp/models/IFC/AC14-FZK-Haus.ifc"},
    {"Wardrobe", "Scopia.sh3f", "scopia/wardrobe1/wardrobe1.obj"},
    {"SittingMan", "Reallusion.sh3f", "reallusion/sitMale03/sitMale03.obj"},
    {"Bench", "BlendSwap-CC-0.sh3f", "blendswap-cc-0/bench/bench.obj"},
    {"Door", "KatorLegaz.sh3f", "katorlegaz/exterior-door-07/exterior-door-07.obj"},
};

// These are many; scripts/test --full asks for them.
class MoreRealModels : public RealModels {};

TEST_P(MoreRealModels, GoThroughTheWholeRoadAsComponents)
{
    if (!std::getenv("ZEL_TEST_FULL"))
        GTEST_SKIP() << "only with ZEL_TEST_FULL set";
    const std::string source = model();
    if (source.empty())
        GTEST_SKIP() << kMissing << GetParam().file;
    expectComponentsComeBack(source);
    if (GetParam().archive) {
        EXPECT_THAT(contents(mFolder.file("model.mtl")), testing::HasSubstr("\nmap_Kd "));
    }
}

const CSource kMoreModels[] = {
    {"Cooker", "Scopia.sh3f", "scopia/induction-cooker-4-zones/induction-cooker-4-zones.obj"},
    {"Banknote", "Scopia.sh3f", "scopia/billet-10-euros/billet-10-euros.obj"},
    {"Frame", "Scopia.sh3f", "scopia/frame1/frame1.obj"},
    {"Table", "Scopia.sh3f", "scopia/table4/table4.obj"},
    {"RattanTable", "Scopia.sh3f", "scopia/rattanTable/rattanTable.obj"},
    {"Chimney", "Scopia.sh3f", "scopia/chimney/chimney.obj"},
    {"ChildrensChair", "Scopia.sh3f", "scopia/children_chair/children_chair.obj"},
    {"BathMat", "KatorLegaz.sh3f", "katorlegaz/bathmat/bathmat.obj"},
    {"Newspaper", "KatorLegaz.sh3f", "katorlegaz/newspaper/newspaper.obj"},
    {"Bookcase", "KatorLegaz.sh3f", "katorlegaz/full-bookcase/full-bookcase.obj"},
    {"Bottle", "KatorLegaz.sh3f", "katorlegaz/red-wine-bottle-01/red-wine-bottle-01.obj"},
    {"Rock", "BlendSwap-CC-0.sh3f", "blendswap-cc-0/rock2/rock2.obj"},
    {"UpperCabinet", "BlendSwap-CC-0.sh3f", "blendswap-cc-0/upperCabinet/upperCabinet.obj"},
    {"LowerCabinet", "BlendSwap-CC-0.sh3f", "blendswap-cc-0/lowerCabinet/lowerCabinet.obj"},
    {"Telephone", "BlendSwap-CC-0.sh3f", "blendswap-cc-0/iphone/iphone.obj"},
    {"Bread", "BlendSwap-CC-0.sh3f", "blendswap-cc-0/bread/bread.obj"},
    {"Desk", "BlendSwap-CC-BY.sh3f", "blendswap-cc-by/simpleDesk/simpleDesk.obj"},
    {"Workbench", "BlendSwap-CC-BY.sh3f", "blendswap-cc-by/workbench/workbench.obj"},
    {"Cat", "BlendSwap-CC-BY.sh3f", "blendswap-cc-by/siameseCat/siameseCat.obj"},
    {"Chair", "BlendSwap-CC-BY.sh3f", "blendswap-cc-by/plaidChair/plaidChair.obj"},
    {"LyingMan", "Reallusion.sh3f", "reallusion/lyingDownMale01/lyingDownMale01.obj"},
    {"StandingWoman", "Reallusion.sh3f", "reallusion/holdingFemale01/holdingFemale01.obj"},
    {"Duck", nullptr, "/usr/share/assimp/models/Collada/duck.dae"},
    {"Letters", nullptr, "/usr/share/assimp/models/Collada/COLLADA.dae"},
    {"Engine", nullptr, "/usr/share/assimp/models/glTF2/draco/2CylinderEngine.gltf"},
    {"MirroredCubes", nullptr, "/usr/share/assimp/models/FBX/cubes_with_mirroring_and_pivot.fbx"},
    {"Spider", nullptr, "/usr/share/assimp/models/OBJ/spider.obj"},
};

std::string nameOf(const testing::TestParamInfo<CSource>& item)
{
    return item.param.name;
}

INSTANTIATE_TEST_SUITE_P(All, RealModels, testing::ValuesIn(kModels), nameOf);
INSTANTIATE_TEST_SUITE_P(All, MoreRealModels, testing::ValuesIn(kMoreModels), nameOf);

} // namespace

#endif
