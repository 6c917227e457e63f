#include "views/CViewObject.h"

#include "tests/support/CTestDocument.h"
#include "tests/support/accessors.h"

#include <limits>

using namespace OvZel;
using ZelTest::CTestDocument;
using ZelTest::isSame;

TEST(ViewObject, ANewOne)
{
    TZelComPtr view(new CViewObject(nullptr));
    EXPECT_STREQ(view->getName(), "Vue objet 1");
    EXPECT_EQ(view->getViewFlags(), 2);
    EXPECT_EQ(view->getFocal(), 50.0);
    EXPECT_TRUE(isSame(view->getCenter(), CZelPoint{50, 50, 50}));
    EXPECT_EQ(view->getRadius(), 110.0);
    EXPECT_EQ(view->getHorizontalAngle(), 360);
    EXPECT_EQ(view->getVerticalAngle(), 180);
    EXPECT_EQ(view->getHorizontalStep(), 10U);
    EXPECT_EQ(view->getVerticalStep(), 10U);
    EXPECT_EQ(view->getHorizontalShift(), 0);
    EXPECT_EQ(view->getVerticalShift(), 0);
    EXPECT_EQ(view->getHorizontalStart(), 270.0);
    EXPECT_EQ(view->getVerticalStart(), 0.0);
    EXPECT_EQ(view->getOriginAngle(), -90);
}

TEST(ViewObject, StoresWhatIsInRange)
{
    using I = IZelViewObject;
    TZelComPtr view(new CViewObject(nullptr));
    ZelTest::expectAccessors<I>(*view,
                                {ACCESS(I, ViewFlags, -1), ACCESS(I, Focal, 1.0),
                                 ACCESS(I, Center, (CZelPoint{1, 2, 3})), ACCESS(I, Radius, 0.0),
                                 ACCESS(I, HorizontalAngle, 0), ACCESS(I, VerticalAngle, 0),
                                 ACCESS(I, HorizontalStep, 1), ACCESS(I, VerticalStep, 4000000000U),
                                 ACCESS(I, HorizontalShift, 360), ACCESS(I, VerticalShift, -5),
                                 ACCESS(I, HorizontalStart, -1000.0),
                                 ACCESS(I, VerticalStart, 1000.0), ACCESS(I, OriginAngle, 1000)});
}

TEST(ViewObject, ClipsInSilenceInADocumentOrNot)
{
    constexpr double kNotANumber = std::numeric_limits<double>::quiet_NaN();
    CTestDocument document;
    for (CZelMgrRef* owner : {static_cast<CZelMgrRef*>(nullptr), document.ref()}) {
        TZelComPtr view(new CViewObject(owner));
        struct {
            double given, kept;
        } focals[] = {{0.5, 1.0}, {200.0, 180.0}, {180.0, 180.0}, {kNotANumber, 1.0}};
        for (const auto [given, kept] : focals) {
            view->setFocal(given);
            EXPECT_EQ(view->getFocal(), kept) << "given " << given;
        }
        for (const double given : {-0.5, kNotANumber}) {
            view->setRadius(3.0);
            view->setRadius(given);
            EXPECT_EQ(view->getRadius(), 0.0) << "given " << given;
        }
        struct {
            std::int32_t given, horizontal, vertical, horizontalShift, verticalShift;
        } angles[] = {{-5, 0, 0, 0, -5},
                      {180, 180, 180, 180, 180},
                      {181, 181, 180, 181, 181},
                      {361, 360, 180, 360, 361}};
        for (const auto [given, horizontal, vertical, horizontalShift, verticalShift] : angles) {
            view->setHorizontalAngle(given);
            view->setVerticalAngle(given);
            view->setHorizontalShift(given);
            view->setVerticalShift(given);
            EXPECT_EQ(view->getHorizontalAngle(), horizontal);
            EXPECT_EQ(view->getVerticalAngle(), vertical);
            EXPECT_EQ(view->getHorizontalShift(), horizontalShift);
            EXPECT_EQ(view->getVerticalShift(), verticalShift);
        }
        view->setHorizontalStep(0);
        view->setVerticalStep(0);
        EXPECT_EQ(view->getHorizontalStep(), 1U);
        EXPECT_EQ(view->getVerticalStep(), 1U);
    }
    EXPECT_TRUE(document.takeMessages().empty());
}
