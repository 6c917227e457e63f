#pragma once

#include "tools/CMeshCheck.h"

#include <zel/CZelPoint.h>
#include <zel/IZelPolygon.h>

#include <cstdint>
#include <vector>

namespace tool {

/// Counts the polygons of one mesh that have a shape or a material which cannot be shown.
class CShapeCheck {
public:
    CShapeCheck(OvZel::TZelObjectMgr<OvZel::CZelPoint>& points, std::int32_t nbMaterials)
        : mPoints(points), mNbMaterials(nbMaterials)
    {
    }

    void addPolygon(OvZel::IZelPolygon& polygon, std::int32_t index);
    /// Polygons with a loop that encloses no area or has a corner at the same place as the one
    /// before. Loops that have too few corners, or corners at points that the mesh does not have,
    /// do not count.
    const CMeshCheck::CCount& degenerate() const { return mDegenerate; }
    const CMeshCheck::CCount& withoutMaterial() const { return mWithoutMaterial; }

private:
    bool isDegenerate(OvZel::TZelObjectMgr<OvZel::CZelVertex>& vertices);
    bool collect(OvZel::TZelObjectMgr<OvZel::CZelVertex>& vertices);

    OvZel::TZelObjectMgr<OvZel::CZelPoint>& mPoints;
    std::int32_t mNbMaterials;
    std::vector<OvZel::CZelPoint> mCorners; // of the loop at hand
    CMeshCheck::CCount mDegenerate;
    CMeshCheck::CCount mWithoutMaterial;
};

} // namespace tool
