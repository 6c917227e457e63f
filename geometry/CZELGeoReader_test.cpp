#include "geometry/CZELGeoReader.h"

#include "tests/support/CTestBlockHost.h"
#include "tests/support/vtable.h"

#include <gtest/gtest.h>

using namespace OvZel;
using ZelTest::CTestBlockHost;
using ZelTest::slotOf;

namespace {

/// A manager that has run out of memory.
class CFullPolygons : public CZELGeoReader::CPolygons {
public:
    using TObject2Mgr::TObject2Mgr;

    bool appendFlat(const CPolygonView&) override { return false; }

protected:
    CHeldPolygon make() override { throw std::bad_alloc(); }
};

} // namespace

TEST(GeoReader, AppendsWhateverTheIndex)
{
    CTestBlockHost host;
    const TZelComPtr<CZELGeoReader::CPoints> points(new CZELGeoReader::CPoints(nullptr));
    const TZelComPtr<CZELGeoReader::CPolygons> polygons(new CZELGeoReader::CPolygons(nullptr));
    CZELGeoReader storage(host.blockMgrRef(), *points, *polygons);
    CPolygon polygon(nullptr);
    for (const std::int32_t index : {7, 7, -3}) {
        const CZelPoint point{1.0, 2.0, static_cast<double>(points->size())};
        polygon.setMaterial(points->size());
        EXPECT_TRUE(storage.setPoint(&point, index));
        EXPECT_TRUE(storage.setPolygon(&polygon, index));
    }
    ASSERT_EQ(points->size(), 3);
    EXPECT_EQ(points->data()[2].z, 2.0);
    ASSERT_EQ(polygons->size(), 3);
    EXPECT_EQ(polygons->at(1)->getMaterial(), 1);
    storage.setNbPoints(1);
    EXPECT_EQ(points->size(), 0);
    EXPECT_EQ(polygons->size(), 3);
    storage.setNbPolygons(1);
    EXPECT_EQ(polygons->size(), 0);
}

TEST(GeoReader, RefusesAPolygonThatFindsNoMemory)
{
    CTestBlockHost host;
    const TZelComPtr<CZELGeoReader::CPoints> points(new CZELGeoReader::CPoints(nullptr));
    const TZelComPtr<CFullPolygons> polygons(new CFullPolygons(nullptr));
    CZELGeoReader storage(host.blockMgrRef(), *points, *polygons);
    CPolygon polygon(nullptr);
    EXPECT_FALSE(storage.setPolygon(&polygon, 0));
    EXPECT_FALSE(storage.append(polygon));
    const std::string text = "CZELGeoReader::setPolygon - Can't allocate polygon";
    EXPECT_EQ(host.messages, (std::vector<std::string>{text, text}));
}

TEST(GeoReader, RefusesAPolygonThatCannotBeCopied)
{
    CTestBlockHost host;
    const TZelComPtr<CZELGeoReader::CPoints> points(new CZELGeoReader::CPoints(nullptr));
    const TZelComPtr<CZELGeoReader::CPolygons> polygons(new CZELGeoReader::CPolygons(nullptr));
    CZELGeoReader storage(host.blockMgrRef(), *points, *polygons);
    EXPECT_FALSE(storage.setPolygon(nullptr, 0));
    EXPECT_EQ(host.messages,
              std::vector<std::string>{"CZELGeoReader::setPolygon - Can't allocate polygon"});
}

TEST(GeoReader, KeepsTheManagers)
{
    CTestBlockHost host;
    TZelComPtr<CZELGeoReader::CPoints> points(new CZELGeoReader::CPoints(nullptr));
    TZelComPtr<CZELGeoReader::CPolygons> polygons(new CZELGeoReader::CPolygons(nullptr));
    CZELGeoReader storage(host.blockMgrRef(), *points, *polygons);
    points.reset();
    polygons.reset();
    const CZelPoint point;
    EXPECT_TRUE(storage.setPoint(&point, 0));
}

TEST(GeoReader, Slots)
{
    using IReader = IZelExtStorageReader::IReader;
    // The destructor has the first two.
    EXPECT_EQ(slotOf(&IReader::setNbPoints), 2);
    EXPECT_EQ(slotOf(&IReader::setPoint), 3);
    EXPECT_EQ(slotOf(&IReader::setNbPolygons), 4);
    EXPECT_EQ(slotOf(&IReader::setPolygon), 5);
    EXPECT_EQ(slotOf(&IZelExtStorageReader::createGeometryReader), 0);
}
