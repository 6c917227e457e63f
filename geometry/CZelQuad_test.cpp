#include "geometry/CZelQuad.h"

#include "tests/support/vtable.h"

#include <gtest/gtest.h>

#include <limits>

using namespace OvZel;
using ZelTest::slotOf;

TEST(Quad, Defaults)
{
    CZelQuad quad(nullptr);
    for (int i = 0; i < 9; ++i)
        EXPECT_EQ(quad.getTriangle()[i], 0.0);
    EXPECT_EQ(quad.getQuadId(), -1);
}

TEST(Quad, CopiesItsTriangle)
{
    CZelQuad quad(nullptr);
    double triangle[9] = {1, 2, 3, 4, 5, 6, 7, 8, 9};
    quad.setTriangle(triangle);
    triangle[8] = 0;
    quad.setTriangle(quad.getTriangle());
    quad.setTriangle(nullptr);
    for (int i = 0; i < 9; ++i)
        EXPECT_EQ(quad.getTriangle()[i], i + 1);
}

TEST(Quad, KeepsSixtyFourBits)
{
    CZelQuad quad(nullptr);
    IZelQuad& client = quad;
    client.setValue(std::numeric_limits<std::int64_t>::min());
    EXPECT_EQ(client.getQuadId(), std::numeric_limits<std::int64_t>::min());
    client.setQuadId(0x123456789ABCDEF);
    EXPECT_EQ(client.getValue(), 0x123456789ABCDEF);
}

TEST(Quad, Slots)
{
    EXPECT_EQ(slotOf(&IZelQuad::getTriangle), 0);
    EXPECT_EQ(slotOf(&IZelQuad::setTriangle), 1);
    EXPECT_EQ(slotOf(&IZelQuad::getQuadId), 2);
    EXPECT_EQ(slotOf(&IZelQuad::setQuadId), 3);
    EXPECT_EQ(slotOf(&TZelFrontier<IZelQuad>::obsolete1), 4);
    EXPECT_EQ(slotOf(&TZelFrontier<IZelQuad>::obsolete3), 6);
}
