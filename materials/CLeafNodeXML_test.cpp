#include "materials/CLeafNode.h"

#include "tests/support/checkElement.h"
#include "tests/support/messageOf.h"

#include <gtest/gtest.h>

using namespace OvZel;
using namespace ZelTest;

namespace {

TZelComPtr<CLeafNode> newLeaf(CTestDocument&)
{
    return TZelComPtr<CLeafNode>(new CLeafNode(nullptr));
}

/// A leaf read from the element of a node.
TZelComPtr<CLeafNode> readLeaf(const std::string& xml)
{
    CTestDocument document;
    const CTestElement source(xml);
    CZelXMLIO io(document.ref(), false);
    TZelComPtr<CLeafNode> leaf = newLeaf(document);
    leaf->getFrom(io, CZelXMLGet(source.element()));
    return leaf;
}

const std::string kBlack = " R='0' G='0' B='0'/>";
const std::string kRequired = "<Diffuse" + kBlack + "<Transparent" + kBlack + "<Specular" + kBlack +
                              "<Reflection" + kBlack + "<Neon.Color" + kBlack;
const std::string kNumbers =
    "<Neon.Value>1</Neon.Value><Refraction>2</Refraction><Glossy>3</Glossy>";

} // namespace

TEST(LeafNodeXml, FileForm)
{
    const std::vector<CRow> rows = {
        oneOf(attribute("Shape", "Bulb", "General"), {"General", "Bulb", "Plane"}),
        color("Diffuse", {1, 2, 3}, {100, 100, 100}),
        color("Transparent", {4, 5, 6}, {0, 0, 0}),
        color("Specular", {7, 8, 9}, {0, 0, 0}),
        color("Reflection", {10, 11, 12}, {0, 0, 0}),
        color("Neon.Color", {13, 14, 15}, {0, 0, 0}),
        real("Neon.Value", 2.5, 0.0),
        real("Refraction", 3.5, 1.0),
        real("Glossy", 4.5, 1000.0),
        absentAlsoDrops(optional(color("Emitting.Color", {16, 17, 18}, {0, 0, 0})),
                        {"Emitting.Power"}),
        real("Emitting.Power", 5.5, 0.0),
        optional(real("Reflection.Limit", 6.5, 0.0)),
        absentAlsoDrops(oneOf(attribute("Illumination.Model", "Cook.Torrance", "Phong"),
                              {"Phong", "Cook.Torrance"}),
                        {"Glossy.Reflection.Sampling", "Glossy.Refraction.Sampling", "Roughness",
                         "Reflectance", "Glossy.Reflection.Shininess",
                         "Glossy.Refraction.Shininess"}),
        integer("Glossy.Reflection.Sampling", 11, 1000),
        integer("Glossy.Refraction.Sampling", 12, 1000),
        real("Roughness", 7.5, 0.0),
        optional(real("Reflectance", 8.5, 1.0)),
        absentAlsoDrops(optional(integer("Glossy.Reflection.Shininess", 13, 1000)),
                        {"Glossy.Refraction.Shininess"}),
        integer("Glossy.Refraction.Shininess", 14, 1000),
    };
    CForm form;
    form.which = "Leaf";
    form.readOrder = {"Diffuse",
                      "Transparent",
                      "Specular",
                      "Reflection",
                      "Reflection.Limit",
                      "Neon.Color",
                      "Neon.Value",
                      "Refraction",
                      "Glossy",
                      "Emitting.Color",
                      "Emitting.Power",
                      "Illumination.Model",
                      "Glossy.Reflection.Sampling",
                      "Glossy.Refraction.Sampling",
                      "Roughness",
                      "Reflectance",
                      "Glossy.Reflection.Shininess",
                      "Glossy.Refraction.Shininess",
                      "Shape"};
    checkElement("Node", rows, newLeaf, form);
}

TEST(LeafNodeXml, LimitsHoldInTheFileToo)
{
    const auto leaf = readLeaf("<E>" + kRequired +
                               "<Neon.Value>-1</Neon.Value><Refraction>12</Refraction>"
                               "<Glossy>2000</Glossy></E>");
    EXPECT_EQ(leaf->getNeonValue(), 0.0);
    EXPECT_EQ(leaf->getRefraction(), 10.0);
    EXPECT_EQ(leaf->getGlossy(), 1000.0);
}

TEST(LeafNodeXml, EmptyLabelsCountAsAbsent)
{
    const auto leaf = readLeaf("<E Shape='' Illumination.Model=''>" + kRequired + kNumbers +
                               "<Roughness>0.5</Roughness><Emitting.Power>3</Emitting.Power>"
                               "<Glossy.Reflection.Sampling>5</Glossy.Reflection.Sampling></E>");
    EXPECT_EQ(leaf->getShape(), 0);
    EXPECT_EQ(leaf->getIlluminationModel(), 0);
    EXPECT_EQ(leaf->getRoughness(), 0.0);
    EXPECT_EQ(leaf->getGlossyReflectionSampling(), 1000);
    EXPECT_EQ(leaf->getEmittingColor(), CZelColor());
    EXPECT_EQ(leaf->getEmittingPower(), 0.0);
}

TEST(LeafNodeXml, UnknownLabelsStopTheLoad)
{
    EXPECT_EQ(messageOf([] { readLeaf("<E Shape='Cone'>" + kRequired + kNumbers + "</E>"); }),
              "Invalid label (Cone) [General..Plane]");
    EXPECT_EQ(messageOf([] {
                  readLeaf("<E Illumination.Model='Gouraud'>" + kRequired + kNumbers + "</E>");
              }),
              "Invalid label (Gouraud) [Phong..Cook.Torrance]");
}
