#include "geometry/CVertexMgr.h"

#include "core/TZelComPtr.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

using namespace OvZel;

namespace {

using CVertices = TZelComPtr<CVertexMgr>;

std::string indices(CVertexMgr& vertices)
{
    std::string text;
    for (std::int32_t i = 0; i < vertices.getNbObjects(); ++i)
        text += std::to_string(vertices.getZelObject(i)->pointIndex) + " ";
    return text;
}

void add(CVertexMgr& vertices, std::int32_t first, std::int32_t last)
{
    for (std::int32_t i = first; i <= last; ++i)
        vertices.append()->pointIndex = i;
}

bool isInOneBlock(const CVertexMgr& vertices)
{
    return static_cast<const void*>(vertices.data()) == &vertices + 1;
}

} // namespace

TEST(VertexMgr, TheFirstVerticesStandBehindTheList)
{
    const CVertices vertices(CVertexMgr::make(nullptr, 4));
    EXPECT_EQ(vertices->capacity(), 4);
    EXPECT_EQ(vertices->getNbObjects(), 0);
    add(*vertices, 1, 4);
    EXPECT_TRUE(isInOneBlock(*vertices));
    EXPECT_EQ(indices(*vertices), "1 2 3 4 ");
}

TEST(VertexMgr, MoveOutWhenThereIsNoMoreRoom)
{
    const CVertices vertices(CVertexMgr::make(nullptr, 4));
    add(*vertices, 1, 5);
    EXPECT_FALSE(isInOneBlock(*vertices));
    EXPECT_EQ(indices(*vertices), "1 2 3 4 5 ");
    add(*vertices, 6, 40);
    vertices->removeObject(0);
    EXPECT_TRUE(vertices->reserve(0)); // no less than there are
    EXPECT_EQ(vertices->capacity(), 39);
    EXPECT_EQ(vertices->getZelObject(38)->pointIndex, 40);
}

TEST(VertexMgr, StayWhereTheyAreWhenTheRoomIsGivenUp)
{
    const CVertices vertices(CVertexMgr::make(nullptr, 4));
    add(*vertices, 1, 3);
    EXPECT_TRUE(vertices->reserve(2));
    EXPECT_EQ(vertices->capacity(), 3);
    EXPECT_TRUE(isInOneBlock(*vertices));
    vertices->removeObject(1);
    vertices->releaseSpareRoom();
    EXPECT_EQ(vertices->capacity(), 2);
    add(*vertices, 7, 9);
    EXPECT_EQ(indices(*vertices), "1 3 7 8 9 ");
}

TEST(VertexMgr, BeginAnewWithoutAnyRoom)
{
    const CVertices vertices(CVertexMgr::make(nullptr, 4));
    EXPECT_TRUE(vertices->reserve(0));
    EXPECT_EQ(vertices->capacity(), 0);
    add(*vertices, 1, 2);
    EXPECT_EQ(indices(*vertices), "1 2 ");
}

TEST(VertexMgr, ManyHaveABufferOfTheirOwn)
{
    for (const std::int32_t capacity : {0, 64, 65, 1000}) {
        const CVertices vertices(CVertexMgr::make(nullptr, capacity));
        EXPECT_EQ(vertices->capacity(), capacity <= 64 ? capacity : 0);
        add(*vertices, 1, capacity);
        EXPECT_EQ(isInOneBlock(*vertices), capacity == 64) << capacity;
        add(*vertices, capacity + 1, 2 * capacity + 1);
        EXPECT_EQ(vertices->getZelObject(2 * capacity)->pointIndex, 2 * capacity + 1);
    }
}
