#include "views/CZelClippingBox.h"

#include "tests/support/CTestDocument.h"
#include "tests/support/CTestElement.h"
#include "tests/support/accessors.h"

using namespace OvZel;
using ZelTest::isSame;

TEST(ClippingBox, TheMaximumPutsThePivotAboveIt)
{
    CZelClippingBox box(nullptr);
    box.setPivot({7.0, 8.0, 9.0});
    box.setMaximum({1.0, 2.0, 3.0});
    EXPECT_TRUE(isSame(box.getMaximum(), CZelPoint{1.0, 2.0, 3.0}));
    EXPECT_TRUE(isSame(box.getPivot(), CZelPoint{7.0, 8.0, 4.0}));
}

TEST(ClippingBox, AFileWithoutPivotGivesTheOneOfItsMaximum)
{
    ZelTest::CTestDocument document;
    CZelClippingBox box(document.ref());
    ZelTest::CTestElement file("<E><Clipping.Box><Minimum X=\"0\" Y=\"0\" Z=\"0\"/>"
                               "<Maximum X=\"1\" Y=\"2\" Z=\"30\"/></Clipping.Box></E>");
    EXPECT_TRUE(box.initWithXML(file.element(), true));
    EXPECT_TRUE(isSame(box.getPivot(), CZelPoint{0.0, 0.0, 31.0}));
    EXPECT_EQ(box.getAngle(), 0.0);
    EXPECT_FALSE(box.getVisible());
    EXPECT_FALSE(box.getActive());
}

TEST(ClippingBox, StoresEverythingElse)
{
    using I = IZelClippingBox;
    CZelClippingBox box(nullptr);
    ZelTest::expectAccessors<I>(
        box, {ACCESS(I, Minimum, (CZelPoint{1, 2, 3})), ACCESS(I, Maximum, (CZelPoint{4, 5, 6})),
              ACCESS(I, Visible, true), ACCESS(I, Active, true),
              ACCESS(I, Pivot, (CZelPoint{7, 8, 9})), ACCESS(I, Angle, -400.5)});
}
