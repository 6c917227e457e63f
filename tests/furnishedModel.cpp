#ifdef ZEL_TOOL // without the tool there is nothing to test

#include "tests/furnishedModel.h"

#include "tests/toolRun.h"

#include <assimp/Exporter.hpp>
#include <assimp/Importer.hpp>
#include <assimp/SceneCombiner.h>
#include <assimp/scene.h>
#include <filesystem>
#include <memory>
#include <stdexcept>

namespace fs = std::filesystem;

static constexpr const char* kHouse = "/usr/share/assimp/models/IFC/AC14-FZK-Haus.ifc";
static const std::string kArchives = "/usr/share/sweethome3d/furniture/";

std::string missingModelPackages()
{
    std::string missing;
    if (!fs::exists(kHouse))
        missing += " assimp-testmodels";
    if (!fs::exists(kArchives))
        missing += " sweethome3d-furniture";
    if (!fs::exists("/usr/bin/unzip"))
        missing += " unzip";
    return missing;
}

static aiScene* loadScene(const std::string& path)
{
    Assimp::Importer importer;
    if (!importer.ReadFile(path, 0U))
        throw std::runtime_error(path + ": " + importer.GetErrorString());
    return importer.GetOrphanedScene();
}

static aiScene* loadPiece(const CTempFolder& folder, const CFurniture& piece)
{
    const std::string files = fs::path(piece.file).parent_path().string() + "/*";
    const CRun run = runProgram(
        {"unzip", "-oq", kArchives + piece.archive, files, "-d", folder.file("furniture")});
    if (run.code != 0)
        throw std::runtime_error(run.messages);
    aiScene* scene = loadScene(folder.file("furniture/" + piece.file));
    scene->mRootNode->mName.Set(piece.name);
    aiMatrix4x4::Translation({piece.x, piece.y, piece.z}, scene->mRootNode->mTransformation);
    return scene;
}

static void addCamera(aiScene& scene)
{
    auto* camera = new aiCamera;
    camera->mName.Set("Garden");
    scene.mCameras = new aiCamera* [1] { camera };
    scene.mNumCameras = 1;
    aiNode* node = new aiNode("Garden");
    scene.mRootNode->addChildren(1, &node);
}

std::string makeFurnishedModel(const CTempFolder& folder, const std::string& name,
                               const std::vector<CFurniture>& pieces)
{
    aiScene* house = loadScene(kHouse);
    addCamera(*house);
    std::vector<Assimp::AttachmentInfo> furniture;
    for (const CFurniture& piece : pieces)
        furniture.emplace_back(loadPiece(folder, piece), house->mRootNode);
    aiScene* merged = nullptr;
    Assimp::SceneCombiner::MergeScenes(&merged, house, furniture, 0U); // which owns them now
    const std::unique_ptr<aiScene> scene(merged);
    const std::string path = folder.file(name);
    // Of the importer's formats the one that keeps nodes, names and cameras as they are.
    if (Assimp::Exporter().Export(scene.get(), "assbin", path) != aiReturn_SUCCESS)
        throw std::runtime_error(path + ": not written");
    return path;
}

#endif
