#pragma once

#include "geometry/CPolygon.h"

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

    bool isSmooth() const
    {
        const CPolygon* polygon = object();
        return polygon != nullptr ? polygon->isSmooth() : record().smooth != 0;
    }
    std::int32_t getMaterial() const
    {
        const CPolygon* polygon = object();
        return polygon != nullptr ? polygon->getMaterial() : record().material;
    }
    /// The outer loop and the holes.
    std::int32_t nbLoops() const
    {
        const CPolygon* polygon = object();
        return polygon != nullptr ? 1 + polygon->nbHoles() : mManager->flat().nbLoops(record());
    }
    /// The outer loop is the first; the index is good.
    std::span<const CZelVertex> loop(std::int32_t index) const
    {
        const CPolygon* polygon = object();
        if (polygon == nullptr)
            return mManager->flat().loop(record(), index);
        return index == 0 ? polygon->vertices().records()
                          : polygon->hole(index - 1).vertices().records();
    }

private:
    const CPolygon* object() const
    {
        return mPolygon != nullptr ? mPolygon : mManager->objectAt(mIndex);
    }
    const CPolygonRecord& record() const { return mManager->recordAt(mIndex); }

    const CPolygon* mPolygon = nullptr;
    const CPolygonMgr* mManager = nullptr;
    std::int32_t mIndex = 0;
};

} // namespace OvZel
