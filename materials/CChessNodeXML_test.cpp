#include "materials/CChessNode.h"

#include "tests/support/CNodeForm.h"
#include "tests/support/expectPlaces.h"
#include "tests/support/messageOf.h"

#include <gtest/gtest.h>

using namespace OvZel;
using namespace ZelTest;

namespace {

const std::string kEmptyTable = "Length=\"0\"/>";

std::vector<CRow> rows()
{
    return {
        xyz("Origin", {1, 2, 3}, {0, 0, 0}),
        xyz("X.Axis", {4, 5, 6}, {0, 0, 1}), // all three axes are equal in a new node
        xyz("Y.Axis", {7, 8, 9}, {0, 0, 1}),
        xyz("Z.Axis", {10, 11, 12}, {0, 0, 1}),
        xyz("Size", {13, 14, 15}, {0, 0, 0}),
        xyz("Proportion", {16, 17, 18}, {0, 0, 0}),
        flag("Checker", false),
        flag("Smooth", false),
        required(oneOf(attribute("Geometry", "Sphere", "Cube"), {"Cylinder", "Sphere", "Cube"}),
                 "CZelXMLGet::GetAttributeLabel - NULL ptr for tag Geometry"),
        raw("Table1", "<Table1 Length=\"1\"><Float>1.500000</Float></Table1>",
            "<Table1 " + kEmptyTable),
        raw("Table2",
            "<Table2 Length=\"2\"><Float>2.500000</Float><Float>-3.000000</Float></Table2>",
            "<Table2 " + kEmptyTable),
        raw("Table3", "<Table3 Length=\"1\"><Float>4.500000</Float></Table3>",
            "<Table3 " + kEmptyTable),
    };
}

} // namespace

TEST(ChessNodeXml, FileForm)
{
    checkElement<CNodeForm<CChessNode>>("Node", rows(), {.which = "Chess"});
}

TEST(ChessNodeXml, PointsDirectionsAndVectors)
{
    checkTransform<CChessNode>(rows(), {{"Origin", {11, 22, 30}},
                                        {"X.Axis", {1, 2, 1}},
                                        {"Y.Axis", {1, 2, 1}},
                                        {"Z.Axis", {1, 2, 1}},
                                        {"Size", {1, 2, 0}},
                                        {"Proportion", {1, 2, 0}}});
}

TEST(ChessNodeXml, Copies)
{
    checkCopies<CChessNode>(rows(), [](const IChessNode& from, IChessNode& to) {
        to.setOrigin(from.getOrigin());
        to.setXAxis(from.getXAxis());
        to.setYAxis(from.getYAxis());
        to.setZAxis(from.getZAxis());
        to.setSize(from.getSize());
        to.setProportion(from.getProportion());
        to.setChecker(from.getChecker());
        to.setSmooth(from.getSmooth());
        to.setGeometry(from.getGeometry());
        to.getTable1()->copyFrom(from.getTable1());
        to.getTable2()->copyFrom(from.getTable2());
        to.getTable3()->copyFrom(from.getTable3());
    });
}

TEST(ChessNodeXml, Geometries)
{
    const std::vector<std::pair<std::int32_t, std::string>> labels = {
        {0, "Cylinder"}, {1, "Sphere"}, {2, "Cube"}};
    for (const auto& [number, label] : labels) {
        CTestDocument document;
        CNodeForm<CChessNode> form(document.ref());
        form.node().setGeometry(number);
        const std::string text = textOfNode(document, form);
        EXPECT_NE(text.find("Geometry=\"" + label + "\""), std::string::npos) << text;
        CNodeForm<CChessNode> back(document.ref());
        readNode(document, back, text);
        EXPECT_EQ(back.node().getGeometry(), number);
    }
}

TEST(ChessNodeXml, NumbersAndLabelsOutsideTheTable)
{
    CTestDocument document;
    CNodeForm<CChessNode> form(document.ref());
    std::string text = textOfNode(document, form);
    form.node().setGeometry(3);
    EXPECT_EQ(form.node().getGeometry(), 3);
    EXPECT_EQ(messageOf([&] { textOfNode(document, form); }),
              "No label for the value (3) [Cylinder..Cube]");
    text.replace(text.find("Cube"), 4, "Cone");
    EXPECT_EQ(messageOf([&] { readNode(document, form, text); }),
              "Invalid label (Cone) [Cylinder..Cube]");
}

TEST(ChessNodeXml, ATableWithALengthOfZeroIsEmpty)
{
    CTestDocument document;
    CNodeForm<CChessNode> form(document.ref());
    const std::string text = textOfNode(document, form);
    form.node().getTable2()->setLength(2);
    readNode(document, form, text);
    EXPECT_EQ(form.node().getTable2()->getLength(), 0);
}

TEST(ChessNodeXml, ATableKeptLongerThanItsNodeStillAnswers)
{
    TZelComPtr<ITable> table;
    CTestDocument document;
    {
        CNodeForm<CChessNode> form(document.ref());
        table = TZelComPtr<ITable>(form.node().getTable1());
        table->setLength(1);
        table->setValue(0, 2.0F);
        EXPECT_EQ(table->getObjectLink()->getOwnerLink(), form.node().getObjectLink());
        EXPECT_EQ(table->getObjectLink()->getMgrRef(), document.ref());
    }
    EXPECT_EQ(table->getValue(0), 2.0F);
    EXPECT_EQ(table->getObjectLink()->getOwnerLink(), nullptr);
    EXPECT_EQ(table->getObjectLink()->getMgrRef(), nullptr);
}

TEST(ChessNode, ValuesThatLookAlikeAreNotMixedUp)
{
    using N = CChessNode;
    expectPlaces<N>({
        {ACCESS(N, Origin, (CZelPoint{1, 2, 3})), "<Origin X=\"1."},
        {ACCESS(N, XAxis, (CZelPoint{5, 2, 3})), "<X.Axis X=\"5."},
        {ACCESS(N, YAxis, (CZelPoint{6, 2, 3})), "<Y.Axis X=\"6."},
        {ACCESS(N, ZAxis, (CZelPoint{7, 2, 3})), "<Z.Axis X=\"7."},
        {ACCESS(N, Size, (CZelPoint{8, 2, 3})), "<Size X=\"8."},
        {ACCESS(N, Proportion, (CZelPoint{9, 2, 3})), "<Proportion X=\"9."},
        {ACCESS(N, Checker, true), "<Checker/>"},
        {ACCESS(N, Smooth, true), "<Smooth/>"},
    });
}
