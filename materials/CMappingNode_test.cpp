#include "materials/CMappingNode.h"

#include "materials/CLeafNode.h"
#include "tests/support/CNodeForm.h"
#include "tests/support/CTestMaterial.h"
#include "tests/support/expectPlaces.h"
#include "tests/support/messageOf.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace OvZel;
using ZelTest::CTestMaterial;
using ZelTest::messageOf;
using CMessages = std::vector<std::string>;

namespace {

const CZelUUID kId("000102030405060708090A0B0C0D0E0F");

} // namespace

TEST(MappingNode, ANewNodeIsCylindricalAboutXAndCentred)
{
    const TZelComPtr<CMappingNode> node(new CMappingNode(nullptr));
    EXPECT_EQ(node->getProjection(), 5);
    EXPECT_EQ(node->getXCenter(), 0.5);
    EXPECT_EQ(node->getYCenter(), 0.5);
    EXPECT_FALSE(node->getMappingNodeId().isNull());
    EXPECT_NE(node->getMappingNodeId(), node->getId());
    EXPECT_TRUE(node->getParentMappingNodeId().isNull());
    EXPECT_EQ(node->getMixColor(), CZelColor::rgb(127, 127, 127));
}

TEST(MappingNode, TheNormalOfANewNodeIsTheNegativeOfTheAxesProduct)
{
    const TZelComPtr<CMappingNode> node(new CMappingNode(nullptr));
    const CZelPoint x = node->getXAxis(), y = node->getYAxis(), n = node->getNormal();
    EXPECT_EQ(n.x, -(x.y * y.z - x.z * y.y));
    EXPECT_EQ(n.y, -(x.z * y.x - x.x * y.z));
    EXPECT_EQ(n.z, -(x.x * y.y - x.y * y.x));
    EXPECT_EQ(n.z, -1.0);
}

TEST(MappingNode, KeepsValuesWithinLimitsInSilence)
{
    using M = CMappingNode;
    const struct {
        void (M::*set)(double);
        double (M::*get)() const;
        double given, kept;
    } cases[] = {
        {&M::setXCenter, &M::getXCenter, 1.5, 1.0},
        {&M::setXCenter, &M::getXCenter, -0.5, 0.0},
        {&M::setXCenter, &M::getXCenter, 1.0, 1.0},
        {&M::setYCenter, &M::getYCenter, 1.5, 1.0},
        {&M::setYCenter, &M::getYCenter, -0.5, 0.0},
        {&M::setMixValue, &M::getMixValue, -0.1, 0.0},
        {&M::setMixValue, &M::getMixValue, 1.1, 1.0},
        {&M::setMixValue, &M::getMixValue, NAN, 0.0},
        {&M::setGlossy, &M::getGlossy, 5000.0, 1000.0},
        {&M::setGlossy, &M::getGlossy, -1.0, 0.0},
        {&M::setBump, &M::getBump, -7.0, -7.0},
        {&M::setWidth, &M::getWidth, -7.0, -7.0},
        {&M::setHeight, &M::getHeight, -7.0, -7.0},
        {&M::setAngle, &M::getAngle, 1000.0, 1000.0},
        {&M::setReflectionLimit, &M::getReflectionLimit, -7.0, -7.0},
    };
    CTestMaterial material;
    auto* node = material.add<M>(material.root.get());
    for (const auto& [set, get, given, kept] : cases) {
        (node->*set)(given);
        EXPECT_EQ((node->*get)(), kept) << "given " << given;
    }
    EXPECT_EQ(material.takeMessages(), CMessages());
}

TEST(MappingNode, LinkedMapsAreOnlyStored)
{
    CTestMaterial material;
    auto* node = material.add<CMappingNode>(material.root.get());
    node->addLinkedMap(kId);
    node->addLinkedMap(kId);
    EXPECT_EQ(node->getNbLinkedMaps(), 2);
    EXPECT_EQ(node->getMapLinked(1), kId);
    EXPECT_EQ(material.takeMessages(), CMessages());

    node->removeLinkedMap(kId);
    node->removeLinkedMap(CZelUUID());
    EXPECT_EQ(node->getNbLinkedMaps(), 2);
    const std::string notLinked = "CMappingNode::removeLinkedMap - Map isn't linked";
    EXPECT_EQ(material.takeMessages(), (CMessages{notLinked, notLinked}));

    node->addLinkedMap(CZelUUID());
    EXPECT_EQ(node->getNbLinkedMaps(), 2);
    EXPECT_EQ(material.takeMessages(),
              CMessages{"CMappingNode::addLinkedMap - NULL UUID is Invalid"});
    for (const std::int32_t index : {2, -1}) {
        EXPECT_TRUE(node->getMapLinked(index).isNull());
        EXPECT_EQ(material.takeMessages(), CMessages{"CMappingNode::getMapLinked - Invalid index"});
    }
    EXPECT_EQ(&node->getMapLinked(2), &node->getMapLinked(7));
}

TEST(MappingNode, OutsideATreeAWarningRaises)
{
    const TZelComPtr<CMappingNode> node(new CMappingNode(nullptr));
    EXPECT_EQ(messageOf([&] { node->addLinkedMap(CZelUUID()); }), "");
    EXPECT_EQ(messageOf([&] { node->removeLinkedMap(kId); }), "");
    EXPECT_EQ(messageOf([&] { node->getMapLinked(0); }), "");
    EXPECT_EQ(messageOf([&] { node->getMaps()->getURL(12); }), "");
    EXPECT_EQ(messageOf([&] { node->addLinkedMap(kId); }), "no exception");
}

TEST(MappingNode, ItsMapsWarnThroughTheTree)
{
    CTestMaterial material;
    auto* node = material.add<CMappingNode>(material.root.get());
    EXPECT_EQ(node->getMaps()->getURL(0), nullptr);
    EXPECT_EQ(material.takeMessages(), CMessages{"CZelMultiMaps::getURL - Invalid map type"});
}

TEST(MappingNode, ACopyHasAllValuesMapsAndLinks)
{
    const TZelComPtr<CMappingNode> node(new CMappingNode(nullptr));
    node->getMaps()->setURL(7, "bump");
    node->addLinkedMap(kId);
    node->setUIValue(3);
    node->setParentMappingNodeId(kId);
    node->setContrast(2.0);
    node->setGlossyActivated(true);
    const TZelComPtr<CMappingNode> copy(new CMappingNode(nullptr, *node));
    EXPECT_STREQ(copy->getMaps()->getURL(7), "bump");
    EXPECT_EQ(copy->getMapLinked(0), kId);
    EXPECT_EQ(copy->getUIValue(), 3U);
    EXPECT_EQ(copy->getMappingNodeId(), node->getMappingNodeId());
    EXPECT_EQ(copy->getParentMappingNodeId(), kId);
    EXPECT_EQ(copy->getContrast(), 2.0);
    EXPECT_TRUE(copy->getGlossyActivated());
}

TEST(MappingNode, EachValueHasAPlaceOfItsOwn)
{
    using M = CMappingNode;
    const CZelUUID other("F0E0D0C0B0A090807060504030201000");
    ZelTest::expectPlaces<M>({
        {ACCESS(M, Normal, (CZelPoint{1, 2, 3})), "<Normal X=\"1."},
        {ACCESS(M, Origin, (CZelPoint{2, 3, 4})), "<Origin X=\"2."},
        {ACCESS(M, XAxis, (CZelPoint{3, 4, 5})), "<X.Axis X=\"3."},
        {ACCESS(M, YAxis, (CZelPoint{4, 5, 6})), "<Y.Axis X=\"4."},
        {ACCESS(M, Angle, 5.5), "<Angle>5.5"},
        {ACCESS(M, Height, 6.5), "<Height>6.5"},
        {ACCESS(M, Width, 7.5), "<Width>7.5"},
        {ACCESS(M, Bump, 8.5), "<Bump>8.5"},
        {ACCESS(M, Relief, 9.5), "<Relief>9.5"},
        {ACCESS(M, XCenter, 0.125), "<X.Center>0.125"},
        {ACCESS(M, YCenter, 0.25), "<Y.Center>0.25"},
        {ACCESS(M, XDelta, 10.5), "<X.Delta>10.5"},
        {ACCESS(M, YDelta, 11.5), "<Y.Delta>11.5"},
        {ACCESS(M, Glossy, 12.5), "<Glossy>12.5"},
        {ACCESS(M, XRepeat, true), "<X.Repeat/>"},
        {ACCESS(M, YRepeat, true), "<Y.Repeat/>"},
        {ACCESS(M, Specular, CZelColor::rgb(1, 2, 3)), "<Specular R=\"1\""},
        {ACCESS(M, Transparent, CZelColor::rgb(2, 3, 4)), "<Transparent R=\"2\""},
        {ACCESS(M, Reflection, CZelColor::rgb(3, 4, 5)), "<Reflection R=\"3\""},
        {ACCESS(M, ReflectionLimit, 13.5), "<Reflection.Limit>13.5"},
        {ACCESS(M, CutSet, true), "<CutSet/>"},
        {ACCESS(M, CutOut1Flag, true), "<CutOut1 R=\"0\""},
        {ACCESS(M, CutOut1Color, CZelColor::rgb(4, 5, 6)), nullptr}, // not without its flag
        {ACCESS(M, CutOut2Flag, true), "<CutOut2 R=\"0\""},
        {ACCESS(M, CutOut2Color, CZelColor::rgb(5, 6, 7)), nullptr},
        {ACCESS(M, XInvert, true), "<X.Invert/>"},
        {ACCESS(M, YInvert, true), "<Y.Invert/>"},
        {ACCESS(M, Projection, 3), "Projection=\"Spherical\""},
        {ACCESS(M, Visible, false), nullptr},
        {ACCESS(M, MixFlag, true), "<Mix/>"},
        {ACCESS(M, MixColor, CZelColor::rgb(6, 7, 8)), "<Mix.Color R=\"6\""},
        {ACCESS(M, MixValue, 0.75), "<Mix.Value>0.75"},
        {ACCESS(M, CutAlpha, true), "<CutAlpha/>"},
        {ACCESS(M, XMirror, true), "<X.Mirror/>"},
        {ACCESS(M, YMirror, true), "<Y.Mirror/>"},
        {ACCESS(M, AlphaBump, true), "<Alpha.Bump/>"},
        {ACCESS(M, AlphaTransparency, true), "<Alpha.Transparency/>"},
        {ACCESS(M, MIPMAP, true), "<MIPMAP/>"},
        {ACCESS(M, TrilinearFilter, true), "<Trilinear.Filter/>"},
        {ACCESS(M, DisplayMode, true), "<Display.Mode/>"},
        {ACCESS(M, Brightness, 14.5), "<Brightness>14.5"},
        {ACCESS(M, Contrast, 15.5), "<Contrast>15.5"},
        {ACCESS(M, Frame, 16), "<Frame>16<"},
        {ACCESS(M, MovieLength, 17), "<Movie.Length>17<"},
        {ACCESS(M, NormalMap, 18.5), "<Normal.Map>18.5"},
        {ACCESS(M, MappingNodeId, kId), "MappingNode.Id=\"00010203"},
        {ACCESS(M, ParentMappingNodeId, other), "MappingNode.Parent.Id=\"F0E0D0C0"},
        {ACCESS(M, GlossyActivated, true), "<Glossy.Activated/>"},
    });
}

TEST(MappingNode, ACutOutColorIsSavedWithItsFlag)
{
    CTestMaterial material;
    ZelTest::CNodeForm<CMappingNode> form(material.document.ref());
    form.node().setCutOut1Color(CZelColor::rgb(1, 2, 3));
    form.node().setCutOut2Color(CZelColor::rgb(4, 5, 6));
    EXPECT_EQ(textOfNode(material.document, form).find("<CutOut"), std::string::npos);
    form.node().setCutOut1Flag(true);
    form.node().setCutOut2Flag(true);
    EXPECT_NE(textOfNode(material.document, form)
                  .find("<CutOut1 R=\"1\" G=\"2\" B=\"3\"/><CutOut2 R=\"4\" G=\"5\" B=\"6\"/>"),
              std::string::npos);
}
