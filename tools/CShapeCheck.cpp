#include "tools/CShapeCheck.h"

#include <algorithm>
#include <cmath>

namespace tool {

using OvZel::CZelPoint;

// Area by the square of the loop's size, below which the area is nothing but rounding.
static constexpr double kFlat = 1e-12;

static CZelPoint minus(const CZelPoint& a, const CZelPoint& b)
{
    return {a.x - b.x, a.y - b.y, a.z - b.z};
}

static double lengthOf(const CZelPoint& v)
{
    return std::hypot(v.x, v.y, v.z);
}

static bool isSame(const CZelPoint& a, const CZelPoint& b)
{
    return a.x == b.x && a.y == b.y && a.z == b.z;
}

static void addCross(CZelPoint& sum, const CZelPoint& a, const CZelPoint& b)
{
    sum.x += a.y * b.z - a.z * b.y;
    sum.y += a.z * b.x - a.x * b.z;
    sum.z += a.x * b.y - a.y * b.x;
}

// Counted from the first corner, so that a mesh far from the origin loses no digits.
static bool hasNoArea(const std::vector<CZelPoint>& corners)
{
    CZelPoint sum;
    double size = 0.0;
    for (std::size_t i = 1; i + 1 < corners.size(); ++i) {
        const CZelPoint one = minus(corners[i], corners[0]);
        const CZelPoint two = minus(corners[i + 1], corners[0]);
        addCross(sum, one, two);
        size = std::max({size, lengthOf(one), lengthOf(two)});
    }
    return !(lengthOf(sum) > kFlat * size * size);
}

static bool repeatsACorner(const std::vector<CZelPoint>& corners)
{
    return std::adjacent_find(corners.begin(), corners.end(), isSame) != corners.end() ||
           isSame(corners.front(), corners.back());
}

static void count(CMeshCheck::CCount& what, std::int32_t index)
{
    if (what.count++ == 0)
        what.first = index;
}

void CShapeCheck::addPolygon(OvZel::IZelPolygon& polygon, std::int32_t index)
{
    if (polygon.getMaterial() < 0 || polygon.getMaterial() >= mNbMaterials)
        count(mWithoutMaterial, index);
    bool isBad = isDegenerate(*polygon.getVertices());
    for (std::int32_t i = 0; !isBad && i < polygon.getHoles()->getNbObjects(); ++i)
        isBad = isDegenerate(*polygon.getHoles()->getZelObject(i)->getVertices());
    if (isBad)
        count(mDegenerate, index);
}

bool CShapeCheck::isDegenerate(OvZel::TZelObjectMgr<OvZel::CZelVertex>& vertices)
{
    return collect(vertices) && (repeatsACorner(mCorners) || hasNoArea(mCorners));
}

bool CShapeCheck::collect(OvZel::TZelObjectMgr<OvZel::CZelVertex>& vertices)
{
    mCorners.clear();
    for (std::int32_t i = 0; i < vertices.getNbObjects(); ++i) {
        const std::int32_t point = vertices.getZelObject(i)->pointIndex;
        if (point < 0 || point >= mPoints.getNbObjects())
            return false;
        mCorners.push_back(*mPoints.getZelObject(point));
    }
    return mCorners.size() >= 3;
}

} // namespace tool
