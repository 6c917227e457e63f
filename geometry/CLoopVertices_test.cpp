#include "geometry/CLoopVertices.h"

#include <gtest/gtest.h>

using namespace OvZel;

namespace {

constexpr CZelVertex kThree[] = {{1}, {2}, {3}};

std::vector<std::int32_t> indices(const CLoopVertices& loop)
{
    std::vector<std::int32_t> result;
    for (const CZelVertex& vertex : loop.records())
        result.push_back(vertex.pointIndex);
    return result;
}

using CIndices = std::vector<std::int32_t>;

} // namespace

TEST(LoopVertices, AssignReplacesWithAndWithoutManager)
{
    for (const bool hasManager : {false, true}) {
        CLoopVertices::CSlot slot;
        const CLoopVertices loop(slot, nullptr, 0);
        if (hasManager)
            loop.manager();
        EXPECT_EQ(indices(loop), CIndices{});
        EXPECT_TRUE(loop.assign(kThree));
        EXPECT_TRUE(loop.assign(kThree));
        EXPECT_EQ(indices(loop), (CIndices{1, 2, 3}));
        EXPECT_TRUE(loop.assign({}));
        EXPECT_EQ(indices(loop), CIndices{});
        EXPECT_TRUE(loop.assign(kThree));
        loop.clear();
        EXPECT_EQ(indices(loop), CIndices{});
    }
}

TEST(LoopVertices, ManagerTakesTheRecordsOver)
{
    CLoopVertices::CSlot slot;
    const CLoopVertices loop(slot, nullptr, 0);
    EXPECT_TRUE(loop.assign(kThree));
    CVertexMgr& manager = loop.manager();
    EXPECT_EQ(&loop.manager(), &manager);
    ASSERT_EQ(manager.size(), 3);
    EXPECT_EQ(manager.data()[2].pointIndex, 3);
    manager.removeObject(0);
    EXPECT_EQ(indices(loop), (CIndices{2, 3}));
}
