#include "tests/support/accessors.h"
#include "tests/support/checkElement.h"
#include "tests/support/viewParts.h"
#include "views/CZelParallelView.h"

using namespace OvZel;
using namespace ZelTest;

namespace {

CRow dropsOptions(CRow row)
{
    return absentAlsoDrops(optional(std::move(row)), {"Options"});
}

} // namespace

TEST(ParallelViewXml, FileForm)
{
    const std::vector<CRow> rows = {
        required(raw("Name", R"(<Name en="North"/>)", R"(<Name en=""/>)"),
                 "CZelXMLGet::CZelXMLGet - NULL ptr"),
        required(oneOf(attribute("PV.Type", "Axono", "Plan"), {"Front", "Plan", "Axono"}),
                 "CZelXMLGet::GetAttributeLabel - NULL ptr for tag PV.Type"),
        integer("View.Flags", 5, 2),
        real("North.Angle", 1.5, 0.0),
        real("Size", 2.5, 0.0),
        xyz("Position", {1, 2, 3}, {0, 0, 0}),
        xyz("Target", {4, 5, 6}, {0, 0, 0}),
        dropsOptions(viewInfoRow()),
        optionsRow(),
        flag("Special.Shading", false),
    };
    checkElement("Parallel.View", rows, newView<CZelParallelView>());
}

TEST(ParallelViewXml, AFileWithoutViewInfoLoadsWithThatOfANewView)
{
    CTestDocument document;
    TZelComPtr view(new CZelParallelView(document.ref()));
    CTestElement element(R"(<E><Parallel.View PV.Type="Front"><Name en="N"/>)"
                         "<View.Flags>1</View.Flags><North.Angle>1</North.Angle><Size>1</Size>"
                         "<Position/><Target/></Parallel.View></E>");
    EXPECT_TRUE(view->initWithXML(element.element(), true));
    EXPECT_EQ(view->getType(), 0);
    EXPECT_STREQ(view->getViewInfo()->getHeliodonName(), "Heliodon");
    EXPECT_EQ(view->getViewOptions()->getRenderingOpt()->getWidth(), 320);
    EXPECT_TRUE(document.takeMessages().empty());
}

TEST(ParallelViewXml, TheExtraValueIsNotInTheFile)
{
    CTestDocument document;
    TZelComPtr view(new CZelParallelView(document.ref()));
    view->setExtraValue(12.25);
    CTestElement element;
    ASSERT_NE(view->putInXML(element.element()), nullptr);
    EXPECT_EQ(element.text().find("12.25"), std::string::npos);
    TZelComPtr other(new CZelParallelView(document.ref()));
    EXPECT_TRUE(other->initWithXML(element.element(), true));
    EXPECT_EQ(other->getExtraValue(), 0.0);
}

TEST(ParallelViewXml, ABadTypeFails)
{
    CTestDocument document;
    TZelComPtr view(new CZelParallelView(document.ref()));
    CTestElement element(R"(<E><Parallel.View PV.Type="Back"><Name en="N"/></Parallel.View></E>)");
    EXPECT_FALSE(view->initWithXML(element.element(), true));
    EXPECT_STREQ(view->getName(), "N");
    view->setType(3);
    CTestElement target;
    EXPECT_EQ(view->putInXML(target.element()), nullptr);
    EXPECT_EQ(document.takeMessages(),
              (std::vector<std::string>{
                  "Exception in CZelXMLBasicData::initWithXML : Invalid label (Back) "
                  "[Front..Axono]",
                  "Exception in CZelXMLBasicData::putInXML : No label for the value (3) "
                  "[Front..Axono]"}));
}

TEST(ParallelView, StoresWhatItIsGiven)
{
    using I = IZelParallelView;
    TZelComPtr view(new CZelParallelView(nullptr));
    EXPECT_STREQ(view->getName(), "");
    EXPECT_EQ(view->getType(), 1);
    EXPECT_EQ(view->getViewFlags(), 2);
    expectAccessors<I>(*view, {ACCESS(I, Type, -7), ACCESS(I, ViewFlags, 0),
                               ACCESS(I, NorthAngle, -1000.0), ACCESS(I, Size, -2.0),
                               ACCESS(I, Position, (CZelPoint{1, 2, 3})),
                               ACCESS(I, Target, (CZelPoint{4, 5, 6})),
                               ACCESS(I, SpecialShading, true), ACCESS(I, ExtraValue, 9.0)});
}
