#pragma once

#include "geometry/CPolygonBase.h"
#include "geometry/CPolygonMgr.h"

#include <zel/IZelPolygon.h>

namespace OvZel {

/// A polygon of a mesh. The managers of its loops are made when somebody asks for them; kept by a
/// client they outlive the polygon.
class CPolygon : public CPolygonBase {
public:
    using CPolygonBase::CHoles;

    explicit CPolygon(IZelObjectLinkRef* owner) : CPolygonBase(owner) {}
    ~CPolygon() override;

    bool copy(IZelPolygon* other) override;
    bool isSmooth() const override { return mSmooth; }
    void setSmooth(bool smooth) override { mSmooth = smooth; }
    std::int32_t getMaterial() const override { return mMaterial; }
    void setMaterial(std::int32_t material) override { mMaterial = material; }
    TZelObjectMgr<CZelVertex>* getVertices() override { return &vertices().manager(); }
    TZelObjectMgr<IZelHole>* getHoles() override { return &holes(); }

    /// As copy, loop by loop in one piece.
    bool copyFrom(const CPolygon& other);
    /// The other one is not this polygon.
    bool copyFrom(const CPolygonView& other);
    /// Back to the state of a new polygon, with the memory kept.
    void clear();

    CLoopVertices vertices() const { return {verticesSlot(), this, 3}; }
    std::int32_t nbHoles() const
    {
        const CHoles* holes = holesIfAny();
        return holes != nullptr ? holes->size() : 0;
    }
    /// The index is good.
    const CLoop& hole(std::int32_t index) const { return *holesIfAny()->at(index); }
    CHoles& holes();

private:
    bool copyLoops(const CPolygonView& other);
    bool copyLoops(IZelPolygon& other);

    bool mSmooth = false;
    std::int32_t mMaterial = 0;
};

} // namespace OvZel
