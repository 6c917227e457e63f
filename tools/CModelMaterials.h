#pragma once

#include "tools/CUniqueNames.h"

#include <zel/TZelObjectMgr.h>

#include <cstdint>
#include <vector>

struct aiMaterial;
struct aiScene;
struct aiString;

namespace OvZel {
class IZelProperty;
}

namespace tool {

/// Makes properties of the materials of an imported scene: name, colours, glossiness and the maps
/// with the names that they have in the model.
///
/// Some importers give each use of a material a copy of its own: copies become one property. Names
/// that different materials share get a number.
class CModelMaterials {
public:
    /// Keeps the scene, which must outlive it.
    explicit CModelMaterials(const aiScene& scene) : mScene(scene) {}

    /// Adds all of them to an empty list.
    void addTo(OvZel::TZelObjectMgr<OvZel::IZelProperty>& properties);
    /// The index of the property of each material, in the order of the scene.
    const std::vector<std::int32_t>& getIndices() const { return mIndices; }
    /// The number of maps that are in the model itself, without a file name, and were left out.
    std::uint64_t getNbLeftOut() const { return mNbLeftOut; }

private:
    void fill(OvZel::IZelProperty& property, const aiMaterial& material);
    void fillMaps(OvZel::IZelProperty& property, const aiMaterial& material);
    const char* urlOf(const aiString& path);

    const aiScene& mScene;
    std::vector<std::int32_t> mIndices;
    CUniqueNames mNames;
    std::uint64_t mNbLeftOut = 0;
};

} // namespace tool
