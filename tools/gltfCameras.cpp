#include "tools/gltfCameras.h"

#include <assimp/Importer.hpp>
#include <assimp/commonMetaData.h>
#include <assimp/scene.h>
#include <cmath>
#include <string>

namespace tool {

bool isGltf(const aiScene& scene)
{
    aiString format;
    return scene.mMetaData && scene.mMetaData->Get(AI_METADATA_SOURCE_FORMAT, format) &&
           std::string(format.C_Str()).compare(0, 4, "glTF") == 0;
}

// Another importer may do it right, and nothing but a camera tells.
static bool multiplies()
{
    static const std::string kText =
        R"({"asset":{"version":"2.0"},"scene":0,"scenes":[{"nodes":[0]}],"nodes":[{"camera":0}],)"
        R"("cameras":[{"type":"perspective","perspective":)"
        R"({"aspectRatio":2.0,"yfov":1.0,"znear":1.0}}]})";
    Assimp::Importer importer;
    const aiScene* scene = importer.ReadFileFromMemory(kText.data(), kText.size(), 0U, "gltf");
    return scene && scene->mNumCameras == 1 &&
           std::abs(scene->mCameras[0]->mHorizontalFOV - 2.0F) < 1e-3F;
}

double gltfWidth(const aiCamera& camera)
{
    static const bool kMultiplies = multiplies();
    const double width = camera.mHorizontalFOV;
    const double aspect = camera.mAspect;
    if (!kMultiplies || !(aspect > 0.0))
        return width;
    return 2.0 * std::atan(aspect * std::tan(width / aspect / 2.0));
}

} // namespace tool
