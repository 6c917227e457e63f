#include "tools/CMeshFiller.h"

#include "tools/CToolError.h"

#include <array>
#include <assimp/scene.h>
#include <cmath>
#include <functional>
#include <limits>
#include <new>
#include <unordered_map>

namespace tool {

namespace {

using CPlaceKey = std::array<float, 3>;

struct CPlaceHash {
    std::size_t operator()(const CPlaceKey& key) const
    {
        std::size_t hash = 0;
        for (const float value : key)
            hash = hash * 1'000'003 + std::hash<float>()(value);
        return hash;
    }
};

} // namespace

template <class T>
static T& added(OvZel::TZelObjectMgr<T>& manager)
{
    T* object = manager.newZelObject(-1);
    if (!object)
        throw std::bad_alloc();
    return *object;
}

CMeshFiller::CMeshFiller(OvZel::IZelMgr& document)
    : mPoints(*document.getPoints()), mPolygons(*document.getPolygons())
{
}

void CMeshFiller::addScene(const aiScene& scene)
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
    if (!mPoints.reserve(static_cast<std::int32_t>(nbVertices)) ||
        !mPolygons.reserve(static_cast<std::int32_t>(nbFaces)))
        throw std::bad_alloc();
    for (unsigned i = 0; i < scene.mNumMeshes; ++i)
        addMesh(*scene.mMeshes[i]);
}

void CMeshFiller::addMesh(const aiMesh& mesh)
{
    addPoints(mesh);
    for (unsigned i = 0; i < mesh.mNumFaces; ++i) {
        if (mesh.mFaces[i].mNumIndices < 3)
            ++mNbLeftOut;
        else
            addPolygon(mesh, mesh.mFaces[i]);
    }
}

void CMeshFiller::addPoints(const aiMesh& mesh)
{
    std::unordered_map<CPlaceKey, std::int32_t, CPlaceHash> known;
    known.reserve(mesh.mNumVertices);
    mPointOfVertex.clear();
    mPointOfVertex.reserve(mesh.mNumVertices);
    for (unsigned i = 0; i < mesh.mNumVertices; ++i) {
        const aiVector3D& vertex = mesh.mVertices[i];
        if (!std::isfinite(vertex.x) || !std::isfinite(vertex.y) || !std::isfinite(vertex.z))
            throw CToolError(eNotReadable, "the model has a point that isn't a number");
        const auto [place, isNew] =
            known.try_emplace(CPlaceKey{vertex.x, vertex.y, vertex.z}, mPoints.getNbObjects());
        if (isNew)
            added(mPoints) = {vertex.x, vertex.y, vertex.z};
        mPointOfVertex.push_back(place->second);
    }
}

void CMeshFiller::addPolygon(const aiMesh& mesh, const aiFace& face)
{
    OvZel::IZelPolygon& polygon = added(mPolygons);
    polygon.setMaterial(static_cast<std::int32_t>(mesh.mMaterialIndex));
    OvZel::TZelObjectMgr<OvZel::CZelVertex>& vertices = *polygon.getVertices();
    if (!vertices.reserve(static_cast<std::int32_t>(face.mNumIndices)))
        throw std::bad_alloc();
    for (unsigned i = 0; i < face.mNumIndices; ++i) {
        const unsigned index = face.mIndices[i];
        OvZel::CZelVertex& vertex = added(vertices);
        vertex.pointIndex = mPointOfVertex.at(index);
        if (!mesh.HasTextureCoords(0))
            continue;
        vertex.flags = OvZel::CZelVertex::kFlagM;
        vertex.u = mesh.mTextureCoords[0][index].x;
        vertex.v = mesh.mTextureCoords[0][index].y;
    }
}

} // namespace tool
