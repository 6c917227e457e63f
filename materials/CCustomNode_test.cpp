#include "materials/CCustomNode.h"

#include "tests/support/CNodeForm.h"
#include "tests/support/messageOf.h"

#include <gtest/gtest.h>

#include <utility>

using namespace OvZel;
using namespace ZelTest;

namespace {

using CMessages = std::vector<std::string>;
using OrvaneXML::XIXMLElement;

const char* const kGetClass = "ICustomNode::getClass - data integrity failed";
const char* const kSetClass = "ICustomNode::setClass - data integrity failed";
const char* const kInit = "ICustomNode::initWithXML - invalid parameter";

const std::string kNewText = "<E><Node><Custom.Data Class=\"Unknown\"/></Node></E>";
const std::string kFullText = "<E><Node><Custom.Data Class=\"Fur\" Age=\"2\"><Length>3</Length>"
                              "<!--a--><Custom.Data Class=\"Inner\"/></Custom.Data></Node></E>";

class CustomNode : public testing::Test {
protected:
    CCustomNode& node() { return form.node(); }
    std::string text() { return textOfNode(document, form); }
    void loseClass()
    {
        XIXMLElement* data = node().getData();
        data->RemoveAttribute(data->MakeKey("Class"));
    }

    CTestDocument document;
    CNodeForm<CCustomNode> form{document.ref()};
};

} // namespace

TEST_F(CustomNode, ANewOneIsOfAnUnknownClass)
{
    EXPECT_STREQ(node().getClass(), "Unknown");
    EXPECT_EQ(text(), kNewText);
    EXPECT_TRUE(document.takeMessages().empty());
}

TEST_F(CustomNode, TheDataComesBackWithAllThatItContains)
{
    readNode(document, form, kFullText);
    EXPECT_EQ(text(), kFullText);
    EXPECT_STREQ(node().getClass(), "Fur");
    EXPECT_EQ(std::as_const(node()).getData(), node().getData());
    EXPECT_TRUE(document.takeMessages().empty());
}

TEST_F(CustomNode, SetClassStoresAndStillReports)
{
    node().setClass("X");
    EXPECT_EQ(document.takeMessages(), CMessages{kSetClass});
    EXPECT_STREQ(node().getClass(), "X");
    node().setClass(nullptr);
    EXPECT_EQ(document.takeMessages(), CMessages{kSetClass});
    EXPECT_STREQ(node().getClass(), "");
}

TEST_F(CustomNode, WithoutTheAttributeBothReport)
{
    loseClass();
    EXPECT_EQ(node().getClass(), nullptr);
    EXPECT_EQ(document.takeMessages(), CMessages{kGetClass});
    node().setClass("X");
    EXPECT_EQ(document.takeMessages(), CMessages{kSetClass});
    EXPECT_EQ(node().getClass(), nullptr);
    EXPECT_EQ(text(), "<E><Node><Custom.Data/></Node></E>");
}

TEST_F(CustomNode, DataThatAClientDestroyedCannotBeSaved)
{
    node().getData()->Destroy();
    EXPECT_EQ(node().getData(), nullptr);
    EXPECT_EQ(node().getClass(), nullptr);
    node().setClass("X");
    EXPECT_EQ(document.takeMessages(), (CMessages{kGetClass, kSetClass}));
    EXPECT_EQ(messageOf([&] { text(); }), "");
    EXPECT_TRUE(node().initWithXML(CTestElement("<Custom.Data Class=\"Y\"/>").element()));
    EXPECT_STREQ(node().getClass(), "Y");
}

TEST_F(CustomNode, InitTakesACopy)
{
    const CTestElement source("<Custom.Data Class=\"Y\"><A>1</A></Custom.Data>");
    EXPECT_TRUE(node().initWithXML(source.element()));
    source.element()->GetFirstElement()->Destroy();
    EXPECT_EQ(text(), "<E><Node><Custom.Data Class=\"Y\"><A>1</A></Custom.Data></Node></E>");
    EXPECT_TRUE(document.takeMessages().empty());
}

TEST_F(CustomNode, InitTakesItsOwnDataAndWhatStandsInIt)
{
    readNode(document, form, kFullText);
    EXPECT_TRUE(node().initWithXML(node().getData()));
    EXPECT_EQ(text(), kFullText);
    XIXMLElement* data = node().getData();
    EXPECT_TRUE(node().initWithXML(data->FindElement(data->MakeKey("Custom.Data"))));
    EXPECT_EQ(text(), "<E><Node><Custom.Data Class=\"Inner\"/></Node></E>");
}

TEST_F(CustomNode, InitRefusesAnotherElement)
{
    readNode(document, form, kFullText);
    EXPECT_FALSE(node().initWithXML(nullptr));
    EXPECT_FALSE(node().initWithXML(CTestElement("<Custom.Data/>").element()));
    EXPECT_FALSE(node().initWithXML(CTestElement("<Data Class=\"Y\"/>").element()));
    EXPECT_EQ(document.takeMessages(), (CMessages{kInit, kInit, kInit}));
    EXPECT_EQ(text(), kFullText);
}

TEST_F(CustomNode, AFileWithoutAClassIsReportedAndLoaded)
{
    readNode(document, form, "<E><Node><Custom.Data><A/></Custom.Data></Node></E>");
    EXPECT_EQ(document.takeMessages(), CMessages{kInit});
    EXPECT_EQ(text(), kNewText);
}

TEST_F(CustomNode, TheDataIsRequired)
{
    EXPECT_EQ(messageOf([&] { readNode(document, form, "<E><Node/></E>"); }),
              "CZelXMLGet::GetElement - NULL ptr for tag Custom.Data");
}

TEST_F(CustomNode, ACopyHasItsOwnData)
{
    readNode(document, form, kFullText);
    node().setUIValue(4);
    CNodeForm<CCustomNode> copy(document.ref(), node());
    node().getData()->GetFirstElement()->Destroy();
    EXPECT_EQ(textOfNode(document, copy), kFullText);
    EXPECT_EQ(copy.node().getUIValue(), 4U);
}

TEST_F(CustomNode, ASectionInTheDataGoesAlong)
{
    const CTestElement source("<Custom.Data Class=\"Y\"/>");
    source.element()->SetCData(new CBytes("bytes"));
    EXPECT_TRUE(node().initWithXML(source.element()));
    EXPECT_EQ(text(),
              "<E><Node><Custom.Data Class=\"Y\"><![CDATA[bytes]]></Custom.Data></Node></E>");
}

TEST(CustomNodeAlone, OutsideATreeReportsRaiseBehindTheChange)
{
    const TZelComPtr<CCustomNode> node(new CCustomNode(nullptr));
    EXPECT_EQ(messageOf([&] { node->setClass("X"); }), "");
    EXPECT_STREQ(node->getClass(), "X");
    EXPECT_EQ(messageOf([&] { node->initWithXML(nullptr); }), "");
}
