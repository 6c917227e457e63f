#include "geometry/CPolygonView.h"

#include "geometry/CPolygon.h"

namespace OvZel {

bool CPolygonView::isSmooth() const
{
    if (const CPolygon* polygon = object())
        return polygon->isSmooth();
    return mManager->recordAt(mIndex).smooth != 0;
}

std::int32_t CPolygonView::getMaterial() const
{
    if (const CPolygon* polygon = object())
        return polygon->getMaterial();
    return mManager->recordAt(mIndex).material;
}

std::int32_t CPolygonView::nbLoops() const
{
    if (const CPolygon* polygon = object())
        return 1 + polygon->nbHoles();
    return mManager->flat().nbLoops(mManager->recordAt(mIndex));
}

std::span<const CZelVertex> CPolygonView::loop(std::int32_t index) const
{
    const CPolygon* polygon = object();
    if (polygon == nullptr)
        return mManager->flat().loop(mManager->recordAt(mIndex), index);
    return index == 0 ? polygon->vertices().records()
                      : polygon->hole(index - 1).vertices().records();
}

} // namespace OvZel
