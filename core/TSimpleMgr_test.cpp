#include "core/TSimpleMgr.h"

#include "tests/support/CTestDocument.h"

#include <zel/CZelPoint.h>
#include <zel/CZelVertex.h>

#include <gtest/gtest.h>

#include <array>
#include <limits>

using namespace OvZel;

namespace {

using CMessages = std::vector<std::string>;
using CDoubles = TSimpleMgr<double>;

/// A record of a megabyte, so that no machine has room for many.
struct CLargeRecord {
    static constexpr CZelUUID sIID{"44444444444444444444444444444444"};
    std::array<char, 1 << 20> bytes;
};

void fill(CDoubles& manager, int count)
{
    for (int i = 1; i <= count; ++i)
        *manager.append() = i;
}

std::vector<double> valuesOf(const CDoubles& manager)
{
    return {manager.data(), manager.data() + manager.size()};
}

} // namespace

TEST(SimpleMgr, GrowsInDoublings)
{
    const TZelComPtr manager(new CDoubles(nullptr));
    EXPECT_EQ(manager->capacity(), 0);
    const std::int32_t capacities[] = {2, 2, 4, 4, 8, 8, 8, 8, 16};
    for (const std::int32_t capacity : capacities) {
        ASSERT_NE(manager->newZelObject(-1), nullptr);
        EXPECT_EQ(manager->capacity(), capacity) << "with " << manager->size();
    }
}

TEST(SimpleMgr, GrowsAlsoWhenTheIndexIsBad)
{
    const TZelComPtr manager(new CDoubles(nullptr, 3));
    fill(*manager, 3);
    EXPECT_EQ(manager->newZelObject(9), nullptr);
    EXPECT_EQ(manager->capacity(), 6);
    EXPECT_EQ(valuesOf(*manager), (std::vector<double>{1, 2, 3}));
}

TEST(SimpleMgr, StartsWithTheCapacityThatItIsGiven)
{
    const TZelComPtr manager(new TSimpleMgr<CZelVertex>(nullptr, 3));
    EXPECT_EQ(manager->capacity(), 3);
    EXPECT_EQ(manager->getNbObjects(), 0);
}

TEST(SimpleMgr, RemoveAllKeepsTheBuffer)
{
    const TZelComPtr manager(new CDoubles(nullptr));
    fill(*manager, 5);
    const double* records = manager->data();
    manager->removeAllObjects();
    EXPECT_EQ(manager->getNbObjects(), 0);
    EXPECT_EQ(manager->capacity(), 8);
    fill(*manager, 8);
    EXPECT_EQ(manager->data(), records);
}

TEST(SimpleMgr, ReserveSetsTheCapacityButNeverBelowTheRecords)
{
    const TZelComPtr manager(new CDoubles(nullptr));
    fill(*manager, 3);
    const struct {
        std::int32_t given, capacity;
    } cases[] = {{100, 100}, {10, 10}, {3, 3}, {2, 3}, {0, 3}, {4, 4}};
    for (auto [given, capacity] : cases) {
        EXPECT_TRUE(manager->reserve(given));
        EXPECT_EQ(manager->capacity(), capacity) << "given " << given;
        EXPECT_EQ(valuesOf(*manager), (std::vector<double>{1, 2, 3}));
    }
    EXPECT_FALSE(manager->reserve(-1));
    EXPECT_EQ(manager->capacity(), 4);
}

TEST(SimpleMgr, ReserveZeroGivesAnEmptyBufferBack)
{
    const TZelComPtr manager(new CDoubles(nullptr, 8));
    EXPECT_TRUE(manager->reserve(0));
    EXPECT_EQ(manager->capacity(), 0);
    EXPECT_EQ(manager->data(), nullptr);
    fill(*manager, 1);
    EXPECT_EQ(valuesOf(*manager), std::vector<double>{1});
}

TEST(SimpleMgr, GivesSpareRoomBackAndKeepsTheRecords)
{
    const TZelComPtr<TSimpleMgr<double>> list(new TSimpleMgr<double>(nullptr, 100));
    *list->append() = 1.5;
    list->releaseSpareRoom();
    EXPECT_EQ(list->capacity(), 1);
    ASSERT_EQ(list->size(), 1);
    EXPECT_EQ(list->data()[0], 1.5);
    list->removeAllObjects();
    list->releaseSpareRoom();
    EXPECT_EQ(list->capacity(), 1);
}

TEST(SimpleMgr, WarnsAndIsEmptyWhenThereIsNoMemory)
{
    ZelTest::CTestDocument document;
    const TZelComPtr manager(new TSimpleMgr<CLargeRecord>(document.ref()));
    ASSERT_NE(manager->newZelObject(-1), nullptr);
    EXPECT_FALSE(manager->reserve(std::numeric_limits<std::int32_t>::max()));
    EXPECT_EQ(document.takeMessages(), CMessages{"No memory availiable"});
    EXPECT_EQ(manager->getNbObjects(), 0);
    EXPECT_EQ(manager->capacity(), 0);
    EXPECT_EQ(manager->data(), nullptr);
    EXPECT_NE(manager->newZelObject(-1), nullptr) << "it can be used again";
}

TEST(SimpleMgr, ClearsEveryNewRecord)
{
    const TZelComPtr manager(new CDoubles(nullptr));
    fill(*manager, 4);
    manager->removeAllObjects();
    EXPECT_EQ(*manager->append(), 0.0);
    EXPECT_EQ(*manager->newZelObject(-1), 0.0);
    EXPECT_EQ(*manager->newZelObject(0), 0.0);
}

TEST(SimpleMgr, AppendsManyAtOnce)
{
    const TZelComPtr manager(new CDoubles(nullptr));
    const double values[] = {1, 2, 3};
    EXPECT_TRUE(manager->append(values, 3));
    EXPECT_TRUE(manager->append(values, 2));
    EXPECT_TRUE(manager->append(nullptr, 0));
    EXPECT_EQ(valuesOf(*manager), (std::vector<double>{1, 2, 3, 1, 2}));
    EXPECT_FALSE(manager->append(values, std::numeric_limits<std::int32_t>::max()));
    EXPECT_EQ(manager->size(), 5);
}

TEST(SimpleMgr, KeepsItsRecordsInOneFlatBuffer)
{
    const TZelComPtr manager(new TSimpleMgr<CZelPoint>(nullptr));
    for (int i = 0; i < 5; ++i)
        manager->newZelObject(-1)->y = i;
    for (std::int32_t i = 0; i < 5; ++i) {
        EXPECT_EQ(manager->getZelObject(i), manager->data() + i);
        EXPECT_EQ(manager->data()[i].y, i);
    }
}

namespace {

/// Counts what moveObject calls, as a subclass of a client of this template would see it.
class CCounting : public CDoubles {
public:
    using CDoubles::CDoubles;
    void removeObject(std::int32_t index) override
    {
        ++nbRemovals;
        CDoubles::removeObject(index);
    }
    double* newZelObject(std::int32_t index) override
    {
        ++nbInsertions;
        return CDoubles::newZelObject(index);
    }
    int nbRemovals = 0, nbInsertions = 0;
};

} // namespace

TEST(SimpleMgr, MovesThroughTheVirtualOperations)
{
    const TZelComPtr manager(new CCounting(nullptr));
    fill(*manager, 3);
    manager->moveObject(0, 2);
    EXPECT_EQ(valuesOf(*manager), (std::vector<double>{2, 3, 1}));
    EXPECT_EQ(manager->nbRemovals, 1);
    EXPECT_EQ(manager->nbInsertions, 1);
}
