#pragma once

#include <zel/CZelPoint.h>
#include <zel/CZelUUID.h>
#include <zel/IZelPolygon.h>

#include <cstdint>
#include <string>

namespace tool {

class CFileWriteStream;

/// Writes meshes, as they come, as the text of an OBJ file, the same in every locale.
///
/// OBJ knows no holes: the outer loop and each hole become a face of their own, behind a comment.
/// Loops that OBJ cannot hold, with less than three corners or with a corner at a point that the
/// mesh does not have, are left out.
class CObjWriter {
public:
    explicit CObjWriter(CFileWriteStream& stream) : mStream(stream) {}

    /// The points of a mesh follow; that of a component gets a name from its identifier.
    void startPoints(const OvZel::CZelUUID& id);
    void addPoint(const OvZel::CZelPoint& point);
    /// The polygons of a mesh follow. They belong to the points just before, if these are of the
    /// same mesh; otherwise the mesh has no points.
    void startPolygons(const OvZel::CZelUUID& id);
    void addPolygon(OvZel::IZelPolygon& polygon);

    std::uint64_t getNbWithHoles() const { return mNbWithHoles; }
    std::uint64_t getNbLeftOut() const { return mNbLeftOut; }

private:
    using CVertices = OvZel::TZelObjectMgr<OvZel::CZelVertex>;

    void addMaterial(std::int32_t material);
    void addLoop(CVertices& vertices);
    void addMapping(CVertices& vertices);
    bool isFace(CVertices& vertices) const;
    void addReal(double value);
    void addInteger(std::int64_t value);

    CFileWriteStream& mStream;
    std::string mLine;
    OvZel::CZelUUID mMesh;
    std::int64_t mNbPointsBefore = 0; // of the meshes already written
    std::int64_t mNbPoints = 0;       // of the mesh at hand
    std::int64_t mNbMappings = 0;
    std::int32_t mMaterial = 0;
    bool mHasMaterial = false;
    std::uint64_t mNbWithHoles = 0;
    std::uint64_t mNbLeftOut = 0;
};

} // namespace tool
