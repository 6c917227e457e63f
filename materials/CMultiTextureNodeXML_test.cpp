#include "materials/CMultiTextureNode.h"

#include "tests/support/CNodeForm.h"
#include "tests/support/expectPlaces.h"
#include "tests/support/messageOf.h"

#include <gtest/gtest.h>

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
        alsoReads(
            optional(raw("Sub.Parts",
                         "<Sub.Parts><Sub.Part><Maps><URL Type=\"Bump\">a</URL></Maps>"
                         "<Width>2.000000</Width><Height>3.000000</Height></Sub.Part>"
                         "<Sub.Part><Maps><URL Type=\"Alpha\">b</URL></Maps>"
                         "<Width>4.000000</Width><Height>5.000000</Height></Sub.Part></Sub.Parts>",
                         "<Sub.Parts/>")),
            "<Maps/><Texture1Height>5</Texture1Height><Texture1Width>6</Texture1Width>",
            "<Sub.Parts><Sub.Part><Maps/><Width>6.000000</Width><Height>5.000000</Height></"
            "Sub.Part></Sub.Parts>"),
        color("Reflection", {4, 5, 6}, {0, 0, 0}),
        real("Reflection.Limit", 16.0, 0.0),
        real("Glossy", 1017.0, 1000.0),
        real("Bump", 18.0, 0.0),
        real("Normal.Map", 19.0, 0.0),
        flag("Mix", false),
        real("Mix.Value", 20.0, 0.0), // not clipped
        color("Mix.Color", {1, 2, 3}, {127, 127, 127}),
        real("Threshold1", 21.0, 0.5),
        real("Threshold2", 22.0, 0.8),
        real("Transition", 23.0, 0.2),
        real("Resolution", 24.0, 512.0),
        real("RandomSeed", 25.0, 0.0),
    };
}

CForm form()
{
    return {.readOrder = {"Projection", "Angle",      "Origin",     "X.Center",
                          "Y.Center",   "Normal",     "X.Axis",     "Y.Axis",
                          "Sub.Parts",  "Glossy",     "Reflection", "Reflection.Limit",
                          "Bump",       "Normal.Map", "Mix",        "Mix.Color",
                          "Mix.Value",  "Threshold1", "Threshold2", "Transition",
                          "Resolution", "RandomSeed"},
            .which = "MultiTexture"};
}

} // namespace

TEST(MultiTextureNodeXml, FileForm)
{
    checkElement<CNodeForm<CMultiTextureNode>>("Node", rows(), form());
}

TEST(MultiTextureNodeXml, PointsAndDirections)
{
    checkTransform<CMultiTextureNode>(rows(), {{"Origin", {11, 22, 30}},
                                               {"Normal", {1, 2, 1}},
                                               {"X.Axis", {1, 2, 1}},
                                               {"Y.Axis", {1, 2, 1}}});
}

TEST(MultiTextureNodeXml, Copies)
{
    checkCopies<CMultiTextureNode>(
        rows(), [](const CMultiTextureNode& from, IMultiTextureNode& to) {
            CZelSubPart::CopySubPartsMgr(*to.getSubParts(),
                                         *const_cast<CMultiTextureNode&>(from).getSubParts());
            to.setResolution(from.getResolution());
            to.setTransition(from.getTransition());
            to.setRandomSeed(from.getRandomSeed());
            to.setThreshold1(from.getThreshold1());
            to.setThreshold2(from.getThreshold2());
            to.setOrigin(from.getOrigin());
            to.setXCenter(from.getXCenter());
            to.setYCenter(from.getYCenter());
            to.setNormal(from.getNormal());
            to.setXAxis(from.getXAxis());
            to.setYAxis(from.getYAxis());
            to.setAngle(from.getAngle());
            to.setMixFlag(from.getMixFlag());
            to.setMixColor(from.getMixColor());
            to.setMixValue(from.getMixValue());
            to.setReflection(from.getReflection());
            to.setReflectionLimit(from.getReflectionLimit());
            to.setGlossy(from.getGlossy());
            to.setBump(from.getBump());
            to.setNormalMap(from.getNormalMap());
            to.setProjection(from.getProjection());
        });
}

TEST(MultiTextureNodeXml, Projections)
{
    const char* labels[] = {"Planetary",  "Orthogonal",    "Vertical",
                            "Spherical",  "Y.Cylindrical", "X.Cylindrical",
                            "Mapping.UV", "Horizontal",    "Planar"};
    for (std::int32_t number = 0; number < 9; ++number) {
        CTestDocument document;
        CNodeForm<CMultiTextureNode> node(document.ref());
        node.node().setProjection(number);
        const std::string text = textOfNode(document, node);
        EXPECT_NE(text.find(std::string("Projection=\"") + labels[number] + "\""),
                  std::string::npos);
        CNodeForm<CMultiTextureNode> back(document.ref());
        readNode(document, back, text);
        EXPECT_EQ(back.node().getProjection(), number);
    }
}

TEST(MultiTextureNodeXml, ProjectionsOutsideTheTable)
{
    CTestDocument document;
    CNodeForm<CMultiTextureNode> node(document.ref());
    std::string text = textOfNode(document, node);
    node.node().setProjection(9);
    EXPECT_EQ(messageOf([&] { textOfNode(document, node); }),
              "No label for the value (9) [Planetary..Planar]");
    text.replace(text.find("Vertical"), 8, "Diagonal");
    EXPECT_EQ(messageOf([&] { readNode(document, node, text); }),
              "Invalid label (Diagonal) [Planetary..Planar]");
}

TEST(MultiTextureNodeXml, SubPartsOfOlderFilesStandInTheNode)
{
    CTestDocument document;
    CNodeForm<CMultiTextureNode> node(document.ref());
    std::string text = textOfNode(document, node);
    const std::string container = "<Sub.Parts/>";
    text.replace(text.find(container), container.size(),
                 "<Maps><URL Type=\"Diffuse\">b</URL></Maps>"
                 "<Texture1Height>7</Texture1Height><Texture1Width>8</Texture1Width>");
    readNode(document, node, text);
    ASSERT_EQ(node.node().getSubParts()->size(), 1);
    EXPECT_STREQ(node.node().getSubParts()->at(0)->getURL(1), "b");
    EXPECT_EQ(node.node().getSubParts()->at(0)->getWidth(), 8.0);
}

TEST(MultiTextureNode, NewValues)
{
    const TZelComPtr<CMultiTextureNode> node(new CMultiTextureNode(nullptr));
    EXPECT_EQ(node->getProjection(), 2);
    EXPECT_EQ(node->getResolution(), 512.0);
}

TEST(MultiTextureNode, TheIdentifierOfTheSubPartsIsRandomAndNotSaved)
{
    CTestDocument document;
    CNodeForm<CMultiTextureNode> one(document.ref());
    CNodeForm<CMultiTextureNode> two(document.ref());
    EXPECT_FALSE(one.node().getSubPartsId().isNull());
    EXPECT_NE(one.node().getSubPartsId(), two.node().getSubPartsId());
    const CZelUUID before = two.node().getSubPartsId();
    readNode(document, two, textOfNode(document, one));
    EXPECT_EQ(two.node().getSubPartsId(), before);
}

TEST(MultiTextureNode, ValuesThatLookAlikeAreNotMixedUp)
{
    using N = CMultiTextureNode;
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
        {ACCESS(N, Threshold1, 15.5), "<Threshold1>15.5"},
        {ACCESS(N, Threshold2, 16.5), "<Threshold2>16.5"},
        {ACCESS(N, Transition, 17.5), "<Transition>17.5"},
        {ACCESS(N, Resolution, 18.5), "<Resolution>18.5"},
        {ACCESS(N, RandomSeed, 19.5), "<RandomSeed>19.5"},
    });
}
