#include "materials/CLeafNode.h"

#include "tests/support/expectPlaces.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace OvZel;

TEST(LeafNode, KeepsThreeValuesWithinLimitsInSilence)
{
    const TZelComPtr<CLeafNode> leaf(new CLeafNode(nullptr)); // a warning would raise here
    const struct {
        void (CLeafNode::*set)(double);
        double (CLeafNode::*get)() const;
        double given, kept;
    } cases[] = {
        {&CLeafNode::setNeonValue, &CLeafNode::getNeonValue, -1.0, 0.0},
        {&CLeafNode::setNeonValue, &CLeafNode::getNeonValue, 0.0, 0.0},
        {&CLeafNode::setNeonValue, &CLeafNode::getNeonValue, 1e300, 1e300},
        {&CLeafNode::setNeonValue, &CLeafNode::getNeonValue, NAN, 0.0},
        {&CLeafNode::setRefraction, &CLeafNode::getRefraction, -0.1, 0.0},
        {&CLeafNode::setRefraction, &CLeafNode::getRefraction, 0.0, 0.0},
        {&CLeafNode::setRefraction, &CLeafNode::getRefraction, 10.0, 10.0},
        {&CLeafNode::setRefraction, &CLeafNode::getRefraction, 12.0, 10.0},
        {&CLeafNode::setGlossy, &CLeafNode::getGlossy, -1.0, 0.0},
        {&CLeafNode::setGlossy, &CLeafNode::getGlossy, 1000.0, 1000.0},
        {&CLeafNode::setGlossy, &CLeafNode::getGlossy, 2000.0, 1000.0},
        {&CLeafNode::setReflectionLimit, &CLeafNode::getReflectionLimit, -5.0, -5.0},
        {&CLeafNode::setEmittingPower, &CLeafNode::getEmittingPower, -5.0, -5.0},
        {&CLeafNode::setRoughness, &CLeafNode::getRoughness, -5.0, -5.0},
        {&CLeafNode::setReflectance, &CLeafNode::getReflectance, -5.0, -5.0},
    };
    for (const auto& [set, get, given, kept] : cases) {
        (leaf.get()->*set)(given);
        EXPECT_EQ((leaf.get()->*get)(), kept) << "given " << given;
    }
}

TEST(LeafNode, ACopyHasAllValues)
{
    const TZelComPtr<CLeafNode> leaf(new CLeafNode(nullptr));
    leaf->setUIValue(3);
    leaf->setDiffuse(CZelColor::rgb(1, 2, 3));
    leaf->setRoughness(0.5);
    leaf->setShape(2);
    const TZelComPtr<CLeafNode> copy(new CLeafNode(nullptr, *leaf));
    EXPECT_EQ(copy->getUIValue(), 3U);
    EXPECT_EQ(copy->getDiffuse(), CZelColor::rgb(1, 2, 3));
    EXPECT_EQ(copy->getRoughness(), 0.5);
    EXPECT_EQ(copy->getShape(), 2);
    EXPECT_NE(copy->getId(), leaf->getId());
}

TEST(LeafNode, EachValueHasAPlaceOfItsOwn)
{
    using L = CLeafNode;
    ZelTest::expectPlaces<L>({
        {ACCESS(L, Diffuse, CZelColor::rgb(1, 2, 3)), "<Diffuse R=\"1\""},
        {ACCESS(L, Transparent, CZelColor::rgb(2, 3, 4)), "<Transparent R=\"2\""},
        {ACCESS(L, Specular, CZelColor::rgb(3, 4, 5)), "<Specular R=\"3\""},
        {ACCESS(L, Reflection, CZelColor::rgb(4, 5, 6)), "<Reflection R=\"4\""},
        {ACCESS(L, ReflectionLimit, 1.5), "<Reflection.Limit>1.5"},
        {ACCESS(L, NeonColor, CZelColor::rgb(5, 6, 7)), "<Neon.Color R=\"5\""},
        {ACCESS(L, NeonValue, 2.5), "<Neon.Value>2.5"},
        {ACCESS(L, Refraction, 3.5), "<Refraction>3.5"},
        {ACCESS(L, Glossy, 4.5), "<Glossy>4.5"},
        {ACCESS(L, EmittingColor, CZelColor::rgb(6, 7, 8)), "<Emitting.Color R=\"6\""},
        {ACCESS(L, EmittingPower, 5.5), "<Emitting.Power>5.5"},
        {ACCESS(L, IlluminationModel, 1), "Illumination.Model=\"Cook.Torrance\""},
        {ACCESS(L, GlossyReflectionSampling, 11), "<Glossy.Reflection.Sampling>11<"},
        {ACCESS(L, GlossyRefractionSampling, 12), "<Glossy.Refraction.Sampling>12<"},
        {ACCESS(L, Roughness, 6.5), "<Roughness>6.5"},
        {ACCESS(L, Reflectance, 7.5), "<Reflectance>7.5"},
        {ACCESS(L, GlossyReflectionShininess, 13), "<Glossy.Reflection.Shininess>13<"},
        {ACCESS(L, GlossyRefractionShininess, 14), "<Glossy.Refraction.Shininess>14<"},
        {ACCESS(L, Shape, 2), "Shape=\"Plane\""},
    });
}
