#include "geometry/CGeometryBlockReader.h"

#include "geometry/CPolygon.h"
#include "geometry/CZELGeoReader.h"
#include "tests/support/CTestBlockHost.h"
#include "tests/support/CXMLTextSource.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

using namespace OvZel;
using ZelTest::CTestBlockHost;
using ZelTest::CXMLTextSource;

namespace {

using CTexts = std::vector<std::string>;

constexpr const char* kNoNumber = "This is not a number";

/// Writes down what it is told, and refuses the record of one index.
class CRecordingStorage : public IZelExtStorageReader::IReader {
public:
    void setNbPoints(std::int32_t count) override
    {
        calls.push_back("points " + std::to_string(count));
    }
    bool setPoint(const CZelPoint* point, std::int32_t index) override
    {
        calls.push_back(std::to_string(index) + ": " + std::to_string(point->x) + " " +
                        std::to_string(point->y) + " " + std::to_string(point->z));
        return index != refused;
    }
    void setNbPolygons(std::int32_t count) override
    {
        calls.push_back("polygons " + std::to_string(count));
    }
    bool setPolygon(IZelPolygon* polygon, std::int32_t index) override
    {
        calls.push_back(std::to_string(index) + ": " + (polygon->isSmooth() ? "smooth " : "") +
                        std::to_string(polygon->getMaterial()) + ", " +
                        std::to_string(polygon->getVertices()->getNbObjects()) + " vertices, " +
                        std::to_string(polygon->getHoles()->getNbObjects()) + " holes");
        return index != refused;
    }

    CTexts calls;
    std::int32_t refused = -1;
};

using CRead = void (CGeometryBlockReader::*)();

constexpr CRead kPoints = &CGeometryBlockReader::readPoints;
constexpr CRead kPolygons = &CGeometryBlockReader::readPolygons;

/// Gives the text of the failure, or none.
std::string readBlock(CTestBlockHost& host, IZelExtStorageReader::IReader& storage, CRead read,
                      const std::string& text, std::size_t step = CXMLTextSource::kWhole)
{
    CXMLTextSource stream(text, step);
    OrvaneXML::CXMLBufferedReader in(&stream);
    CGeometryBlockReader reader(host, in, storage);
    try {
        (reader.*read)();
    } catch (const std::runtime_error& failure) {
        return failure.what();
    }
    return "";
}

constexpr const char* kExample = "\n2 \nh\t0 2 4 0 1 2 3 3 4 5 6 \no\t1 3 0 M 0.5 0.25 1 2 \n";

/// Remembers for how much room it was asked.
class CAskedPolygons : public CZELGeoReader::CPolygons {
public:
    using TObject2Mgr::TObject2Mgr;

    bool reserve(std::int32_t count) override
    {
        asked.push_back(count);
        return TObject2Mgr::reserve(count);
    }

    std::vector<std::int32_t> asked;
};

} // namespace

TEST(GeometryBlockReader, TellsTheStorageInOrder)
{
    const struct {
        CRead read;
        const char* text;
        CTexts calls;
    } cases[] = {
        {kPoints,
         "\n2 \n1.0 2.0 3.0 \n-0.5 0.0 7.25 \n",
         {"points 2", "0: 1.000000 2.000000 3.000000", "1: -0.500000 0.000000 7.250000"}},
        {kPolygons,
         kExample,
         {"polygons 2", "0: 0, 4 vertices, 1 holes", "1: smooth 1, 3 vertices, 0 holes"}},
        {kPoints, "\n0 \n", {"points 0"}},
        {kPolygons, "\n0 \n", {"polygons 0"}},
        {kPoints, "0", {"points 0"}},
        {kPoints, "1 1 2 3 garbage 4 5", {"points 1", "0: 1.000000 2.000000 3.000000"}},
        {kPolygons, "1 p 5 0 garbage", {"polygons 1", "0: 5, 0 vertices, 0 holes"}},
        {kPolygons, "1 h 5 1 0 ", {"polygons 1", "0: 5, 0 vertices, 0 holes"}},
    };
    for (const std::size_t step : {CXMLTextSource::kWhole, std::size_t{1}, std::size_t{7}}) {
        for (const auto& [read, text, calls] : cases) {
            CTestBlockHost host;
            CRecordingStorage storage;
            EXPECT_EQ(readBlock(host, storage, read, text, step), "") << text;
            EXPECT_EQ(storage.calls, calls) << text;
            EXPECT_EQ(host.messages, CTexts{}) << text;
        }
    }
}

TEST(GeometryBlockReader, CountsAreClaims)
{
    const struct {
        CRead read;
        const char* text;
        const char* told;
        const char* failure;
        CTexts messages;
    } cases[] = {
        {kPoints, "9999999 ", "points 9999999", kNoNumber, {}},
        {kPoints, "10000000 ", "points 10000000", kNoNumber, {"Numbers of points seems wrong"}},
        {kPoints, "-1 1 2 3 ", "points -1", "", {"Numbers of points seems wrong"}},
        {kPolygons, "9999999 ", "polygons 9999999", kNoNumber, {"Polygon type unknown"}},
        {kPolygons,
         "10000000 ",
         "polygons 10000000",
         kNoNumber,
         {"Numbers of polygons seems wrong", "Polygon type unknown"}},
        {kPolygons, "4294967295 p 0 0 ", "polygons -1", "", {"Numbers of polygons seems wrong"}},
    };
    for (const auto& [read, text, told, failure, messages] : cases) {
        CTestBlockHost host;
        CRecordingStorage storage;
        EXPECT_EQ(readBlock(host, storage, read, text), failure) << text;
        EXPECT_EQ(storage.calls, CTexts{told}) << text;
        EXPECT_EQ(host.messages, messages) << text;
    }
}

TEST(GeometryBlockReader, BlockThatEndsTooSoonFails)
{
    CTestBlockHost host;
    CRecordingStorage storage;
    EXPECT_EQ(readBlock(host, storage, kPoints, "2 1 2 3 4 5"), kNoNumber);
    EXPECT_EQ(storage.calls.size(), 2U);
    EXPECT_EQ(readBlock(host, storage, kPoints, ""), kNoNumber);
    EXPECT_EQ(readBlock(host, storage, kPolygons, " \n"), kNoNumber);
}

TEST(GeometryBlockReader, StorageCancels)
{
    for (const CRead read : {kPoints, kPolygons}) {
        CTestBlockHost host;
        CRecordingStorage storage;
        storage.refused = 1;
        const char* text = read == kPoints ? "3 1 1 1 2 2 2 3 3 3 " : "3 p 0 0 p 1 0 p 2 0 ";
        EXPECT_EQ(readBlock(host, storage, read, text), "External storage cancel IO");
        EXPECT_EQ(storage.calls.size(), 3U);
    }
}

TEST(GeometryBlockReader, ProgressCancels)
{
    for (const CRead read : {kPoints, kPolygons}) {
        CTestBlockHost host;
        host.cancel = true;
        CRecordingStorage storage;
        const char* text = read == kPoints ? "2 1 1 1 2 2 2 " : "2 p 0 0 p 1 0 ";
        EXPECT_EQ(readBlock(host, storage, read, text), "Operation cancelled");
        EXPECT_EQ(host.reports.size(), 1U);
        EXPECT_EQ(host.reports[0].first, read == kPoints ? 0 : 1000);
        EXPECT_EQ(host.reports[0].second, 2000);
    }
}

TEST(GeometryBlockReader, PointsAreTransformed)
{
    CTestBlockHost host;
    const double matrix[16] = {2, 0, 0, 0, 0, 3, 0, 0, 0, 0, 4, 0, 10, 20, 30, 1};
    host.blockMgrRef().setMatrix(matrix);
    CRecordingStorage storage;
    EXPECT_EQ(readBlock(host, storage, kPoints, "1 1 2 3 "), "");
    EXPECT_EQ(storage.calls.back(), "0: 12.000000 26.000000 42.000000");
}

TEST(GeometryBlockReader, ScratchPolygonMayBeKeptInParts)
{
    struct CKeeper : CRecordingStorage {
        bool setPolygon(IZelPolygon* polygon, std::int32_t) override
        {
            kept = TZelComPtr<TZelObjectMgr<CZelVertex>>(polygon->getVertices());
            return true;
        }
        TZelComPtr<TZelObjectMgr<CZelVertex>> kept;
    };
    CTestBlockHost host;
    CKeeper storage;
    EXPECT_EQ(readBlock(host, storage, kPolygons, kExample), "");
    EXPECT_EQ(storage.kept->getNbObjects(), 0);
}

TEST(GeometryBlockReader, OwnStorageIsFilledAndReplaced)
{
    CTestBlockHost host;
    const TZelComPtr<CZELGeoReader::CPoints> points(
        new CZELGeoReader::CPoints(&host.blockMgrRef()));
    const TZelComPtr<CZELGeoReader::CPolygons> polygons(
        new CZELGeoReader::CPolygons(&host.blockMgrRef()));
    CZELGeoReader storage(host.blockMgrRef(), *points, *polygons);
    for (int round = 0; round < 2; ++round) {
        EXPECT_EQ(readBlock(host, storage, kPoints, "2 1 2 3 4 5 6 "), "");
        EXPECT_EQ(readBlock(host, storage, kPolygons, kExample), "");
    }
    ASSERT_EQ(points->size(), 2);
    EXPECT_EQ(points->data()[1].z, 6.0);
    ASSERT_EQ(polygons->size(), 2);
    IZelPolygon* first = polygons->getZelObject(0);
    EXPECT_FALSE(first->isSmooth());
    ASSERT_EQ(first->getHoles()->getNbObjects(), 1);
    EXPECT_EQ(first->getHoles()->getZelObject(0)->getVertices()->getZelObject(2)->pointIndex, 6);
    IZelPolygon* second = polygons->getZelObject(1);
    EXPECT_TRUE(second->isSmooth());
    EXPECT_EQ(second->getMaterial(), 1);
    const CZelVertex* corner = second->getVertices()->getZelObject(1);
    EXPECT_EQ(corner->flags, CZelVertex::kFlagM);
    EXPECT_EQ(corner->u, 0.5F);
    EXPECT_EQ(corner->v, 0.25F);
    EXPECT_EQ(corner->pointIndex, 1);
}

TEST(GeometryBlockReader, OwnStorageMakesNoRoomForClaims)
{
    CTestBlockHost host;
    const TZelComPtr<CZELGeoReader::CPoints> points(
        new CZELGeoReader::CPoints(&host.blockMgrRef()));
    const TZelComPtr<CAskedPolygons> polygons(new CAskedPolygons(&host.blockMgrRef()));
    CZELGeoReader storage(host.blockMgrRef(), *points, *polygons);
    EXPECT_EQ(readBlock(host, storage, kPoints, "2147483647 1 2 3 "), kNoNumber);
    EXPECT_EQ(points->size(), 1);
    EXPECT_EQ(points->capacity(), 65'536);
    EXPECT_EQ(readBlock(host, storage, kPolygons, "2147483647 p 0 0 "), kNoNumber);
    EXPECT_EQ(polygons->size(), 1);
    EXPECT_EQ(polygons->asked, std::vector<std::int32_t>{65'536});
    EXPECT_EQ(readBlock(host, storage, kPoints, "-5 "), "");
    EXPECT_EQ(readBlock(host, storage, kPolygons, "-5 "), "");
    EXPECT_EQ(points->size() + polygons->size(), 0);
    EXPECT_EQ(polygons->asked.size(), 1U);
}

TEST(GeometryBlockReader, OwnStorageGrowsBeyondItsFirstRoom)
{
    CTestBlockHost host;
    const TZelComPtr<CZELGeoReader::CPoints> points(
        new CZELGeoReader::CPoints(&host.blockMgrRef()));
    const TZelComPtr<CZELGeoReader::CPolygons> polygons(
        new CZELGeoReader::CPolygons(&host.blockMgrRef()));
    CZELGeoReader storage(host.blockMgrRef(), *points, *polygons);
    std::string text = "70000 ";
    for (int i = 0; i < 70'000; ++i)
        text += std::to_string(i) + " 0 0 ";
    EXPECT_EQ(readBlock(host, storage, kPoints, text), "");
    ASSERT_EQ(points->size(), 70'000);
    EXPECT_EQ(points->data()[69'999].x, 69'999.0);
}
