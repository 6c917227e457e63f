#pragma once

#include "geometry/CZELGeoWriter.h"
#include "xml/IBlockHost.h"

namespace ZelTest {

/// Supplies a mesh as a document does.
class COwnStorage : public OvZel::IZelExtStorageWriter {
public:
    COwnStorage(OvZel::IBlockHost& host, OvZel::CZELGeoWriter::CPoints& points,
                OvZel::CZELGeoWriter::CPolygons& polygons)
        : mHost(host), mPoints(points), mPolygons(polygons)
    {
    }

    IWriter* createGeometryWriter(const OvZel::CZelUUID*) override
    {
        return new OvZel::CZELGeoWriter(mHost.blockMgrRef(), mPoints, mPolygons);
    }

private:
    OvZel::IBlockHost& mHost;
    OvZel::CZELGeoWriter::CPoints& mPoints;
    OvZel::CZELGeoWriter::CPolygons& mPolygons;
};

} // namespace ZelTest
