#include "tests/support/accessors.h"
#include "tests/support/checkElement.h"
#include "tests/support/viewParts.h"
#include "views/CViewObject.h"

using namespace OvZel;
using namespace ZelTest;

TEST(ViewObjectXml, FileForm)
{
    const std::vector<CRow> rows = {
        required(raw("Name", R"(<Name en="Round"/>)", R"(<Name en="Vue objet 1"/>)"),
                 "CZelXMLGet::CZelXMLGet - NULL ptr"),
        integer("View.Flags", 5, 2),
        real("Focal", 70.5, 50.0),
        xyz("Center", {1, 2, 3}, {50, 50, 50}),
        real("Radius", 7.5, 110.0),
        part("Horizontal", {integer("Angle", 270, 360), integer("Step", 11, 10),
                            integer("Shift", 12, 0), real("Start", 13.5, 270.0)}),
        part("Vertical", {integer("Angle", 90, 180), integer("Step", 14, 10),
                          integer("Shift", -15, 0), real("Start", 16.5, 0.0)}),
        integer("Origin.Angle", 17, -90),
        viewInfoRow(),
        optionsRow(),
    };
    checkElement("View.Object", rows, newView<CViewObject>());
}

TEST(ViewObjectXml, ValuesOfAFileAreClippedInSilence)
{
    CTestDocument document;
    TZelComPtr view(new CViewObject(document.ref()));
    CTestElement element(
        R"(<E><View.Object><Name en="N"/><View.Flags>1</View.Flags><Focal>0.5</Focal><Center/>)"
        "<Radius>-1</Radius><Horizontal><Angle>361</Angle><Step>0</Step><Shift>-1</Shift>"
        "<Start>-5</Start></Horizontal><Vertical><Angle>-1</Angle><Step>0</Step>"
        "<Shift>-6</Shift><Start>-7</Start></Vertical><Origin.Angle>-800</Origin.Angle>" +
        viewInfoRow().fresh + optionsRow().fresh + "</View.Object></E>");
    EXPECT_TRUE(view->initWithXML(element.element(), true));
    EXPECT_EQ(view->getFocal(), 1.0);
    EXPECT_EQ(view->getRadius(), 0.0);
    EXPECT_EQ(view->getHorizontalAngle(), 360);
    EXPECT_EQ(view->getHorizontalStep(), 1U);
    EXPECT_EQ(view->getHorizontalShift(), 0);
    EXPECT_EQ(view->getHorizontalStart(), -5.0);
    EXPECT_EQ(view->getVerticalAngle(), 0);
    EXPECT_EQ(view->getVerticalStep(), 1U);
    EXPECT_EQ(view->getVerticalShift(), -6);
    EXPECT_EQ(view->getVerticalStart(), -7.0);
    EXPECT_EQ(view->getOriginAngle(), -800);
    EXPECT_TRUE(document.takeMessages().empty());
}

TEST(ViewObjectXml, ALargeStepComesBack)
{
    CTestDocument document;
    TZelComPtr view(new CViewObject(document.ref()));
    view->setVerticalStep(4'000'000'000U);
    CTestElement element;
    ASSERT_NE(view->putInXML(element.element()), nullptr);
    TZelComPtr other(new CViewObject(document.ref()));
    EXPECT_TRUE(other->initWithXML(element.element(), true));
    EXPECT_EQ(other->getVerticalStep(), 4'000'000'000U);
}
