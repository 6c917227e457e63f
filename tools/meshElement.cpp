#include "tools/meshElement.h"

#include "tools/forEach.h"
#include "tools/sameValue.h"

#include <zel/CZelBox.h>
#include <zel/CZelVertex.h>
#include <zel/IZelImage.h>
#include <zel/xml/XIXMLElement.h>

#include <algorithm>
#include <cmath>

namespace tool {

using namespace OvZel;
using OrvaneXML::XIXMLElement;

static void addAttribute(XIXMLElement& element, const char* key, const std::string& value)
{
    element.AddAttribute(element.MakeKey(key), value.c_str());
}

static std::string pointText(const CZelPoint& point)
{
    return numberText(point.x) + " " + numberText(point.y) + " " + numberText(point.z);
}

static CZelBox boundsOf(TZelObjectMgr<CZelPoint>& points)
{
    if (points.getNbObjects() == 0)
        return {};
    CZelBox box{*points.getZelObject(0), *points.getZelObject(0)};
    forEach(points, [&](CZelPoint& point, std::int32_t) {
        box.minimum = {std::min(box.minimum.x, point.x), std::min(box.minimum.y, point.y),
                       std::min(box.minimum.z, point.z)};
        box.maximum = {std::max(box.maximum.x, point.x), std::max(box.maximum.y, point.y),
                       std::max(box.maximum.z, point.z)};
    });
    return box;
}

void addMesh(XIXMLElement& element, const CMesh& mesh)
{
    XIXMLElement& added = *element.AddElement(element.MakeKey("Mesh"));
    addAttribute(added, "Points", std::to_string(mesh.points->getNbObjects()));
    addAttribute(added, "Polygons", std::to_string(mesh.polygons->getNbObjects()));
}

// FNV-1a.
static std::uint64_t digestOf(const std::uint8_t* bytes, std::size_t size)
{
    std::uint64_t digest = 14695981039346656037U;
    for (std::size_t i = 0; i < size; ++i)
        digest = (digest ^ bytes[i]) * 1099511628211U;
    return digest;
}

void addPicture(XIXMLElement& element, IZelImage& image)
{
    std::uint32_t width = 0;
    std::uint32_t height = 0;
    std::uint8_t* pixels = nullptr;
    image.getImage(&width, &height, &pixels);
    addAttribute(element, "Width", std::to_string(width));
    addAttribute(element, "Height", std::to_string(height));
    if (pixels)
        addAttribute(element, "Digest",
                     std::to_string(digestOf(pixels, std::size_t{4} * width * height)));
}

namespace {

// Compares two meshes place by place.
class CMeshComparison {
public:
    CMeshComparison(const CMesh& a, const CMesh& b, double tolerance)
        : mA(a), mB(b), mTolerance(tolerance), mBoundsA(boundsOf(*a.points)),
          mBoundsB(boundsOf(*b.points))
    {
        const CZelPoint& end = mBoundsA.maximum;
        const CZelPoint& begin = mBoundsA.minimum;
        mSize = std::max({end.x - begin.x, end.y - begin.y, end.z - begin.z});
    }

    std::vector<CMeshDifference> differences() const
    {
        std::vector<CMeshDifference> all;
        comparePoints("Mesh/@Minimum", mBoundsA.minimum, mBoundsB.minimum, all);
        comparePoints("Mesh/@Maximum", mBoundsA.maximum, mBoundsB.maximum, all);
        CMeshDifference first = firstPoint();
        if (first.path.empty())
            first = firstPolygon();
        if (!first.path.empty())
            all.push_back(std::move(first));
        return all;
    }

private:
    CMeshDifference firstPoint() const
    {
        const std::int32_t count = std::min(mA.points->getNbObjects(), mB.points->getNbObjects());
        for (std::int32_t i = 0; i < count; ++i) {
            const CZelPoint& a = *mA.points->getZelObject(i);
            const CZelPoint& b = *mB.points->getZelObject(i);
            if (!isSame(a, b))
                return {"Mesh/Point[#" + std::to_string(i) + "]", pointText(a), pointText(b)};
        }
        return {};
    }

    CMeshDifference firstPolygon() const
    {
        const std::int32_t count =
            std::min(mA.polygons->getNbObjects(), mB.polygons->getNbObjects());
        for (std::int32_t i = 0; i < count; ++i) {
            CMeshDifference found =
                polygonDifference(*mA.polygons->getZelObject(i), *mB.polygons->getZelObject(i));
            if (found.path.empty())
                continue;
            found.path.insert(0, "Mesh/Polygon[#" + std::to_string(i) + "]/");
            return found;
        }
        return {};
    }

    CMeshDifference polygonDifference(IZelPolygon& a, IZelPolygon& b) const
    {
        if (a.getMaterial() != b.getMaterial())
            return {"@Material", std::to_string(a.getMaterial()), std::to_string(b.getMaterial())};
        if (a.isSmooth() != b.isSmooth())
            return {"@Smooth", a.isSmooth() ? "1" : "0", b.isSmooth() ? "1" : "0"};
        const std::int32_t nbHoles = a.getHoles()->getNbObjects();
        if (nbHoles != b.getHoles()->getNbObjects())
            return {"@Holes", std::to_string(nbHoles),
                    std::to_string(b.getHoles()->getNbObjects())};
        CMeshDifference found = loopDifference(*a.getVertices(), *b.getVertices());
        for (std::int32_t i = 0; i < nbHoles && found.path.empty(); ++i) {
            found = loopDifference(*a.getHoles()->getZelObject(i)->getVertices(),
                                   *b.getHoles()->getZelObject(i)->getVertices());
            if (!found.path.empty())
                found.path.insert(0, "Hole[#" + std::to_string(i) + "]/");
        }
        return found;
    }

    CMeshDifference loopDifference(TZelObjectMgr<CZelVertex>& a, TZelObjectMgr<CZelVertex>& b) const
    {
        if (a.getNbObjects() != b.getNbObjects())
            return {"@Corners", std::to_string(a.getNbObjects()), std::to_string(b.getNbObjects())};
        for (std::int32_t i = 0; i < a.getNbObjects(); ++i) {
            const CZelVertex& first = *a.getZelObject(i);
            const CZelVertex& second = *b.getZelObject(i);
            const std::string path = "Corner[#" + std::to_string(i) + "]";
            if (first.pointIndex != second.pointIndex)
                return {path + "/@Point", std::to_string(first.pointIndex),
                        std::to_string(second.pointIndex)};
            if (!isSameMapping(first, second))
                return {path + "/@UV", mappingText(first), mappingText(second)};
        }
        return {};
    }

    bool isSameMapping(const CZelVertex& a, const CZelVertex& b) const
    {
        if ((a.flags & CZelVertex::kFlagM) != (b.flags & CZelVertex::kFlagM))
            return false;
        const auto isSameMap = [&](double x, double y) {
            return isNear(x, y, std::max({1.0, std::abs(x), std::abs(y)}), mTolerance);
        };
        return !(a.flags & CZelVertex::kFlagM) || (isSameMap(a.u, b.u) && isSameMap(a.v, b.v));
    }

    static std::string mappingText(const CZelVertex& vertex)
    {
        if (!(vertex.flags & CZelVertex::kFlagM))
            return "none";
        return numberText(double{vertex.u}) + " " + numberText(double{vertex.v});
    }

    void comparePoints(const char* path, const CZelPoint& a, const CZelPoint& b,
                       std::vector<CMeshDifference>& all) const
    {
        if (!isSame(a, b))
            all.push_back({path, pointText(a), pointText(b)});
    }

    bool isSame(const CZelPoint& a, const CZelPoint& b) const
    {
        return isSame(a.x, b.x) && isSame(a.y, b.y) && isSame(a.z, b.z);
    }

    bool isSame(double a, double b) const
    {
        return isNear(a, b, std::max({mSize, std::abs(a), std::abs(b)}), mTolerance);
    }

    const CMesh& mA;
    const CMesh& mB;
    double mTolerance;
    CZelBox mBoundsA;
    CZelBox mBoundsB;
    double mSize = 0.0;
};

} // namespace

std::vector<CMeshDifference> meshDifferences(const CMesh& a, const CMesh& b, double tolerance)
{
    return CMeshComparison(a, b, tolerance).differences();
}

} // namespace tool
