#include "materials/CWangTilesNode.h"

#include "tests/support/CNodeForm.h"
#include "tests/support/expectPlaces.h"
#include "tests/support/messageOf.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace OvZel;
using namespace ZelTest;

namespace {

std::vector<CRow> rows()
{
    return {
        required(oneOf(attribute("Projection", "Spherical", "Vertical"),
                       {"Planetary", "Orthogonal", "Vertical", "Spherical", "Y.Cylindrical",
                        "X.Cylindrical", "Mapping.UV", "Horizontal", "Planar"}),
                 "CZelXMLGet::GetAttributeLabel - NULL ptr for tag Projection"),
        real("Angle", 1.0, 0.0),
        optional(xyz("Origin", {2, 3, 4}, {0, 0, 0})),
        optional(real("X.Center", 5.0, 0.0)),
        optional(real("Y.Center", 6.0, 0.0)),
        xyz("Normal", {7, 8, 9}, {0, 0, -1}),
        xyz("X.Axis", {10, 11, 12}, {-1, 0, 0}),
        xyz("Y.Axis", {13, 14, 15}, {0, -1, 0}),
        real("RandomSeed", 16.0, 0.0),
        real("TexturesWidth", 17.0, 1.0),
        real("TexturesHeight", 18.0, 1.0),
        color("Reflection", {4, 5, 6}, {0, 0, 0}),
        real("Reflection.Limit", 19.0, 0.0),
        real("Glossy", 1020.0, 1.0), // neither the default nor the limit of other nodes
        real("Bump", 21.0, 0.0),
        real("Normal.Map", 22.0, 0.0),
        flag("Mix", false),
        real("Mix.Value", 0.75, 0.0),
        color("Mix.Color", {1, 2, 3}, {127, 127, 127}),
        color("Transparent", {7, 8, 9}, {0, 0, 0}),
        real("Ambient", 23.0, 0.0),
        alsoReads(
            optional(raw("Sub.Parts",
                         "<Sub.Parts><Maps><URL Type=\"Diffuse\">a</URL><URL Type=\"Movie\">b</URL>"
                         "</Maps><Maps><URL Type=\"Relief\">c</URL></Maps></Sub.Parts>",
                         "<Sub.Parts/>")),
            "<Maps/><Maps/>", "<Sub.Parts><Maps/><Maps/></Sub.Parts>"),
    };
}

CForm form()
{
    return {.readOrder =
                {"Projection",     "Angle",    "Origin",     "X.Center",         "Y.Center",
                 "Normal",         "X.Axis",   "Y.Axis",     "RandomSeed",       "TexturesWidth",
                 "TexturesHeight", "Glossy",   "Reflection", "Reflection.Limit", "Bump",
                 "Normal.Map",     "Mix",      "Mix.Color",  "Mix.Value",        "Transparent",
                 "Ambient",        "Sub.Parts"},
            .which = "WangTexture"};
}

/// A new node's text with something else in the place of its tiles.
std::string withTiles(CTestDocument& document, const std::string& tiles)
{
    std::string text = textOfNode(document, CNodeForm<CWangTilesNode>(document.ref()));
    const std::string container = "<Sub.Parts/>";
    return text.replace(text.find(container), container.size(), tiles);
}

} // namespace

TEST(WangTilesNodeXml, FileForm)
{
    checkElement<CNodeForm<CWangTilesNode>>("Node", rows(), form());
}

TEST(WangTilesNodeXml, PointsAndDirections)
{
    checkTransform<CWangTilesNode>(rows(), {{"Origin", {11, 22, 30}},
                                            {"Normal", {1, 2, 1}},
                                            {"X.Axis", {1, 2, 1}},
                                            {"Y.Axis", {1, 2, 1}}});
}

TEST(WangTilesNodeXml, Copies)
{
    checkCopies<CWangTilesNode>(rows(), [](const CWangTilesNode& from, IWangTilesNode& to) {
        CZelMultiMaps::CopyMultiMapsMgr(*to.getTiles(),
                                        *const_cast<CWangTilesNode&>(from).getTiles());
        to.setRandomSeed(from.getRandomSeed());
        to.setOrigin(from.getOrigin());
        to.setXCenter(from.getXCenter());
        to.setYCenter(from.getYCenter());
        to.setNormal(from.getNormal());
        to.setXAxis(from.getXAxis());
        to.setYAxis(from.getYAxis());
        to.setTexturesWidth(from.getTexturesWidth());
        to.setTexturesHeight(from.getTexturesHeight());
        to.setAngle(from.getAngle());
        to.setGlossy(from.getGlossy());
        to.setAmbient(from.getAmbient());
        to.setMixFlag(from.getMixFlag());
        to.setMixColor(from.getMixColor());
        to.setMixValue(from.getMixValue());
        to.setTransparent(from.getTransparent());
        to.setReflection(from.getReflection());
        to.setReflectionLimit(from.getReflectionLimit());
        to.setBump(from.getBump());
        to.setNormalMap(from.getNormalMap());
        to.setProjection(from.getProjection());
    });
}

TEST(WangTilesNodeXml, TilesOfOlderFilesStandInTheNode)
{
    CTestDocument document;
    CNodeForm<CWangTilesNode> node(document.ref());
    node.node().getTiles()->append(); // goes
    readNode(document, node,
             withTiles(document, "<Maps/><Maps><URL Type=\"Refletion\">b</URL></Maps>"));
    ASSERT_EQ(node.node().getTiles()->size(), 2);
    EXPECT_STREQ(node.node().getTiles()->at(0)->getURL(4), "");
    EXPECT_STREQ(node.node().getTiles()->at(1)->getURL(4), "b");
    EXPECT_NE(textOfNode(document, node)
                  .find("<Sub.Parts><Maps/><Maps><URL Type=\"Reflection\">b</URL></Maps>"),
              std::string::npos);
}

TEST(WangTilesNodeXml, WithTheContainerTilesInTheNodeDoNotCount)
{
    CTestDocument document;
    CNodeForm<CWangTilesNode> node(document.ref());
    readNode(document, node, withTiles(document, "<Maps/><Sub.Parts><Maps/></Sub.Parts><Maps/>"));
    EXPECT_EQ(node.node().getTiles()->size(), 1);
}

TEST(WangTilesNodeXml, NoTileIsNoError)
{
    CTestDocument document;
    CNodeForm<CWangTilesNode> node(document.ref());
    readNode(document, node, withTiles(document, ""));
    EXPECT_EQ(node.node().getTiles()->size(), 0);
}

TEST(WangTilesNodeXml, AMapOfAnUnknownKindStopsTheLoad)
{
    CTestDocument document;
    CNodeForm<CWangTilesNode> node(document.ref());
    const std::string maps = "<Maps><URL Type=\"Colour\">b</URL></Maps>";
    for (const std::string& tiles : {maps, "<Sub.Parts>" + maps + "</Sub.Parts>"})
        EXPECT_EQ(messageOf([&] { readNode(document, node, withTiles(document, tiles)); }),
                  "Invalid label (Colour) [Diffuse..Movie]");
}

TEST(WangTilesNodeXml, AProjectionOutsideTheTable)
{
    CTestDocument document;
    CNodeForm<CWangTilesNode> node(document.ref());
    std::string text = withTiles(document, "");
    node.node().setProjection(-1);
    EXPECT_EQ(messageOf([&] { textOfNode(document, node); }),
              "No label for the value (-1) [Planetary..Planar]");
    text.replace(text.find("Vertical"), 8, "Diagonal");
    EXPECT_EQ(messageOf([&] { readNode(document, node, text); }),
              "Invalid label (Diagonal) [Planetary..Planar]");
}

TEST(WangTilesNode, ABadKindOfATileIsReported)
{
    CTestDocument document;
    CNodeForm<CWangTilesNode> node(document.ref());
    EXPECT_EQ(node.node().getTiles()->append()->getURL(12), nullptr);
    EXPECT_EQ(document.takeMessages(),
              std::vector<std::string>{"CZelMultiMaps::getURL - Invalid map type"});
}

TEST(WangTilesNode, TheMixValueIsClippedInSilence)
{
    struct {
        double given, kept;
    } cases[] = {{-0.1, 0.0}, {0.0, 0.0}, {1.0, 1.0}, {1.1, 1.0}, {std::nan(""), 0.0}};
    for (const auto [given, kept] : cases) {
        CTestDocument document;
        CNodeForm<CWangTilesNode> node(document.ref());
        node.node().setMixValue(0.5);
        node.node().setMixValue(given);
        EXPECT_EQ(node.node().getMixValue(), kept) << "given " << given;

        std::string text = withTiles(document, "");
        const std::string zero = "<Mix.Value>0.000000</Mix.Value>";
        text.replace(text.find(zero), zero.size(),
                     "<Mix.Value>" + std::to_string(given) + "</Mix.Value>");
        node.node().setMixValue(0.5);
        readNode(document, node, text);
        EXPECT_EQ(node.node().getMixValue(), kept) << "read " << given;
        EXPECT_TRUE(document.takeMessages().empty());
    }
}

TEST(WangTilesNode, TheIdentifierOfTheTilesIsRandomAndNotSaved)
{
    CTestDocument document;
    CNodeForm<CWangTilesNode> one(document.ref());
    CNodeForm<CWangTilesNode> two(document.ref());
    EXPECT_FALSE(one.node().getSubPartsId().isNull());
    EXPECT_NE(one.node().getSubPartsId(), two.node().getSubPartsId());
    const CZelUUID before = two.node().getSubPartsId();
    readNode(document, two, textOfNode(document, one));
    EXPECT_EQ(two.node().getSubPartsId(), before);
}

TEST(WangTilesNode, ValuesThatLookAlikeAreNotMixedUp)
{
    using N = CWangTilesNode;
    expectPlaces<N>({
        {ACCESS(N, Origin, (CZelPoint{1, 2, 3})), "<Origin X=\"1."},
        {ACCESS(N, XAxis, (CZelPoint{5, 2, 3})), "<X.Axis X=\"5."},
        {ACCESS(N, YAxis, (CZelPoint{6, 2, 3})), "<Y.Axis X=\"6."},
        {ACCESS(N, Normal, (CZelPoint{7, 2, 3})), "<Normal X=\"7."},
        {ACCESS(N, XCenter, 8.5), "<X.Center>8.5"},
        {ACCESS(N, YCenter, 9.5), "<Y.Center>9.5"},
        {ACCESS(N, Angle, 10.5), "<Angle>10.5"},
        {ACCESS(N, Bump, 11.5), "<Bump>11.5"},
        {ACCESS(N, NormalMap, 12.5), "<Normal.Map>12.5"},
        {ACCESS(N, MixFlag, true), "<Mix/>"},
        {ACCESS(N, MixColor, CZelColor::rgb(1, 2, 3)), "<Mix.Color R=\"1\""},
        {ACCESS(N, MixValue, 0.75), "<Mix.Value>0.75"},
        {ACCESS(N, Reflection, CZelColor::rgb(2, 3, 4)), "<Reflection R=\"2\""},
        {ACCESS(N, ReflectionLimit, 13.5), "<Reflection.Limit>13.5"},
        {ACCESS(N, Glossy, 14.5), "<Glossy>14.5"},
        {ACCESS(N, TexturesWidth, 15.5), "<TexturesWidth>15.5"},
        {ACCESS(N, TexturesHeight, 16.5), "<TexturesHeight>16.5"},
        {ACCESS(N, Ambient, 17.5), "<Ambient>17.5"},
        {ACCESS(N, Transparent, CZelColor::rgb(3, 4, 5)), "<Transparent R=\"3\""},
        {ACCESS(N, RandomSeed, 19.5), "<RandomSeed>19.5"},
    });
}
