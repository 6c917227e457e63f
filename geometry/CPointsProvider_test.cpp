#include "geometry/CPointsProvider.h"

#include "geometry/CZELGeoWriter.h"
#include "tests/support/CGeometrySection.h"
#include "tests/support/COwnStorage.h"
#include "tests/support/textOf.h"

#include <gtest/gtest.h>

using namespace OvZel;
using ZelTest::CGeometrySection;
using ZelTest::COwnStorage;
using ZelTest::CTestBlockHost;
using ZelTest::CXMLTextTarget;
using ZelTest::textOf;

namespace {

using CTexts = std::vector<std::string>;

/// A client's storage of a few points.
class CPointStorage : public IZelExtStorageWriter {
public:
    class CWriter : public IWriter {
    public:
        explicit CWriter(CPointStorage& storage) : mStorage(storage) {}
        ~CWriter() override { mStorage.calls.push_back("destroy"); }

        std::int32_t getNbPoints() override
        {
            mStorage.calls.push_back("count");
            return mStorage.count;
        }
        bool getPoint(CZelPoint* point, std::int32_t index) override
        {
            mStorage.calls.push_back("point " + std::to_string(index));
            *point = {1.5, index + 0.25, -2.0};
            return index != mStorage.refused;
        }
        std::int32_t getNbPolygons() override { return -1; }
        bool getPolygon(IZelPolygon*, std::int32_t) override { return false; }

    private:
        CPointStorage& mStorage;
    };

    IWriter* createGeometryWriter(const CZelUUID* id) override
    {
        calls.push_back(textOf(*id));
        return isMissing ? nullptr : new CWriter(*this);
    }

    CTexts calls;
    std::int32_t count = 2;
    std::int32_t refused = -1;
    bool isMissing = false;
};

constexpr const char* kNullId = "00000000000000000000000000000000";
constexpr const char* kId = "00112233445566778899AABBCCDDEEFF";

} // namespace

TEST(PointsProvider, AsksTheStorageInOrder)
{
    const struct {
        const char* attribute;
        const char* told;
    } cases[] = {{nullptr, kNullId}, {kId, kId}};
    for (const auto& [attribute, told] : cases) {
        CGeometrySection<CPointsProvider> section("Points", attribute);
        CPointStorage storage;
        section.host.storage = &storage;
        EXPECT_TRUE(section.write());
        EXPECT_EQ(section.text(), "\n2 \n1.5 0.25 -2.0 \n1.5 1.25 -2.0 \n");
        EXPECT_EQ(storage.calls, (CTexts{told, "count", "point 0", "point 1", "destroy"}));
        EXPECT_EQ(section.host.messages, CTexts{});
    }
}

TEST(PointsProvider, NoPoints)
{
    CGeometrySection<CPointsProvider> section("Points");
    CPointStorage storage;
    storage.count = 0;
    section.host.storage = &storage;
    EXPECT_TRUE(section.write());
    EXPECT_EQ(section.text(), "\n0 \n");
    using CReports = std::vector<CTestBlockHost::CReport>;
    EXPECT_EQ(section.host.reports, (CReports{{0, 2000}}));
}

TEST(PointsProvider, Failures)
{
    const struct {
        const char* attribute;
        bool hasStorage;
        bool isMissing;
        std::int32_t count;
        std::int32_t refused;
        const char* message;
    } cases[] = {
        {kNullId, true, false, 2, -1, "CPointsProvider::Write2 - NULL UUID"},
        {"1234", true, false, 2, -1, "CZelUUID::Hex2Int: Invalid hex value"},
        {kId, false, false, 2, -1, "CZEL::getGeometryWriter - No external geometry reader set"},
        {kId, true, true, 2, -1, "CPointsProvider::Write2 - No geometry writer"},
        {kId, true, false, -1, -1, "CPointsProvider::Write2 - External storage return -1"},
        {kId, true, false, -2, -1, "CPointsProvider::Write2 - External storage return -1"},
        {kId, true, false, 2, 1, "CPointsProvider::Write2 - External storage cancel IO"},
    };
    for (const auto& row : cases) {
        CGeometrySection<CPointsProvider> section("Points", row.attribute);
        CPointStorage storage;
        storage.isMissing = row.isMissing;
        storage.count = row.count;
        storage.refused = row.refused;
        section.host.storage = row.hasStorage ? &storage : nullptr;
        EXPECT_FALSE(section.write()) << row.message;
        EXPECT_EQ(section.host.messages, CTexts{row.message});
        const bool isMade = !storage.calls.empty() && !row.isMissing;
        EXPECT_TRUE(!isMade || storage.calls.back() == "destroy") << row.message;
    }
}

TEST(PointsProvider, NullNodeFails)
{
    CTestBlockHost host;
    CPointsProvider provider(&host);
    CXMLTextTarget stream;
    EXPECT_FALSE(provider.Write(&stream, nullptr, nullptr));
    EXPECT_EQ(host.messages, CTexts{"Unknown exception"});
}

TEST(PointsProvider, ShortStreamFails)
{
    CGeometrySection<CPointsProvider> section("Points", nullptr, 5);
    CPointStorage storage;
    section.host.storage = &storage;
    EXPECT_FALSE(section.write());
    EXPECT_EQ(section.host.messages, CTexts{"CFastWriter::write - Can't write all data"});
}

TEST(PointsProvider, CancelPassesThrough)
{
    CGeometrySection<CPointsProvider> section("Points");
    CPointStorage storage;
    section.host.storage = &storage;
    section.host.cancel = true;
    EXPECT_THROW(section.write(), CZelCancelled);
    EXPECT_EQ(section.host.messages, CTexts{"Operation cancelled"});
    EXPECT_EQ(storage.calls.back(), "destroy");
}

TEST(PointsProvider, CopyWritesTheSame)
{
    CGeometrySection<CPointsProvider> section("Points");
    CPointStorage storage;
    section.host.storage = &storage;
    CPointsProvider original(&section.host);
    auto* copy = original.Clone();
    ASSERT_NE(copy, nullptr);
    EXPECT_TRUE(section.write(copy));
    EXPECT_EQ(section.text(), "\n2 \n1.5 0.25 -2.0 \n1.5 1.25 -2.0 \n");
    copy->Destroy();
}

TEST(PointsProvider, OwnStorage)
{
    CGeometrySection<CPointsProvider> section("Points");
    const TZelComPtr<CZELGeoWriter::CPoints> points(new CZELGeoWriter::CPoints(nullptr));
    const TZelComPtr<CZELGeoWriter::CPolygons> polygons(new CZELGeoWriter::CPolygons(nullptr));
    *points->append() = {1.0 / 3.0, 2e9, 1e31};
    COwnStorage storage(section.host, *points, *polygons);
    section.host.storage = &storage;
    EXPECT_TRUE(section.write());
    EXPECT_EQ(section.text(),
              "\n1 \n0.333333 2000000000.0 1000000000000000019884624838656.000000 \n");
}
