#include "tools/CMeshSource.h"

#include "tools/CToolError.h"
#include "tools/interrupt.h"

#include <zel/IZelPolygon.h>

#include <algorithm>
#include <assimp/scene.h>
#include <cmath>
#include <limits>
#include <new>
#include <numeric>
#include <tuple>

namespace tool {

// Gives one block. The library asks for the records in their order; what it asks for out of order
// is looked for from the beginning.
class CMeshWriter final : public OvZel::IZelExtStorageWriter::IWriter {
public:
    explicit CMeshWriter(const CMeshSource& source) : mSource(source) {}

    std::int32_t getNbPoints() override { return mSource.mNbPoints; }
    bool getPoint(OvZel::CZelPoint* point, std::int32_t index) override;
    std::int32_t getNbPolygons() override { return mSource.mNbPolygons; }
    bool getPolygon(OvZel::IZelPolygon* polygon, std::int32_t index) override;

private:
    const aiMesh& mesh() const { return *mSource.mScene.mMeshes[mMesh]; }
    void startFor(std::int32_t index);
    void enterNextMesh();
    bool atPoint() const;
    bool atPolygon() const;

    const CMeshSource& mSource;
    std::int32_t mNext = 0; // index of the record to come
    unsigned mMesh = 0;
    std::size_t mFirstVertex = 0; // of the mesh, among those of all
    unsigned mInMesh = 0;         // vertex or face
};

void CMeshWriter::startFor(std::int32_t index)
{
    if (index >= mNext)
        return;
    mNext = 0;
    mMesh = 0;
    mFirstVertex = 0;
    mInMesh = 0;
}

void CMeshWriter::enterNextMesh()
{
    mFirstVertex += mesh().mNumVertices;
    ++mMesh;
    mInMesh = 0;
}

// The first vertex at each place is the point; the numbers rise in the order of these vertices.
bool CMeshWriter::atPoint() const
{
    return mSource.mPointOfVertex[mFirstVertex + mInMesh] == mNext;
}

bool CMeshWriter::atPolygon() const
{
    return mesh().mFaces[mInMesh].mNumIndices >= 3;
}

bool CMeshWriter::getPoint(OvZel::CZelPoint* point, std::int32_t index)
{
    for (startFor(index); mMesh < mSource.mScene.mNumMeshes; enterNextMesh())
        for (; mInMesh < mesh().mNumVertices; ++mInMesh) {
            if (!atPoint() || mNext++ != index)
                continue;
            const aiVector3D& place = mesh().mVertices[mInMesh++];
            *point = {place.x, place.y, place.z};
            return true;
        }
    return false;
}

static void fill(OvZel::IZelPolygon& polygon, const aiMesh& mesh, const aiFace& face,
                 const std::int32_t* pointOfVertex)
{
    polygon.setSmooth(false);
    polygon.setMaterial(static_cast<std::int32_t>(mesh.mMaterialIndex));
    polygon.getHoles()->removeAllObjects();
    OvZel::TZelObjectMgr<OvZel::CZelVertex>& vertices = *polygon.getVertices();
    vertices.removeAllObjects();
    for (unsigned i = 0; i < face.mNumIndices; ++i) {
        const unsigned index = face.mIndices[i];
        OvZel::CZelVertex* vertex = vertices.newZelObject(-1);
        if (!vertex)
            throw std::bad_alloc();
        vertex->pointIndex = pointOfVertex[index];
        if (!mesh.HasTextureCoords(0))
            continue;
        vertex->flags = OvZel::CZelVertex::kFlagM;
        vertex->u = mesh.mTextureCoords[0][index].x;
        vertex->v = mesh.mTextureCoords[0][index].y;
    }
}

bool CMeshWriter::getPolygon(OvZel::IZelPolygon* polygon, std::int32_t index)
{
    for (startFor(index); mMesh < mSource.mScene.mNumMeshes; enterNextMesh())
        for (; mInMesh < mesh().mNumFaces; ++mInMesh) {
            if (!atPolygon() || mNext++ != index)
                continue;
            fill(*polygon, mesh(), mesh().mFaces[mInMesh++],
                 mSource.mPointOfVertex.data() + mFirstVertex);
            return true;
        }
    return false;
}

OvZel::IZelExtStorageWriter::IWriter*
CMeshSource::createGeometryWriter(const OvZel::CZelUUID* /*id*/)
{
    return new CMeshWriter(*this); // the document has no mesh but its own
}

CMeshSource::CMeshSource(const aiScene& scene) : mScene(scene)
{
    std::uint64_t nbVertices = 0;
    std::uint64_t nbFaces = 0;
    for (unsigned i = 0; i < scene.mNumMeshes; ++i) {
        nbVertices += scene.mMeshes[i]->mNumVertices;
        nbFaces += scene.mMeshes[i]->mNumFaces;
    }
    constexpr std::uint64_t kMaxCount = std::numeric_limits<std::int32_t>::max();
    if (nbVertices > kMaxCount || nbFaces > kMaxCount)
        throw CToolError(eNotReadable, "the model has more than 2147483647 points or polygons");
    mPointOfVertex.reserve(nbVertices);
    for (unsigned i = 0; i < scene.mNumMeshes; ++i)
        addMesh(*scene.mMeshes[i]);
}

static void checkFace(const aiMesh& mesh, const aiFace& face)
{
    for (unsigned i = 0; i < face.mNumIndices; ++i)
        if (face.mIndices[i] >= mesh.mNumVertices)
            throw CToolError(eNotReadable, "the model has a corner at a point that it hasn't");
}

void CMeshSource::addMesh(const aiMesh& mesh)
{
    checkInterrupt();
    addPoints(mesh);
    for (unsigned i = 0; i < mesh.mNumFaces; ++i) {
        checkFace(mesh, mesh.mFaces[i]);
        if (mesh.mFaces[i].mNumIndices < 3)
            ++mNbLeftOut;
        else
            ++mNbPolygons;
    }
}

static bool isBefore(const aiVector3D& a, const aiVector3D& b)
{
    return std::tie(a.x, a.y, a.z) < std::tie(b.x, b.y, b.z);
}

// The vertices in an order that puts those at one place together, the first one in front.
static std::vector<std::uint32_t> sortedByPlace(const aiMesh& mesh)
{
    std::vector<std::uint32_t> order(mesh.mNumVertices);
    std::iota(order.begin(), order.end(), 0U);
    std::sort(order.begin(), order.end(), [&](std::uint32_t a, std::uint32_t b) {
        if (isBefore(mesh.mVertices[a], mesh.mVertices[b]))
            return true;
        return a < b && !isBefore(mesh.mVertices[b], mesh.mVertices[a]);
    });
    return order;
}

static void checkPlaces(const aiMesh& mesh)
{
    for (unsigned i = 0; i < mesh.mNumVertices; ++i) {
        const aiVector3D& place = mesh.mVertices[i];
        if (!std::isfinite(place.x) || !std::isfinite(place.y) || !std::isfinite(place.z))
            throw CToolError(eNotReadable, "the model has a point that isn't a number");
    }
}

void CMeshSource::addPoints(const aiMesh& mesh)
{
    checkPlaces(mesh);
    const std::size_t begin = mPointOfVertex.size();
    mPointOfVertex.resize(begin + mesh.mNumVertices);
    std::int32_t* const points = mPointOfVertex.data() + begin;
    // First each vertex gets the first vertex at its place, then that one's number.
    const std::vector<std::uint32_t> order = sortedByPlace(mesh);
    std::uint32_t first = 0;
    for (std::size_t i = 0; i < order.size(); ++i) {
        if (i == 0 || isBefore(mesh.mVertices[first], mesh.mVertices[order[i]]))
            first = order[i];
        points[order[i]] = static_cast<std::int32_t>(first);
    }
    for (std::uint32_t i = 0; i < mesh.mNumVertices; ++i)
        points[i] = points[i] == static_cast<std::int32_t>(i) ? mNbPoints++ : points[points[i]];
}

} // namespace tool
