#include "geometry/CZELGeoReader.h"

#include "geometry/kRoomAhead.h"

#include <algorithm>

namespace OvZel {

namespace {

constexpr const char* kNoPolygon = "CZELGeoReader::setPolygon - Can't allocate polygon";

void replaceRecords(IZelObjectMgrBase& manager, std::int32_t count)
{
    manager.removeAllObjects();
    if (count > 0)
        manager.reserve(std::min(count, kRoomAhead));
}

} // namespace

CZELGeoReader::CZELGeoReader(IZelMgrRef& mgrRef, CPoints& points, CPolygons& polygons)
    : mMgrRef(&mgrRef), mPoints(&points), mPolygons(&polygons)
{
}

void CZELGeoReader::setNbPoints(std::int32_t count)
{
    replaceRecords(*mPoints, count);
}

bool CZELGeoReader::setPoint(const CZelPoint* point, std::int32_t)
{
    return append(*point);
}

void CZELGeoReader::setNbPolygons(std::int32_t count)
{
    replaceRecords(*mPolygons, count);
}

bool CZELGeoReader::setPolygon(IZelPolygon* polygon, std::int32_t)
{
    CPolygon* record = mPolygons->append();
    return (record != nullptr && record->copy(polygon)) || refuse(kNoPolygon);
}

bool CZELGeoReader::append(const CPolygon& polygon)
{
    CPolygon* record = mPolygons.get()->append();
    return (record != nullptr && record->copyFrom(polygon)) || refuse(kNoPolygon);
}

bool CZELGeoReader::refuse(const char* text) const
{
    CZelMgrRef::from(mMgrRef.get())->warning(text);
    return false;
}

} // namespace OvZel
