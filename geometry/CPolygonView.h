#pragma once

#include "geometry/CPolygonMgr.h"

namespace OvZel {

/// What a polygon holds, whether there is an object for it or not. Stays right when an object is
/// made meanwhile; a loop is good until the polygon or its list changes or an object is made.
class CPolygonView {
public:
    explicit CPolygonView(const CPolygon& polygon) : mPolygon(&polygon) {}
    /// The index is good.
    CPolygonView(const CPolygonMgr& manager, std::int32_t index) : mManager(&manager), mIndex(index)
    {
    }

    bool isSmooth() const;
    std::int32_t getMaterial() const;
    /// The outer loop and the holes.
    std::int32_t nbLoops() const;
    /// The outer loop is the first; the index is good.
    std::span<const CZelVertex> loop(std::int32_t index) const;

private:
    const CPolygon* object() const
    {
        return mPolygon != nullptr ? mPolygon : mManager->objectAt(mIndex);
    }

    const CPolygon* mPolygon = nullptr;
    const CPolygonMgr* mManager = nullptr;
    std::int32_t mIndex = 0;
};

} // namespace OvZel
