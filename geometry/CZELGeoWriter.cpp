#include "geometry/CZELGeoWriter.h"

namespace OvZel {

CZELGeoWriter::CZELGeoWriter(IZelMgrRef& mgrRef, CPoints& points, CPolygons& polygons)
    : mMgrRef(&mgrRef), mPoints(&points), mPolygons(&polygons)
{
}

bool CZELGeoWriter::getPoint(CZelPoint* point, std::int32_t index)
{
    const CZelPoint* record = mPoints->getZelObject(index);
    if (record == nullptr)
        return refuse("CZELGeoWriter::getPoint - Invalid point index");
    *point = *record;
    return true;
}

bool CZELGeoWriter::getPolygon(IZelPolygon* polygon, std::int32_t index)
{
    IZelPolygon* record = mPolygons->getZelObject(index);
    if (record == nullptr)
        return refuse("CZELGeoWriter::getPolygon - Invalid polygon index");
    return polygon->copy(record);
}

bool CZELGeoWriter::refuse(const char* text) const
{
    CZelMgrRef::from(mMgrRef.get())->warning(text);
    return false;
}

} // namespace OvZel
