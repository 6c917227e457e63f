#pragma once

#include <zel/IZelPolygon.h>

#include <cstdint>
#include <string>

namespace tool {

/// Counts what is wrong with the polygons of one mesh, so that a broken mesh of a million polygons
/// takes a line, not a million.
class CMeshCheck {
public:
    struct CCount {
        std::uint64_t count = 0;
        std::int32_t first = 0; ///< index of the first polygon

        std::string text() const;
    };

    explicit CMeshCheck(std::int32_t nbPoints) : mNbPoints(nbPoints) {}

    void addPolygon(OvZel::IZelPolygon& polygon, std::int32_t index);
    const CCount& badCorners() const { return mBadCorners; }
    const CCount& shortLoops() const { return mShortLoops; }

private:
    void addLoop(OvZel::TZelObjectMgr<OvZel::CZelVertex>& vertices, std::int32_t index);

    std::int32_t mNbPoints;
    CCount mBadCorners;
    CCount mShortLoops;
};

} // namespace tool
