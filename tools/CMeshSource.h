#pragma once

#include <zel/IZelExtStorageWriter.h>

#include <cstdint>
#include <vector>

struct aiMesh;
struct aiScene;

namespace tool {

/// Supplies the meshes of an imported scene as the mesh of the document that is being saved, so
/// that they are never in memory a second time.
///
/// Corners of one mesh at exactly the same place share a point. Mapping numbers stand at the
/// corners, so that a seam in the mapping needs no second point. The material index of a polygon is
/// that of the scene. Points and lines of the scene are left out.
class CMeshSource final : public OvZel::IZelExtStorageWriter {
public:
    /// Keeps the scene, which must outlive it. Throws CToolError(eNotReadable) for a mesh that a
    /// document cannot hold.
    explicit CMeshSource(const aiScene& scene);

    IWriter* createGeometryWriter(const OvZel::CZelUUID* id) override;
    /// The number of points and lines that were left out.
    std::uint64_t getNbLeftOut() const { return mNbLeftOut; }

private:
    friend class CMeshWriter;

    void addMesh(const aiMesh& mesh);
    void addPoints(const aiMesh& mesh);

    const aiScene& mScene;
    std::vector<std::int32_t> mPointOfVertex; // of all meshes, one behind the other
    std::int32_t mNbPoints = 0;
    std::int32_t mNbPolygons = 0;
    std::uint64_t mNbLeftOut = 0;
};

} // namespace tool
