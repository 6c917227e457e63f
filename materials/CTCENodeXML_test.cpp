#include "materials/CTCENodeXML.h"

#include "materials/CChessNode.h"
#include "materials/CFresnelNode.h"
#include "materials/CLeafNode.h"
#include "materials/CMappingNode.h"
#include "materials/nodeTypes.h"
#include "tests/support/CTestElement.h"
#include "tests/support/CTestMaterial.h"
#include "tests/support/messageOf.h"
#include "tests/support/textOf.h"

#include <gtest/gtest.h>

using namespace OvZel;
using ZelTest::CTestElement;
using ZelTest::CTestMaterial;
using ZelTest::messageOf;
using ZelTest::textOf;

namespace {

class TCENodeXml : public testing::Test {
protected:
    std::string write(const ITCENode* node)
    {
        const CTestElement target;
        addNode(io, CZelXMLAdd(CZelXMLAdd(target.element()).AddElement("Node")), node);
        const std::string text = target.text();
        return text.substr(text.find("<E"));
    }

    TZelComPtr<CTCENode> read(const std::string& xml)
    {
        const CTestElement source(xml);
        return getNode(io, CZelXMLGet(CZelXMLGet(source.element()).GetElement("Node")), root);
    }

    std::string failureOf(const std::string& xml)
    {
        return messageOf([&] { read(xml); });
    }

    CTestMaterial material;
    CZelTCE* root = material.root.get();
    CZelXMLIO io{material.document.ref(), false};
};

/// The text with one piece of it replaced, the last one of that form.
std::string changed(std::string text, const std::string& old, const std::string& by)
{
    const std::size_t place = text.rfind(old);
    EXPECT_NE(place, std::string::npos) << old;
    return place != std::string::npos ? text.replace(place, old.size(), by) : text;
}

} // namespace

TEST_F(TCENodeXml, TypesHaveTheirLabels)
{
    const std::pair<eNodeType, const char*> types[] = {{eChessNode, "Chess"},
                                                       {eMappingNode, "Mapping"},
                                                       {eTurbulenceNode, "Turbulence"},
                                                       {eLeafNode, "Leaf"},
                                                       {eFresnelNode, "Fresnel"},
                                                       {eFresnelDiffuseNode, "FresnelDiffuse"},
                                                       {eGlazingNode, "Glazing"},
                                                       {eAltitudeNode, "Altitude"},
                                                       {eMultiTextureNode, "MultiTexture"},
                                                       {eWangTilesNode, "WangTexture"},
                                                       {eCustomNode, "Custom"},
                                                       {eMatteShadowNode, "MatteShadow"}};
    for (const auto& [type, label] : types) {
        ITCENode* node = root->createNode(type);
        if (type != eLeafNode && type != eCustomNode)
            material.add<CLeafNode>(node);
        if (type == eChessNode)
            material.add<CLeafNode>(node);
        const std::string text = write(node);
        const std::string attribute = " Type=\"" + std::string(label) + "\"";
        EXPECT_NE(text.find(attribute), std::string::npos) << label;
        const TZelComPtr<CTCENode> back = read(text);
        EXPECT_EQ(back->getNodeType(), type);
        EXPECT_EQ(back->getNbChilds(), node->getNbChilds());
        EXPECT_EQ(write(back.get()), text);
        node->Release();
    }
}

TEST_F(TCENodeXml, TheFrameIsWrittenAheadOfTheValues)
{
    const TZelComPtr<CLeafNode> leaf(new CLeafNode(nullptr));
    leaf->setUIValue(0xFFFFFFFF);
    const std::string full = "<E><Node Id=\"" + textOf(leaf->getId()) +
                             "\" Type=\"Leaf\" Shape=\"General\" Illumination.Model=\"Phong\">"
                             "<UI.Value>-1</UI.Value><Shader/><Diffuse";
    EXPECT_EQ(write(leaf.get()).substr(0, full.size()), full);
    leaf->setId(CZelUUID());
    leaf->setUIValue(0);
    leaf->setShader(false);
    const std::string bare =
        "<E><Node Type=\"Leaf\" Shape=\"General\" Illumination.Model=\"Phong\"><Diffuse";
    EXPECT_EQ(write(leaf.get()).substr(0, bare.size()), bare);
}

TEST_F(TCENodeXml, TheFrameIsReadBack)
{
    const TZelComPtr<CLeafNode> leaf(new CLeafNode(nullptr));
    leaf->setUIValue(0xFFFFFFFF);
    const std::string text = write(leaf.get());
    const TZelComPtr<CTCENode> full = read(text);
    EXPECT_EQ(full->getId(), leaf->getId());
    EXPECT_EQ(full->getUIValue(), 0xFFFFFFFFU);
    EXPECT_TRUE(full->isShader());
    EXPECT_EQ(full->getParent(), root);
    EXPECT_EQ(root->getNbChilds(), 0);

    const TZelComPtr<CTCENode> bare =
        read(changed(changed(changed(text, "<Shader/>", ""), "<UI.Value>-1</UI.Value>", ""),
                     " Id=\"" + textOf(leaf->getId()) + "\"", ""));
    EXPECT_FALSE(bare->isShader());
    EXPECT_EQ(bare->getUIValue(), 0U);
    EXPECT_FALSE(bare->getId().isNull());
    EXPECT_NE(bare->getId(), leaf->getId());
}

TEST_F(TCENodeXml, ANodeWithoutIdentityGetsAnotherOneWithEachLoad)
{
    const TZelComPtr<CLeafNode> leaf(new CLeafNode(nullptr));
    leaf->setId(CZelUUID());
    const std::string text = write(leaf.get());
    EXPECT_NE(read(text)->getId(), read(text)->getId());
}

TEST_F(TCENodeXml, AMissingTypeOrAnUnknownOneStopsTheLoad)
{
    EXPECT_EQ(failureOf("<E><Node/></E>"), "CZelXMLGet::GetAttributeLabel - NULL ptr for tag Type");
    EXPECT_EQ(failureOf("<E><Node Type='Marble'/></E>"), "Invalid label (Marble) [Root..Custom]");
}

TEST_F(TCENodeXml, ARootCreatesNothing)
{
    EXPECT_FALSE(read("<E><Node Type='Root'><Shader/></Node></E>"));
    const std::string null = "TZelComPtr::operator->() - Dereferencing NULL";
    EXPECT_EQ(failureOf("<E><Node Type='Root' Id='000102030405060708090A0B0C0D0E0F'/></E>"), null);
    EXPECT_EQ(failureOf("<E><Node Type='Root'><UI.Value>1</UI.Value></Node></E>"), null);
}

TEST_F(TCENodeXml, AChessNodeHasTwoBranches)
{
    auto* chess = material.add<CChessNode>(root);
    material.add<CLeafNode>(chess)->setGlossy(1.0);
    EXPECT_EQ(messageOf([&] { write(chess); }), "");
    material.add<CLeafNode>(chess)->setGlossy(2.0);
    const std::string text = write(chess);
    const TZelComPtr<CTCENode> back = read(text);
    ASSERT_EQ(back->getNbChilds(), 2);
    EXPECT_EQ(back->getChild(0)->asLeafNode()->getGlossy(), 1.0);
    EXPECT_EQ(back->getChild(1)->asLeafNode()->getGlossy(), 2.0);
    EXPECT_EQ(back->getChild(1)->getParent(), back.get());

    std::string one = text;
    one.erase(one.find("<SecondNode"), one.find("</SecondNode>") + 13 - one.find("<SecondNode"));
    EXPECT_EQ(failureOf(one), "CZelXMLGet::GetElement - NULL ptr for tag SecondNode");
}

TEST_F(TCENodeXml, AChildIsRequired)
{
    auto* mapping = material.add<CMappingNode>(root);
    EXPECT_EQ(messageOf([&] { write(mapping); }), "");
    EXPECT_EQ(messageOf([&] { write(nullptr); }), "");
    mapping->addChild(nullptr);
    EXPECT_EQ(messageOf([&] { write(mapping); }), "");

    const TZelComPtr<CMappingNode> whole(new CMappingNode(nullptr));
    material.add<CLeafNode>(whole.get());
    std::string text = write(whole.get());
    const std::size_t start = text.find("<Node", 5);
    text.erase(start, text.find("</Node>") + 7 - start);
    EXPECT_EQ(failureOf(text), "CZelXMLGet::GetElement - NULL ptr for tag Node");
}

TEST_F(TCENodeXml, ChildrenAreReadBehindTheValuesAndAheadOfTheFrame)
{
    const TZelComPtr<CMappingNode> mapping(new CMappingNode(nullptr));
    material.add<CLeafNode>(mapping.get());
    const std::string text = write(mapping.get());
    const std::string noChild = changed(text, "\"Leaf\"", "\"Marble\"");
    EXPECT_EQ(failureOf(noChild), "Invalid label (Marble) [Root..Custom]");
    EXPECT_EQ(failureOf(changed(noChild, "<Angle>0.000000</Angle>", "")),
              "CZelXMLGet::GetElement - NULL ptr for tag Angle");
    const std::string badId =
        changed(text, "Id=\"" + textOf(mapping->getId()) + "\"", "Id=\"xyz\"");
    EXPECT_EQ(failureOf(badId), "CZelUUID::Hex2Int: Invalid hex value");
    EXPECT_EQ(failureOf(changed(badId, "\"Leaf\"", "\"Marble\"")),
              "Invalid label (Marble) [Root..Custom]");
}

TEST_F(TCENodeXml, ARootBelowANodeLeavesAnEmptyPlace)
{
    const TZelComPtr<CMappingNode> mapping(new CMappingNode(nullptr));
    material.add<CLeafNode>(mapping.get());
    std::string text = write(mapping.get());
    const std::size_t start = text.find("<Node", 5);
    text.replace(start, text.find("</Node>") + 7 - start, "<Node Type='Root'/>");
    const TZelComPtr<CTCENode> back = read(text);
    ASSERT_EQ(back->getNbChilds(), 1);
    EXPECT_EQ(back->getChild(0), nullptr);
}

TEST_F(TCENodeXml, MappingNodesBelowOneAnotherFindTheirParentsIdentity)
{
    const TZelComPtr<CMappingNode> outer(new CMappingNode(nullptr));
    auto* inner = material.add<CMappingNode>(outer.get());
    material.add<CLeafNode>(inner);
    inner->setParentMappingNodeId(outer->getMappingNodeId());
    CZelXMLIO::CIdentities table;
    const std::string text = write(outer.get());
    io.setIdentities(&table);
    const TZelComPtr<CTCENode> back = read(text);
    IMappingNode* backOuter = back->asMappingNode();
    IMappingNode* backInner = back->getChild(0)->asMappingNode();
    EXPECT_NE(backOuter->getMappingNodeId(), outer->getMappingNodeId());
    EXPECT_EQ(backInner->getParentMappingNodeId(), backOuter->getMappingNodeId());
    EXPECT_EQ(table.size(), 2U);
    EXPECT_TRUE(material.takeMessages().empty());
}

TEST_F(TCENodeXml, AChainAsDeepAsAFileMayBeComesBack)
{
    const TZelComPtr<CFresnelNode> top(new CFresnelNode(nullptr));
    ITCENode* last = top.get();
    for (int i = 0; i < 9000; ++i)
        last = material.add<CFresnelNode>(last);
    last = material.add<CLeafNode>(last);
    const TZelComPtr<CTCENode> back = read(write(top.get()));
    ASSERT_NE(back->findNode(last->getId()), nullptr);
    EXPECT_EQ(back->findNode(last->getId())->getNodeType(), eLeafNode);
}

TEST_F(TCENodeXml, ANodeBelowItselfCannotBeWritten)
{
    auto* top = material.add<CMappingNode>(root);
    auto* below = material.add<CMappingNode>(top);
    for (ITCENode* node : {static_cast<ITCENode*>(root), static_cast<ITCENode*>(top),
                           static_cast<ITCENode*>(below)}) {
        below->addChild(node);
        EXPECT_EQ(messageOf([&] { write(root); }), "A node of the material stands below itself");
        below->removeChild(0);
    }
}

TEST_F(TCENodeXml, ANodeInTwoPlacesIsWrittenTwice)
{
    auto* chess = material.add<CChessNode>(root);
    chess->addChild(material.add<CLeafNode>(chess));
    const TZelComPtr<CTCENode> back = read(write(chess));
    ASSERT_EQ(back->getNbChilds(), 2);
    EXPECT_EQ(back->getChild(0)->getId(), back->getChild(1)->getId());
}
