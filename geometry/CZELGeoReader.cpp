#include "geometry/CZELGeoReader.h"

#include "geometry/CFastReader.h"
#include "geometry/CPolygonView.h"

#include <algorithm>

namespace OvZel {

namespace {

constexpr const char* kNoPolygon = "CZELGeoReader::setPolygon - Can't allocate polygon";

/// Returns how many records there is room for now.
std::int32_t replaceRecords(IZelObjectMgrBase& manager, std::int32_t count)
{
    manager.removeAllObjects();
    const std::int32_t room = std::clamp(count, 0, CFastReader::kRoomAhead);
    if (room > 0)
        manager.reserve(room);
    return room;
}

} // namespace

CZELGeoReader::CZELGeoReader(IZelMgrRef& mgrRef, CPoints& points, CPolygons& polygons)
    : mMgrRef(&mgrRef), mPoints(&points), mPolygons(&polygons)
{
}

CZELGeoReader::~CZELGeoReader()
{
    if (mPoints->size() < mPointsRoom)
        mPoints->releaseSpareRoom();
    // These grow by doubling, and without their spare room they are half as large.
    if (mHasPolygons)
        mPolygons->releaseSpareRoom();
}

void CZELGeoReader::setNbPoints(std::int32_t count)
{
    mPointsRoom = replaceRecords(*mPoints, count);
}

bool CZELGeoReader::setPoint(const CZelPoint* point, std::int32_t)
{
    return append(*point);
}

void CZELGeoReader::setNbPolygons(std::int32_t count)
{
    replaceRecords(*mPolygons, count);
    mHasPolygons = true;
}

bool CZELGeoReader::setPolygon(IZelPolygon* polygon, std::int32_t)
{
    CPolygon* record = mPolygons->append();
    return (record != nullptr && record->copy(polygon)) || refuse(kNoPolygon);
}

bool CZELGeoReader::append(const CPolygon& polygon)
{
    return mPolygons.get()->appendFlat(CPolygonView(polygon)) || refuse(kNoPolygon);
}

bool CZELGeoReader::append(std::int32_t material, bool isSmooth, std::span<const CZelVertex> loop)
{
    return mPolygons.get()->appendFlat(material, isSmooth, loop) || refuse(kNoPolygon);
}

bool CZELGeoReader::refuse(const char* text) const
{
    CZelMgrRef::from(mMgrRef.get())->warning(text);
    return false;
}

} // namespace OvZel
