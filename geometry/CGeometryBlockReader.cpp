#include "geometry/CGeometryBlockReader.h"

#include "core/CZelMgrRef.h"
#include "core/OvThrow.h"
#include "geometry/CPacer.h"
#include "geometry/CPolygon.h"
#include "geometry/CZELGeoReader.h"
#include "xml/IBlockHost.h"

#include <stdexcept>

namespace OvZel {

namespace {

/// Compared unsigned, so that a negative count is too large as well.
bool isSuspect(std::int32_t count)
{
    return static_cast<std::uint32_t>(count) > 9'999'999;
}

void checkStored(bool stored)
{
    if (!stored)
        throw std::runtime_error("External storage cancel IO");
}

} // namespace

CGeometryBlockReader::CGeometryBlockReader(IBlockHost& host, OrvaneXML::CXMLBufferedReader& in,
                                           IZelExtStorageReader::IReader& storage)
    : mHost(host), mMgrRef(*CZelMgrRef::from(&host.blockMgrRef())), mIn(mMgrRef, in),
      mStorage(storage)
{
}

void CGeometryBlockReader::readPoints()
{
    const std::int32_t count = mIn.readInteger();
    if (isSuspect(count))
        mMgrRef.warning("Numbers of points seems wrong");
    mStorage.setNbPoints(count);
    auto* own = dynamic_cast<CZELGeoReader*>(&mStorage);
    CPacer pacer(mHost, 0, count);
    std::int32_t i = 0;
    for (; i < count; ++i) {
        double xyz[3];
        mIn.readPoint(xyz);
        // Every reference object is of this very class, so a point needs no virtual call.
        mMgrRef.CZelMgrRef::transformPoint(xyz);
        const CZelPoint point{xyz[0], xyz[1], xyz[2]};
        checkStored(own != nullptr ? own->append(point) : mStorage.setPoint(&point, i));
        pacer.step(i);
    }
    pacer.step(i);
}

void CGeometryBlockReader::readPolygons()
{
    const std::int32_t count = mIn.readInteger();
    if (isSuspect(count))
        mMgrRef.warning("Numbers of polygons seems wrong");
    mStorage.setNbPolygons(count);
    auto* own = dynamic_cast<CZELGeoReader*>(&mStorage);
    const TZelComPtr<CZELGeoReader::CPolygons> owner(new CZELGeoReader::CPolygons(&mMgrRef));
    CPolygon* scratch = owner->append();
    OvThrow::IfNULL(scratch);
    CPacer pacer(mHost, CPacer::kSpan, count);
    std::int32_t i = 0;
    CFastReader::CShortPolygon polygon;
    for (; i < count; ++i) {
        if (own != nullptr && mIn.readShort(polygon)) {
            checkStored(own->append(polygon.material, polygon.isSmooth, polygon.loop()));
        } else {
            mIn.readPolygon(*scratch);
            checkStored(own != nullptr ? own->append(*scratch) : mStorage.setPolygon(scratch, i));
            scratch->clear();
        }
        pacer.step(i);
    }
    pacer.step(i);
}

} // namespace OvZel
