#ifdef ZEL_TOOL // needs the importer, as the tool does

#include "tests/modelDigest.h"

#include <algorithm>
#include <assimp/Importer.hpp>
#include <assimp/scene.h>
#include <cmath>
#include <gtest/gtest.h>
#include <vector>

// A file of materials has six decimals of what a document has in eight bits.
static constexpr double kHalfByte = 0.501 / 255;

static CMaterialDigest surfaceOf(const aiMaterial& material)
{
    CMaterialDigest digest;
    aiString path;
    if (material.GetTexture(aiTextureType_DIFFUSE, 0, &path) == aiReturn_SUCCESS)
        digest.texture = path.C_Str();
    if (material.GetTexture(aiTextureType_HEIGHT, 0, &path) == aiReturn_SUCCESS)
        digest.bump = path.C_Str();
    aiColor3D diffuse;
    material.Get(AI_MATKEY_COLOR_DIFFUSE, diffuse);
    for (unsigned k = 0; k < 3; ++k)
        digest.diffuse[k] = std::clamp(static_cast<double>(diffuse[k]), 0.0, 1.0);
    float opacity = 1;
    material.Get(AI_MATKEY_OPACITY, opacity);
    digest.opacity = opacity;
    return digest;
}

static void addFace(const std::vector<aiVector3D>& corners, CMaterialDigest& digest)
{
    double normal[3] = {};
    for (std::size_t i = 0; i < corners.size(); ++i) {
        const aiVector3D a = corners[i] - corners[0];
        const aiVector3D b = corners[(i + 1) % corners.size()] - corners[0];
        normal[0] += static_cast<double>(a.y) * b.z - static_cast<double>(a.z) * b.y;
        normal[1] += static_cast<double>(a.z) * b.x - static_cast<double>(a.x) * b.z;
        normal[2] += static_cast<double>(a.x) * b.y - static_cast<double>(a.y) * b.x;
        for (unsigned k = 0; k < 3; ++k) {
            digest.low[k] = std::min<double>(digest.low[k], corners[i][k]);
            digest.high[k] = std::max<double>(digest.high[k], corners[i][k]);
        }
    }
    digest.area += std::hypot(normal[0], normal[1], normal[2]) / 2;
    ++digest.nbFaces;
}

static void addMesh(const aiMesh& mesh, const aiMatrix4x4& matrix, CMaterialDigest& digest)
{
    for (unsigned i = 0; i < mesh.mNumFaces; ++i) {
        const aiFace& face = mesh.mFaces[i];
        if (face.mNumIndices < 3)
            continue;
        std::vector<aiVector3D> corners;
        for (unsigned k = 0; k < face.mNumIndices; ++k)
            corners.push_back(matrix * mesh.mVertices[face.mIndices[k]]);
        addFace(corners, digest);
    }
}

static void addNode(const aiScene& scene, const aiNode& node, const aiMatrix4x4& above,
                    std::map<std::string, CMaterialDigest>& digests)
{
    const aiMatrix4x4 matrix = above * node.mTransformation;
    for (unsigned i = 0; i < node.mNumMeshes; ++i) {
        const aiMesh& mesh = *scene.mMeshes[node.mMeshes[i]];
        const aiMaterial& material = *scene.mMaterials[mesh.mMaterialIndex];
        const auto [digest, isNew] = digests.emplace(material.GetName().C_Str(), CMaterialDigest());
        if (isNew)
            digest->second = surfaceOf(material);
        addMesh(mesh, matrix, digest->second);
        if (digest->second.nbFaces == 0)
            digests.erase(digest);
    }
    for (unsigned i = 0; i < node.mNumChildren; ++i)
        addNode(scene, *node.mChildren[i], matrix, digests);
}

std::map<std::string, CMaterialDigest> modelDigest(const std::string& path)
{
    Assimp::Importer importer;
    std::map<std::string, CMaterialDigest> digests;
    if (const aiScene* scene = importer.ReadFile(path, 0))
        addNode(*scene, *scene->mRootNode, aiMatrix4x4(), digests);
    return digests;
}

static void expectSameDigest(const CMaterialDigest& digest, const CMaterialDigest& source,
                             const std::string& name)
{
    SCOPED_TRACE("material " + name);
    EXPECT_EQ(digest.nbFaces, source.nbFaces);
    EXPECT_EQ(digest.texture, source.texture);
    EXPECT_EQ(digest.bump, source.bump);
    EXPECT_NEAR(digest.opacity, source.opacity, kHalfByte);
    const double size = std::hypot(source.high[0] - source.low[0], source.high[1] - source.low[1],
                                   source.high[2] - source.low[2]);
    EXPECT_NEAR(digest.area, source.area, 1e-5 * size * (1.0 + size) + source.area * 1e-4);
    for (int k = 0; k < 3; ++k) {
        EXPECT_NEAR(digest.low[k], source.low[k], 3e-6 * (1.0 + size));
        EXPECT_NEAR(digest.high[k], source.high[k], 3e-6 * (1.0 + size));
        EXPECT_NEAR(digest.diffuse[k], source.diffuse[k], kHalfByte);
    }
}

void expectSameModel(const std::string& path, const std::string& source)
{
    const std::map<std::string, CMaterialDigest> expected = modelDigest(source);
    const std::map<std::string, CMaterialDigest> found = modelDigest(path);
    ASSERT_FALSE(expected.empty());
    EXPECT_EQ(found.size(), expected.size());
    for (const auto& [name, digest] : expected) {
        const auto same = found.find(name);
        if (same == found.end())
            ADD_FAILURE() << "no material " << name;
        else
            expectSameDigest(same->second, digest, name);
    }
}

#endif
