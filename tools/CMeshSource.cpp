#include "tools/CMeshSource.h"

#include "tools/CMeshWriter.h"
#include "tools/CToolError.h"
#include "tools/interrupt.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>
#include <tuple>

namespace tool {

OvZel::IZelExtStorageWriter::IWriter* CMeshSource::createGeometryWriter(const OvZel::CZelUUID* id)
{
    return mBlocks.count(*id) > 0 ? new CMeshWriter(*this, *id) : nullptr;
}

CMeshSource::CMeshSource(const aiScene& scene) : mScene(scene)
{
    mBlocks[OvZel::CZelUUID()]; // a document without components has an empty mesh
    mMeshes.reserve(scene.mNumMeshes);
    for (unsigned i = 0; i < scene.mNumMeshes; ++i)
        addMesh(*scene.mMeshes[i]);
}

void CMeshSource::setWhole(const std::vector<std::int32_t>& properties)
{
    mProperties = &properties;
    mBlocks[OvZel::CZelUUID()] = blockOf(0, mScene.mNumMeshes);
}

void CMeshSource::setComponent(const OvZel::CZelUUID& id, unsigned mesh,
                               const CTransform* transform)
{
    CBlock block = blockOf(mesh, mesh + 1);
    if (transform) {
        block.isMoved = true;
        block.transform = *transform;
    }
    mBlocks[id] = block;
}

static void checkCount(std::int64_t count)
{
    if (count > std::numeric_limits<std::int32_t>::max())
        throw CToolError(eNotReadable, "the model has more than 2147483647 points or polygons");
}

CMeshSource::CBlock CMeshSource::blockOf(unsigned begin, unsigned end) const
{
    std::int64_t nbPoints = 0;
    std::int64_t nbPolygons = 0;
    for (unsigned i = begin; i < end; ++i) {
        checkCount(nbPoints += mMeshes[i].nbPoints);
        checkCount(nbPolygons += mMeshes[i].nbPolygons);
    }
    CBlock block;
    block.begin = begin;
    block.end = end;
    block.nbPoints = static_cast<std::int32_t>(nbPoints);
    block.nbPolygons = static_cast<std::int32_t>(nbPolygons);
    return block;
}

static void checkFace(const aiMesh& mesh, const aiFace& face)
{
    for (unsigned i = 0; i < face.mNumIndices; ++i)
        if (face.mIndices[i] >= mesh.mNumVertices)
            throw CToolError(eNotReadable, "the model has a corner at a point that it hasn't");
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

// Gives each vertex the number of its point, and tells how many points there are.
static std::int32_t numberPoints(const aiMesh& mesh, std::vector<std::int32_t>& points)
{
    // First each vertex gets the first vertex at its place, then that one's number.
    points.resize(mesh.mNumVertices);
    const std::vector<std::uint32_t> order = sortedByPlace(mesh);
    std::uint32_t first = 0;
    for (std::size_t i = 0; i < order.size(); ++i) {
        if (i == 0 || isBefore(mesh.mVertices[first], mesh.mVertices[order[i]]))
            first = order[i];
        points[order[i]] = static_cast<std::int32_t>(first);
    }
    std::int32_t nbPoints = 0;
    for (std::uint32_t i = 0; i < mesh.mNumVertices; ++i)
        points[i] = points[i] == static_cast<std::int32_t>(i)
                        ? nbPoints++
                        : points[static_cast<std::size_t>(points[i])];
    return nbPoints;
}

static OvZel::CZelBox boxOf(const aiMesh& mesh)
{
    OvZel::CZelBox box{{0.0, 0.0, 0.0}, {0.0, 0.0, 0.0}};
    for (unsigned i = 0; i < mesh.mNumVertices; ++i) {
        const aiVector3D& place = mesh.mVertices[i];
        const OvZel::CZelPoint point{place.x, place.y, place.z};
        if (i == 0)
            box = {point, point};
        box.minimum = {std::min(box.minimum.x, point.x), std::min(box.minimum.y, point.y),
                       std::min(box.minimum.z, point.z)};
        box.maximum = {std::max(box.maximum.x, point.x), std::max(box.maximum.y, point.y),
                       std::max(box.maximum.z, point.z)};
    }
    return box;
}

void CMeshSource::addMesh(const aiMesh& mesh)
{
    checkInterrupt();
    checkCount(mesh.mNumVertices);
    checkCount(mesh.mNumFaces);
    checkPlaces(mesh);
    CMesh& added = mMeshes.emplace_back();
    added.nbPoints = numberPoints(mesh, added.pointOfVertex);
    added.box = boxOf(mesh);
    for (unsigned i = 0; i < mesh.mNumFaces; ++i) {
        checkFace(mesh, mesh.mFaces[i]);
        if (mesh.mFaces[i].mNumIndices < 3)
            ++mNbLeftOut;
        else
            ++added.nbPolygons;
    }
}

} // namespace tool
