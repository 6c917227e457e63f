#include "materials/CAltitudeNode.h"

#include "tests/support/CNodeForm.h"
#include "tests/support/expectPlaces.h"

#include <gtest/gtest.h>

using namespace OvZel;
using namespace ZelTest;

namespace {

std::vector<CRow> rows()
{
    return {
        real("Angle", 1.0, 0.0),
        xyz("Origin", {2, 3, 4}, {0, 0, 0}),
        optional(real("X.Center", 5.0, 0.0)),
        optional(real("Y.Center", 6.0, 0.0)),
        real("HighStartValue", 7.0, 0.7),
        real("MedStartValue", 8.0, 0.5),
        real("Smoothness", 9.0, 1.0),
        real("Slope", 10.0, 0.0),
        real("SlopeAmplify", 11.0, 1.0),
        real("TransitionContrast", 12.0, 0.8),
        real("RandomSeed", 13.0, 0.0),
        real("Bump", 14.0, 0.0),
        real("Normal.Map", 15.0, 0.0),
        flag("Mix", false),
        real("Mix.Value", 16.0, 0.0),
        color("Mix.Color", {1, 2, 3}, {127, 127, 127}),
        alsoReads(
            optional(raw("Sub.Parts",
                         "<Sub.Parts><Sub.Part><Maps><URL Type=\"Bump\">a</URL></Maps>"
                         "<Width>2.000000</Width><Height>3.000000</Height></Sub.Part></Sub.Parts>",
                         "<Sub.Parts/>")),
            "<Maps/><Texture1Height>5</Texture1Height><Texture1Width>6</Texture1Width>",
            "<Sub.Parts><Sub.Part><Maps/><Width>6.000000</Width><Height>5.000000</Height></"
            "Sub.Part></Sub.Parts>"),
    };
}

CForm form()
{
    return {.readOrder = {"Sub.Parts", "Angle", "Origin", "X.Center", "Y.Center", "HighStartValue",
                          "MedStartValue", "Slope", "Smoothness", "SlopeAmplify",
                          "TransitionContrast", "RandomSeed", "Bump", "Normal.Map", "Mix",
                          "Mix.Color", "Mix.Value"},
            .which = "Altitude"};
}

} // namespace

TEST(AltitudeNodeXml, FileForm)
{
    checkElement<CNodeForm<CAltitudeNode>>("Node", rows(), form());
}

TEST(AltitudeNodeXml, TheOriginIsAPoint)
{
    checkTransform<CAltitudeNode>(rows(), {{"Origin", {11, 22, 30}}});
}

TEST(AltitudeNodeXml, Copies)
{
    checkCopies<CAltitudeNode>(rows(), [](const CAltitudeNode& from, IAltitudeNode& to) {
        CZelSubPart::CopySubPartsMgr(*to.getSubParts(),
                                     *const_cast<CAltitudeNode&>(from).getSubParts());
        to.setAngle(from.getAngle());
        to.setOrigin(from.getOrigin());
        to.setXCenter(from.getXCenter());
        to.setYCenter(from.getYCenter());
        to.setMixFlag(from.getMixFlag());
        to.setMixColor(from.getMixColor());
        to.setMixValue(from.getMixValue());
        to.setBump(from.getBump());
        to.setNormalMap(from.getNormalMap());
        to.setMedStartValue(from.getMedStartValue());
        to.setHighStartValue(from.getHighStartValue());
        to.setSmoothness(from.getSmoothness());
        to.setSlope(from.getSlope());
        to.setSlopeAmplify(from.getSlopeAmplify());
        to.setRandomSeed(from.getRandomSeed());
        to.setTransitionContrast(from.getTransitionContrast());
    });
}

TEST(AltitudeNodeXml, SubPartsOfOlderFilesStandInTheNode)
{
    CTestDocument document;
    CNodeForm<CAltitudeNode> node(document.ref());
    std::string text = textOfNode(document, node);
    const std::string container = "<Sub.Parts/>";
    text.replace(text.find(container), container.size(),
                 "<Maps/><Texture1Height>5</Texture1Height><Texture1Width>6</Texture1Width>"
                 "<Maps><URL Type=\"Diffuse\">b</URL></Maps>"
                 "<Texture2Height>7</Texture2Height><Texture2Width>8</Texture2Width>");
    readNode(document, node, text);
    ASSERT_EQ(node.node().getSubParts()->size(), 2);
    EXPECT_EQ(node.node().getSubParts()->at(0)->getHeight(), 5.0);
    EXPECT_EQ(node.node().getSubParts()->at(0)->getWidth(), 6.0);
    EXPECT_STREQ(node.node().getSubParts()->at(1)->getURL(1), "b");
    EXPECT_EQ(node.node().getSubParts()->at(1)->getHeight(), 7.0);
}

TEST(AltitudeNode, NothingIsClipped)
{
    CTestDocument document;
    CNodeForm<CAltitudeNode> form(document.ref());
    IAltitudeNode& node = form.node();
    node.setMixValue(1.5);
    node.setMedStartValue(-2.0);
    node.setSmoothness(-1e9);
    EXPECT_EQ(node.getMixValue(), 1.5);
    EXPECT_EQ(node.getMedStartValue(), -2.0);
    EXPECT_EQ(node.getSmoothness(), -1e9);
    EXPECT_TRUE(document.takeMessages().empty());
}

TEST(AltitudeNode, TheIdentifierOfTheSubPartsIsNull)
{
    const TZelComPtr<CAltitudeNode> node(new CAltitudeNode(nullptr));
    EXPECT_TRUE(node->getSubPartsId().isNull());
}

TEST(AltitudeNode, ValuesThatLookAlikeAreNotMixedUp)
{
    using N = CAltitudeNode;
    expectPlaces<N>({
        {ACCESS(N, Angle, 10.5), "<Angle>10.5"},
        {ACCESS(N, XCenter, 8.5), "<X.Center>8.5"},
        {ACCESS(N, YCenter, 9.5), "<Y.Center>9.5"},
        {ACCESS(N, Bump, 11.5), "<Bump>11.5"},
        {ACCESS(N, NormalMap, 12.5), "<Normal.Map>12.5"},
        {ACCESS(N, MixFlag, true), "<Mix/>"},
        {ACCESS(N, MixColor, CZelColor::rgb(1, 2, 3)), "<Mix.Color R=\"1\""},
        {ACCESS(N, MixValue, 0.75), "<Mix.Value>0.75"},
        {ACCESS(N, MedStartValue, 15.5), "<MedStartValue>15.5"},
        {ACCESS(N, HighStartValue, 16.5), "<HighStartValue>16.5"},
        {ACCESS(N, Smoothness, 17.5), "<Smoothness>17.5"},
        {ACCESS(N, Slope, 18.5), "<Slope>18.5"},
        {ACCESS(N, SlopeAmplify, 19.5), "<SlopeAmplify>19.5"},
        {ACCESS(N, TransitionContrast, 20.5), "<TransitionContrast>20.5"},
        {ACCESS(N, RandomSeed, 21.5), "<RandomSeed>21.5"},
    });
}
