#include "geometry/CZELGeoWriter.h"

#include "tests/support/CTestBlockHost.h"
#include "tests/support/vtable.h"

#include <gtest/gtest.h>

using namespace OvZel;
using ZelTest::CTestBlockHost;
using ZelTest::slotOf;

TEST(GeoWriter, SuppliesTheRecords)
{
    CTestBlockHost host;
    const TZelComPtr<CZELGeoWriter::CPoints> points(
        new CZELGeoWriter::CPoints(&host.blockMgrRef()));
    const TZelComPtr<CZELGeoWriter::CPolygons> polygons(
        new CZELGeoWriter::CPolygons(&host.blockMgrRef()));
    *points->append() = {1.0, 2.0, 3.0};
    polygons->append()->setMaterial(9);
    CZELGeoWriter storage(host.blockMgrRef(), *points, *polygons);
    EXPECT_EQ(storage.getNbPoints(), 1);
    EXPECT_EQ(storage.getNbPolygons(), 1);
    CZelPoint point;
    EXPECT_TRUE(storage.getPoint(&point, 0));
    EXPECT_EQ(point.z, 3.0);
    CPolygon polygon(nullptr);
    EXPECT_TRUE(storage.getPolygon(&polygon, 0));
    EXPECT_EQ(polygon.getMaterial(), 9);
    EXPECT_EQ(host.messages, std::vector<std::string>{});
}

TEST(GeoWriter, BadIndicesWarnTwice)
{
    CTestBlockHost host;
    const TZelComPtr<CZELGeoWriter::CPoints> points(
        new CZELGeoWriter::CPoints(&host.blockMgrRef()));
    const TZelComPtr<CZELGeoWriter::CPolygons> polygons(
        new CZELGeoWriter::CPolygons(&host.blockMgrRef()));
    CZELGeoWriter storage(host.blockMgrRef(), *points, *polygons);
    CZelPoint point;
    CPolygon polygon(nullptr);
    EXPECT_FALSE(storage.getPoint(&point, 0));
    EXPECT_FALSE(storage.getPolygon(&polygon, -1));
    EXPECT_EQ(host.messages,
              (std::vector<std::string>{"getZelObject: Bad index value",
                                        "CZELGeoWriter::getPoint - Invalid point index",
                                        "getZelObject: Bad index value",
                                        "CZELGeoWriter::getPolygon - Invalid polygon index"}));
}

TEST(GeoWriter, Slots)
{
    using IWriter = IZelExtStorageWriter::IWriter;
    // The destructor has the first two.
    EXPECT_EQ(slotOf(&IWriter::getNbPoints), 2);
    EXPECT_EQ(slotOf(&IWriter::getPoint), 3);
    EXPECT_EQ(slotOf(&IWriter::getNbPolygons), 4);
    EXPECT_EQ(slotOf(&IWriter::getPolygon), 5);
    EXPECT_EQ(slotOf(&IZelExtStorageWriter::createGeometryWriter), 0);
}
