#pragma once

#include <zel/CZelVertex.h>
#include <zel/TZelObjectMgr.h>

namespace OvZel {

/// A polygon of a mesh: an outer loop, inner loops, a material index.
///
/// Polygons belong to their list and have no count of their own: the pointer stays valid and the
/// same until the polygon is removed. Its managers of vertices and holes are counted: kept by a
/// client they outlive the polygon, with their records.
class IZelPolygon {
public:
    static constexpr CZelUUID sIID{"F30DC520463B4D53950CEE9DFAF36FF2"};

    /// An inner loop.
    class IZelHole {
    public:
        static constexpr CZelUUID sIID{"FE405466A1354D50934C1DC31C061D78"};

        /// The corners of the loop; never null, good as long as it.
        virtual const TZelObjectMgr<CZelVertex>* getVertices() const = 0;
        virtual TZelObjectMgr<CZelVertex>* getVertices() = 0;

    protected:
        virtual ~IZelHole() = default;
    };

    /// Takes over everything of the other polygon; what was here goes first. The polygon itself is
    /// a copy already. False when memory runs out, with the polygon filled as far as it came.
    virtual bool copy(IZelPolygon* other) = 0;
    /// False in a new polygon. A smoothed polygon with holes is saved unsmoothed, with a warning.
    virtual bool isSmooth() const = 0;
    virtual void setSmooth(bool smooth) = 0;
    /// Index into the materials, 0 in a new polygon; never checked.
    virtual std::int32_t getMaterial() const = 0;
    virtual void setMaterial(std::int32_t material) = 0;
    /// The corners of the loop; never null, good as long as it.
    virtual TZelObjectMgr<CZelVertex>* getVertices() = 0;
    /// The inner loops; never null, good as long as the polygon.
    virtual TZelObjectMgr<IZelHole>* getHoles() = 0;

protected:
    ~IZelPolygon() = default;
};

} // namespace OvZel
