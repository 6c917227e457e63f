#pragma once

#include <zel/IZelMgr.h>

#include <cstdint>
#include <vector>

struct aiFace;
struct aiMesh;
struct aiScene;

namespace tool {

/// Puts the meshes of an imported scene into the document's point and polygon lists.
///
/// Corners of one mesh at exactly the same place share a point. Mapping numbers stand at the
/// corners, so that a seam in the mapping needs no second point. The material index of a polygon is
/// that of the scene. Points and lines of the scene are left out.
class CMeshFiller {
public:
    explicit CMeshFiller(OvZel::IZelMgr& document);

    /// Throws CToolError(eNotReadable) for a mesh that a document cannot hold.
    void addScene(const aiScene& scene);
    /// The number of points and lines that were left out.
    std::uint64_t getNbLeftOut() const { return mNbLeftOut; }

private:
    void addMesh(const aiMesh& mesh);
    void addPoints(const aiMesh& mesh);
    void addPolygon(const aiMesh& mesh, const aiFace& face);

    OvZel::TZelObjectMgr<OvZel::CZelPoint>& mPoints;
    OvZel::TZelObjectMgr<OvZel::IZelPolygon>& mPolygons;
    std::vector<std::int32_t> mPointOfVertex; // of the mesh at hand
    std::uint64_t mNbLeftOut = 0;
};

} // namespace tool
