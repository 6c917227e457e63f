#pragma once

#include "tools/CTransform.h"

#include <zel/CZelBox.h>
#include <zel/CZelUUID.h>
#include <zel/IZelExtStorageWriter.h>

#include <cstdint>
#include <map>
#include <vector>

struct aiMesh;
struct aiScene;

namespace tool {

/// Supplies the meshes of an imported scene to the document that is being saved, so that they are
/// never in memory a second time: each as the mesh of a component, or all as that of the document.
///
/// Corners of one mesh at exactly the same place share a point. Mapping numbers stand at the
/// corners, so that a seam in the mapping needs no second point. Points and lines of the scene are
/// left out.
class CMeshSource final : public OvZel::IZelExtStorageWriter {
public:
    /// Keeps the scene, which must outlive it. Throws CToolError(eNotReadable) for a mesh that a
    /// document cannot hold.
    explicit CMeshSource(const aiScene& scene);

    /// All meshes, one behind the other, become the mesh of the document. The vector, which must
    /// outlive this object, has the property of each material of the scene.
    void setWhole(const std::vector<std::int32_t>& properties);
    /// The mesh of that number becomes the mesh of that component; its polygons have the first
    /// material of the component. A transform moves its points.
    void setComponent(const OvZel::CZelUUID& id, unsigned mesh,
                      const CTransform* transform = nullptr);

    IWriter* createGeometryWriter(const OvZel::CZelUUID* id) override;

    std::int32_t getNbPolygons(unsigned mesh) const { return mMeshes[mesh].nbPolygons; }
    /// Around all points of the mesh.
    const OvZel::CZelBox& getBox(unsigned mesh) const { return mMeshes[mesh].box; }
    /// The number of points and lines that were left out.
    std::uint64_t getNbLeftOut() const { return mNbLeftOut; }

private:
    friend class CMeshWriter;

    struct CMesh {
        std::vector<std::int32_t> pointOfVertex;
        std::int32_t nbPoints = 0;
        std::int32_t nbPolygons = 0;
        OvZel::CZelBox box;
    };
    /// What stands in one mesh of the document.
    struct CBlock {
        unsigned begin = 0;
        unsigned end = 0;
        std::int32_t nbPoints = 0;
        std::int32_t nbPolygons = 0;
        bool isMoved = false;
        CTransform transform;
    };

    void addMesh(const aiMesh& mesh);
    CBlock blockOf(unsigned begin, unsigned end) const;

    const aiScene& mScene;
    std::vector<CMesh> mMeshes;
    std::map<OvZel::CZelUUID, CBlock> mBlocks;
    const std::vector<std::int32_t>* mProperties = nullptr; // null: polygons have the first one
    std::uint64_t mNbLeftOut = 0;
};

} // namespace tool
