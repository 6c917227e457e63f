#include "geometry/CPolygonsProvider.h"

#include "geometry/CZELGeoWriter.h"
#include "tests/support/CGeometrySection.h"
#include "tests/support/COwnStorage.h"

#include <gtest/gtest.h>

#include <functional>

using namespace OvZel;
using ZelTest::CGeometrySection;
using ZelTest::COwnStorage;
using ZelTest::CTestBlockHost;

namespace {

using CTexts = std::vector<std::string>;
using CFill = std::function<void(IZelPolygon&)>;

/// A client's storage, which fills the polygon that it is given.
class CPolygonStorage : public IZelExtStorageWriter {
public:
    class CWriter : public IWriter {
    public:
        explicit CWriter(CPolygonStorage& storage) : mStorage(storage) {}

        std::int32_t getNbPoints() override { return -1; }
        bool getPoint(CZelPoint*, std::int32_t) override { return false; }
        std::int32_t getNbPolygons() override
        {
            return mStorage.fails ? -1 : static_cast<std::int32_t>(mStorage.fills.size());
        }
        bool getPolygon(IZelPolygon* polygon, std::int32_t index) override
        {
            mStorage.fills[static_cast<std::size_t>(index)](*polygon);
            return index != mStorage.refused;
        }

    private:
        CPolygonStorage& mStorage;
    };

    IWriter* createGeometryWriter(const CZelUUID*) override
    {
        return isMissing ? nullptr : new CWriter(*this);
    }

    std::vector<CFill> fills;
    std::int32_t refused = -1;
    bool fails = false;
    bool isMissing = false;
};

void add(TZelObjectMgr<CZelVertex>* vertices, const std::vector<CZelVertex>& records)
{
    for (const CZelVertex& record : records)
        *vertices->newZelObject(-1) = record;
}

void square(IZelPolygon& polygon)
{
    add(polygon.getVertices(), {{0}, {1}, {2}, {3}});
    add(polygon.getHoles()->newZelObject(-1)->getVertices(), {{4}, {5}, {6}});
}

void triangle(IZelPolygon& polygon)
{
    polygon.setSmooth(true);
    polygon.setMaterial(1);
    add(polygon.getVertices(), {{0}, {1, CZelVertex::kFlagM, 0.5F, 0.25F}, {2}});
}

void empty(IZelPolygon&) {}

void flags(IZelPolygon& polygon)
{
    polygon.setMaterial(-3);
    const std::uint32_t both = CZelVertex::kFlagI | CZelVertex::kFlagM;
    // Without flag M u and v are not kept.
    add(polygon.getVertices(), {{-1, CZelVertex::kFlagI, 7.F, 8.F}, {2, both, -1.F, 0.F}});
}

void smoothSquare(IZelPolygon& polygon)
{
    square(polygon);
    polygon.setSmooth(true);
}

const struct {
    std::vector<CFill> fills;
    const char* text;
    CTexts messages;
} kCases[] = {
    {{}, "\n0 \n", {}},
    {{square, triangle}, "\n2 \nh\t0 2 4 0 1 2 3 3 4 5 6 \no\t1 3 0 M 0.5 0.25 1 2 \n", {}},
    {{empty, flags}, "\n2 \np\t0 0 \np\t-3 2 I -1 I M -1.0 0.0 2 \n", {}},
    {{smoothSquare, empty},
     "\n2 \nh\t0 2 4 0 1 2 3 3 4 5 6 \np\t0 0 \n",
     {"Holed polygon smoothed (smoothing will be loss)"}},
};

} // namespace

TEST(PolygonsProvider, ClientStorage)
{
    for (const auto& [fills, text, messages] : kCases) {
        CGeometrySection<CPolygonsProvider> section("Polygons");
        CPolygonStorage storage;
        storage.fills = fills;
        section.host.storage = &storage;
        EXPECT_TRUE(section.write());
        EXPECT_EQ(section.text(), text);
        EXPECT_EQ(section.host.messages, messages);
        ASSERT_FALSE(section.host.reports.empty());
        EXPECT_EQ(section.host.reports[0], CTestBlockHost::CReport(1000, 2000));
    }
}

TEST(PolygonsProvider, OwnStorage)
{
    for (const auto& [fills, text, messages] : kCases) {
        CGeometrySection<CPolygonsProvider> section("Polygons");
        const TZelComPtr<CZELGeoWriter::CPoints> points(new CZELGeoWriter::CPoints(nullptr));
        const TZelComPtr<CZELGeoWriter::CPolygons> polygons(new CZELGeoWriter::CPolygons(nullptr));
        for (const CFill& fill : fills)
            fill(*polygons->append());
        COwnStorage storage(section.host, *points, *polygons);
        section.host.storage = &storage;
        EXPECT_TRUE(section.write());
        EXPECT_EQ(section.text(), text);
        EXPECT_EQ(section.host.messages, messages);
    }
}

TEST(PolygonsProvider, Failures)
{
    const struct {
        const char* id;
        bool hasStorage;
        bool isMissing;
        bool fails;
        std::int32_t refused;
        const char* message;
    } cases[] = {
        {"00000000000000000000000000000000", true, false, false, -1,
         "CPolygonsProvider::Write2 - NULL UUID"},
        {nullptr, false, false, false, -1,
         "CZEL::getGeometryWriter - No external geometry reader set"},
        {nullptr, true, true, false, -1, "CPolygonsProvider::Write2 - Current writter is NULL"},
        {nullptr, true, false, true, -1, "CPolygonsProvider::Write2 - External storage return -1"},
        {nullptr, true, false, false, 0, "CPolygonsProvider::Write2 - External storage cancel IO"},
    };
    for (const auto& row : cases) {
        CGeometrySection<CPolygonsProvider> section("Polygons", row.id);
        CPolygonStorage storage;
        storage.fills = {square};
        storage.isMissing = row.isMissing;
        storage.fails = row.fails;
        storage.refused = row.refused;
        section.host.storage = row.hasStorage ? &storage : nullptr;
        EXPECT_FALSE(section.write()) << row.message;
        EXPECT_EQ(section.host.messages, CTexts{row.message});
    }
}

TEST(PolygonsProvider, CancelPassesThrough)
{
    CGeometrySection<CPolygonsProvider> section("Polygons");
    CPolygonStorage storage;
    storage.fills = {square};
    section.host.storage = &storage;
    section.host.cancel = true;
    EXPECT_THROW(section.write(), CZelCancelled);
    EXPECT_EQ(section.host.messages, CTexts{"Operation cancelled"});
}
