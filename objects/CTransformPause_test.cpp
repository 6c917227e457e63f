#include "objects/CTransformPause.h"

#include "tests/support/CTestDocument.h"

#include <gtest/gtest.h>

using namespace OvZel;

TEST(TransformPause, SwitchesTheTransformOffForAScope)
{
    const ZelTest::CTestDocument document;
    const double moved[16] = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 10, 20, 30, 1};
    document.ref()->setMatrix(moved);
    const auto xOfTransformed = [&] {
        double point[3] = {1, 2, 3};
        document.ref()->transformPoint(point);
        return point[0];
    };
    {
        const CTransformPause pause(document.ref());
        const CTransformPause inner(document.ref());
        EXPECT_EQ(xOfTransformed(), 1.0);
        EXPECT_EQ(document.ref()->getMatrix()[12], 10.0);
    }
    EXPECT_EQ(xOfTransformed(), 11.0);
    const CTransformPause without(nullptr);
}
