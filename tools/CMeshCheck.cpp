#include "tools/CMeshCheck.h"

namespace tool {

std::string CMeshCheck::CCount::text() const
{
    return std::to_string(count) + ", the first in polygon " + std::to_string(first);
}

static void count(CMeshCheck::CCount& what, std::int32_t index)
{
    if (what.count++ == 0)
        what.first = index;
}

void CMeshCheck::addPolygon(OvZel::IZelPolygon& polygon, std::int32_t index)
{
    addLoop(*polygon.getVertices(), index);
    for (std::int32_t i = 0; i < polygon.getHoles()->getNbObjects(); ++i)
        addLoop(*polygon.getHoles()->getZelObject(i)->getVertices(), index);
}

void CMeshCheck::addLoop(OvZel::TZelObjectMgr<OvZel::CZelVertex>& vertices, std::int32_t index)
{
    const std::int32_t nbCorners = vertices.getNbObjects();
    if (nbCorners < 3)
        count(mShortLoops, index);
    for (std::int32_t i = 0; i < nbCorners; ++i) {
        const std::int32_t point = vertices.getZelObject(i)->pointIndex;
        if (point < 0 || point >= mNbPoints)
            count(mBadCorners, index);
    }
}

} // namespace tool
