#pragma once

#include "tools/CMeshSource.h"
#include "tools/CModelMaterials.h"
#include "tools/stableId.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

struct aiNode;
struct aiScene;

namespace OvZel {
class IZelMgr;
class IZelObjectInstance;
} // namespace OvZel

namespace tool {

/// Makes a document of an imported scene: a property for each material, a component for each mesh,
/// an instance for each place where a node puts one, a layer for each node below the root. The
/// meshes stay in the scene; the source gets to know which component has which.
///
/// Identifiers come from names: that of an instance from the names of the nodes on the way down to
/// it, without the root, which many formats name after the file; that of a component from the name
/// of its mesh, or from its first place where no other name tells the mesh from the rest.
///
/// A place that translation, rotation and scale cannot tell, or not exactly enough with the six
/// decimals that a file keeps, gets a component of its own with the points moved there.
class CSceneBuilder {
public:
    /// Keeps all three, which must outlive it.
    CSceneBuilder(OvZel::IZelMgr& document, const aiScene& scene, CMeshSource& source)
        : mDocument(document), mScene(scene), mSource(source), mMaterials(scene)
    {
    }

    /// To be called first.
    void addMaterials();
    /// All meshes as that of the document.
    void addWhole();
    /// The components with their instances and layers.
    void addComponents();
    std::uint64_t getNbMapsLeftOut() const { return mMaterials.getNbLeftOut(); }

private:
    /// One mesh at one node.
    struct CPlace {
        unsigned mesh = 0;
        const aiNode* node = nullptr;
        const aiNode* top = nullptr;
        OvZel::CZelUUID id; ///< of the node while the places are searched, then of the place
        CTransform transform;
        std::optional<CPlacement> placement; ///< nothing: the points have to be moved
    };

    void findPlaces();
    void findPlacesAt(const CPlace& place);
    OvZel::CZelUUID idOfMesh(unsigned mesh);
    void addDefinition(unsigned mesh, const std::string& name, const OvZel::CZelUUID& id);
    OvZel::CZelUUID componentOf(const CPlace& place);
    void addInstance(const CPlace& place);
    OvZel::CZelUUID layerOf(const std::string& name);

    OvZel::IZelMgr& mDocument;
    const aiScene& mScene;
    CMeshSource& mSource;
    CModelMaterials mMaterials;
    std::vector<CPlace> mPlaces;
    std::map<std::string, unsigned> mNbOfName;       // of the meshes
    std::map<unsigned, OvZel::CZelUUID> mFirstPlace; // by mesh
    CEqualNames mUnplaced;
    std::map<unsigned, OvZel::CZelUUID> mComponents; // by mesh, those whose points are not moved
    std::map<std::string, OvZel::CZelUUID> mLayers;
};

} // namespace tool
