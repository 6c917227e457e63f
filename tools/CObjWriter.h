#pragma once

#include "tools/CObjMaterials.h"
#include "tools/CObjPlaces.h"

#include <zel/CZelPoint.h>
#include <zel/CZelUUID.h>
#include <zel/IZelPolygon.h>

#include <cstdint>
#include <string>
#include <vector>

namespace tool {

class CFileWriteStream;

/// Writes meshes, as they come, as the text of an OBJ file, each wherever it is placed.
///
/// A mesh passes straight through at its first place, and is kept only while it has further ones.
/// OBJ knows no holes: the outer loop and each hole become a face of their own, behind a comment.
/// Loops that OBJ cannot hold, with less than three corners or with a corner at a point that the
/// mesh does not have, are left out. A place that mirrors the mesh turns the loops round, so that
/// their front stays in front.
class CObjWriter {
public:
    /// Keeps all three, which must outlive it.
    CObjWriter(CFileWriteStream& stream, const CObjPlaces& places, const CObjMaterials& materials)
        : mStream(stream), mPlaces(places), mMaterials(materials)
    {
    }

    /// The points of a mesh follow.
    void startPoints(const OvZel::CZelUUID& id);
    void addPoint(const OvZel::CZelPoint& point);
    /// The polygons of a mesh follow. They belong to the points just before, if these are of the
    /// same mesh; otherwise the mesh has no points.
    void startPolygons(const OvZel::CZelUUID& id);
    void addPolygon(OvZel::IZelPolygon& polygon);
    /// To be called behind the last mesh.
    void finish();

    std::uint64_t getNbWithHoles() const { return mNbWithHoles; }
    std::uint64_t getNbLeftOut() const { return mNbLeftOut; }

private:
    /// The corners of the polygons stand one behind the other, loop by loop.
    struct CPolygon {
        std::int32_t material = 0;
        std::uint32_t nbLoops = 0;
    };
    struct CMesh {
        std::vector<OvZel::CZelPoint> points;
        std::vector<CPolygon> polygons;
        std::vector<std::uint32_t> loopSizes;
        std::vector<OvZel::CZelVertex> corners;
    };

    void startMesh(const OvZel::CZelUUID& id);
    void startPlace(const CObjPlace& place);
    void writeKept();
    void writePoint(const OvZel::CZelPoint& point);
    void writePolygon(const CPolygon& polygon, const std::uint32_t* loopSizes,
                      const OvZel::CZelVertex* corners);
    void writeMaterial(std::int32_t material);
    void writeLoop(const OvZel::CZelVertex* corners, std::uint32_t nbCorners);
    void writeMapping(const OvZel::CZelVertex* corners, std::uint32_t nbCorners);
    bool isFace(const OvZel::CZelVertex* corners, std::uint32_t nbCorners) const;

    CFileWriteStream& mStream;
    const CObjPlaces& mPlaces;
    const CObjMaterials& mMaterials;
    std::string mLine;
    bool mHasMesh = false;
    OvZel::CZelUUID mMesh;
    const std::vector<std::string>* mMaterialNames = nullptr;
    const std::vector<CObjPlace>* mMeshPlaces = nullptr;
    const CObjPlace* mPlace = nullptr;
    bool mIsMirrored = false;
    CMesh mKept;                      // of a mesh with further places
    CMesh mPolygon;                   // the one at hand
    std::int64_t mNbPointsBefore = 0; // of the meshes already written
    std::int64_t mNbPoints = 0;       // of the mesh at hand
    std::int64_t mNbMappings = 0;
    std::string mMaterial;
    std::uint64_t mNbWithHoles = 0;
    std::uint64_t mNbLeftOut = 0;
};

} // namespace tool
