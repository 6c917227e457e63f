#ifdef ZEL_TOOL // without the tool there is nothing to test

#include "tests/support/CMemoryReadStream.h"
#include "tests/toolRun.h"

#include <zel/IZelMgr.h>

#include <algorithm>
#include <assimp/Importer.hpp>
#include <assimp/postprocess.h>
#include <assimp/scene.h>
#include <charconv>
#include <cmath>
#include <fstream>
#include <gtest/gtest.h>
#include <map>
#include <nlohmann/json.hpp>
#include <sstream>
#include <tuple>

namespace {

namespace fs = std::filesystem;

// Real models of two Debian packages, from the model to a document and back. What Assimp reads from
// the source is compared with the document and with the OBJ file, point by point and polygon by
// polygon.

constexpr double kTolerance = 1e-6;

struct CCorner {
    double x = 0.0, y = 0.0, z = 0.0;
    bool mapped = false;
    double u = 0.0, v = 0.0;
};

struct CFace {
    int material = 0;
    std::vector<CCorner> corners;
};

struct CModel {
    std::vector<OvZel::CZelPoint> points;
    std::vector<CFace> faces;
};

void addFace(const aiMesh& mesh, const aiFace& source, CModel& model)
{
    CFace face{static_cast<int>(mesh.mMaterialIndex), {}};
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

void addMesh(const aiMesh& mesh, CModel& model)
{
    std::map<std::tuple<float, float, float>, bool> known;
    for (unsigned i = 0; i < mesh.mNumVertices; ++i) {
        const aiVector3D& place = mesh.mVertices[i];
        if (known.insert({{place.x, place.y, place.z}, true}).second)
            model.points.push_back({place.x, place.y, place.z});
    }
    for (unsigned i = 0; i < mesh.mNumFaces; ++i)
        if (mesh.mFaces[i].mNumIndices >= 3)
            addFace(mesh, mesh.mFaces[i], model);
}

CModel fromSource(const std::string& path)
{
    Assimp::Importer importer;
    const aiScene* scene = importer.ReadFile(path, aiProcess_PreTransformVertices);
    CModel model;
    for (unsigned i = 0; scene && i < scene->mNumMeshes; ++i)
        addMesh(*scene->mMeshes[i], model);
    return model;
}

CFace faceOf(OvZel::IZelPolygon& polygon, const CModel& model)
{
    CFace face{polygon.getMaterial(), {}};
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
        model.faces.push_back(faceOf(*document->getPolygons()->getZelObject(i), model));
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
    int material = -1;
    std::ifstream file(path);
    for (std::string line; std::getline(file, line);) {
        std::istringstream words(line);
        std::string kind, a, b, c;
        words >> kind;
        if (kind == "v" && words >> a >> b >> c)
            model.points.push_back({number(a), number(b), number(c)});
        else if (kind == "vt" && words >> a >> b)
            mappings.push_back({number(a), number(b)});
        else if (kind == "usemtl" && words >> a)
            material = std::stoi(a.substr(std::strlen("material_")));
        else if (kind == "f")
            for (model.faces.push_back({material, {}}); words >> a;)
                model.faces.back().corners.push_back(objCorner(a, model, mappings));
        else
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

// What does not depend on the order of meshes and materials.
struct CMeasure {
    std::size_t nbFaces = 0;
    double area = 0.0;
    double low[3] = {1e9, 1e9, 1e9};
    double high[3] = {-1e9, -1e9, -1e9};
};

void measureFace(const CFace& face, CMeasure& measure)
{
    double normal[3] = {};
    const CCorner& o = face.corners[0];
    for (std::size_t i = 0; i < face.corners.size(); ++i) {
        const CCorner& a = face.corners[i];
        const CCorner& b = face.corners[(i + 1) % face.corners.size()];
        normal[0] += (a.y - o.y) * (b.z - o.z) - (a.z - o.z) * (b.y - o.y);
        normal[1] += (a.z - o.z) * (b.x - o.x) - (a.x - o.x) * (b.z - o.z);
        normal[2] += (a.x - o.x) * (b.y - o.y) - (a.y - o.y) * (b.x - o.x);
        const double place[] = {a.x, a.y, a.z};
        for (int k = 0; k < 3; ++k) {
            measure.low[k] = std::min(measure.low[k], place[k]);
            measure.high[k] = std::max(measure.high[k], place[k]);
        }
    }
    measure.area += std::hypot(normal[0], normal[1], normal[2]) / 2;
    ++measure.nbFaces;
}

void measureNode(const aiScene& scene, const aiNode& node, const aiMatrix4x4& above,
                 CMeasure& measure)
{
    const aiMatrix4x4 matrix = above * node.mTransformation;
    for (unsigned i = 0; i < node.mNumMeshes; ++i) {
        CModel model;
        addMesh(*scene.mMeshes[node.mMeshes[i]], model);
        for (CFace& face : model.faces) {
            for (CCorner& corner : face.corners) {
                const aiVector3D place =
                    matrix * aiVector3D(static_cast<float>(corner.x), static_cast<float>(corner.y),
                                        static_cast<float>(corner.z));
                corner = {place.x, place.y, place.z};
            }
            measureFace(face, measure);
        }
    }
    for (unsigned i = 0; i < node.mNumChildren; ++i)
        measureNode(scene, *node.mChildren[i], matrix, measure);
}

// The scene as its nodes put it together, without any help of the importer.
void expectSameMeasure(const CModel& model, const std::string& source)
{
    Assimp::Importer importer;
    const aiScene* scene = importer.ReadFile(source, 0);
    ASSERT_TRUE(scene);
    CMeasure expected;
    measureNode(*scene, *scene->mRootNode, aiMatrix4x4(), expected);
    CMeasure found;
    for (const CFace& face : model.faces)
        measureFace(face, found);
    EXPECT_EQ(found.nbFaces, expected.nbFaces);
    EXPECT_NEAR(found.area, expected.area, expected.area * 1e-4);
    const double size = expected.high[0] - expected.low[0];
    for (int k = 0; k < 3; ++k) {
        EXPECT_NEAR(found.low[k], expected.low[k], size * 1e-5);
        EXPECT_NEAR(found.high[k], expected.high[k], size * 1e-5);
    }
}

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

    CTempFolder mFolder;
};

TEST_P(RealModels, GoThroughTheWholeRoad)
{
    const std::string source = model();
    if (source.empty())
        GTEST_SKIP() << "The Debian packages assimp-testmodels and sweethome3d-furniture are "
                        "missing: "
                     << GetParam().file;
    const std::string made = mFolder.file("made.zel");
    const std::string once = mFolder.file("once.zel");
    const std::string twice = mFolder.file("twice.zel");
    const std::string obj = mFolder.file("model.obj");
    expectDone({"from-model", source, made});
    expectDone({"rewrite", made, once});
    expectDone({"rewrite", once, twice});
    expectDone({"to-model", twice, obj});
    EXPECT_EQ(contents(once), contents(twice));

    const CRun info = runTool({"info", "--json", twice});
    EXPECT_EQ(nlohmann::json::parse(info.output)["readability"], 3);

    const CModel expected = fromSource(source);
    ASSERT_FALSE(expected.faces.empty());
    expectSame(fromDocument(twice), expected);
    const CModel back = fromObj(obj);
    expectSame(back, expected);
    expectSameMeasure(back, source);
}

INSTANTIATE_TEST_SUITE_P(
    All, RealModels,
    testing::Values(CSource{"House", nullptr, "/usr/share/assimp/models/IFC/AC14-FZK-Haus.ifc"},
                    CSource{"Wardrobe", "Scopia.sh3f", "scopia/wardrobe1/wardrobe1.obj"},
                    CSource{"SittingMan", "Reallusion.sh3f", "reallusion/sitMale03/sitMale03.obj"},
                    CSource{"Bench", "BlendSwap-CC-0.sh3f", "blendswap-cc-0/bench/bench.obj"},
                    CSource{"Door", "KatorLegaz.sh3f",
                            "katorlegaz/exterior-door-07/exterior-door-07.obj"}),
    [](const testing::TestParamInfo<CSource>& item) { return std::string(item.param.name); });

} // namespace

#endif
