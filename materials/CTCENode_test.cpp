#include "materials/CTCENode.h"

#include "core/CZelMgrRef.h"
#include "materials/CLeafNode.h"
#include "materials/CMappingNode.h"
#include "tests/support/CTestElement.h"
#include "tests/support/CTestMaterial.h"
#include "tests/support/messageOf.h"

#include <gtest/gtest.h>

using namespace OvZel;
using ZelTest::CTestMaterial;
using ZelTest::messageOf;
using CMessages = std::vector<std::string>;

TEST(TCENode, KnowsItsParentWithoutKeepingIt)
{
    CTestMaterial material;
    const TZelComPtr<CLeafNode> leaf(new CLeafNode(material.root.get()));
    EXPECT_EQ(leaf->getParent(), material.root.get());
    EXPECT_EQ(material.root->getNbChilds(), 0);
    EXPECT_EQ(leaf->getOwnerLink(), material.root->getObjectLink());
    EXPECT_EQ(leaf->getMgrRef(), material.document.ref());
    material.root.reset();
    EXPECT_EQ(leaf->getParent(), nullptr);
    EXPECT_EQ(leaf->getOwnerLink(), nullptr);
    EXPECT_EQ(leaf->getMgrRef(), nullptr);
}

TEST(TCENode, SetParentReplacesTheLink)
{
    CTestMaterial material;
    const TZelComPtr<CMappingNode> mapping(new CMappingNode(material.root.get()));
    const TZelComPtr<CLeafNode> leaf(new CLeafNode(material.root.get()));
    leaf->setParent(mapping.get());
    EXPECT_EQ(leaf->getParent(), mapping.get());
    EXPECT_EQ(mapping->getNbChilds(), 0);
    leaf->setParent(nullptr);
    EXPECT_EQ(leaf->getParent(), nullptr);
}

TEST(TCENode, ChildrenAreSetAppendedAndRemovedByIndex)
{
    CTestMaterial material;
    CZelTCE& root = *material.root;
    auto* first = material.add<CLeafNode>(&root);
    const TZelComPtr<CLeafNode> other(new CLeafNode(nullptr));

    root.setChild(2, other.get());
    root.setChild(-1, other.get());
    EXPECT_EQ(root.getNbChilds(), 1);
    root.setChild(1, other.get());
    ASSERT_EQ(root.getNbChilds(), 2);
    EXPECT_EQ(root.getChild(0), first);
    EXPECT_EQ(root.getChild(1), other.get());
    EXPECT_EQ(other->getParent(), nullptr);

    root.removeChild(2);
    root.removeChild(-1);
    EXPECT_EQ(root.getNbChilds(), 2);
    root.removeChild(0);
    ASSERT_EQ(root.getNbChilds(), 1);
    EXPECT_EQ(root.getChild(0), other.get());
    root.setChild(0, nullptr);
    EXPECT_EQ(root.getNbChilds(), 1);
    for (const std::int32_t index : {-1, 0, 1})
        EXPECT_EQ(std::as_const(root).getChild(index), nullptr);
    EXPECT_EQ(material.takeMessages(), CMessages());
}

TEST(TCENode, ANewNodeHasAnIdentityOfItsOwnAndIsAShaders)
{
    const TZelComPtr<CLeafNode> a(new CLeafNode(nullptr));
    const TZelComPtr<CLeafNode> b(new CLeafNode(nullptr));
    EXPECT_FALSE(a->getId().isNull());
    EXPECT_NE(a->getId(), b->getId());
    EXPECT_TRUE(a->isShader());
    EXPECT_EQ(a->getUIValue(), 0U);
    a->setShader(false);
    a->setUIValue(7);
    a->setId(CZelUUID());
    EXPECT_FALSE(a->isShader());
    EXPECT_EQ(a->getUIValue(), 7U);
    EXPECT_TRUE(a->getId().isNull());
}

TEST(TCENode, FindsANodeLastChildrenFirst)
{
    CTestMaterial material;
    CZelTCE& root = *material.root;
    EXPECT_EQ(root.findNode(root.CTCENode::getId()), &root);
    auto* first = material.add<CMappingNode>(&root);
    auto* below = material.add<CLeafNode>(first);
    auto* last = material.add<CLeafNode>(&root);
    EXPECT_EQ(root.findNode(below->getId()), below);
    EXPECT_EQ(std::as_const(root).findNode(CZelUUID()), nullptr);

    const CZelUUID same = below->getId();
    last->setId(same);
    EXPECT_EQ(root.findNode(same), last);
    first->setId(same);
    last->setId(CZelUUID());
    EXPECT_EQ(root.findNode(same), first);
    EXPECT_EQ(first->findNode(root.CTCENode::getId()), nullptr);
}

TEST(TCENode, ASearchRaisesWhenItMeetsAnEmptyPlace)
{
    CTestMaterial material;
    material.root->addChild(nullptr);
    auto* leaf = material.add<CLeafNode>(material.root.get());
    EXPECT_EQ(material.root->findNode(leaf->getId()), leaf);
    EXPECT_EQ(messageOf([&] { material.root->findNode(CZelUUID()); }),
              "TZelComPtr::operator->() - Dereferencing NULL");
}

TEST(TCENode, EachViewIsNullButTheNodesOwn)
{
    const TZelComPtr<CLeafNode> leaf(new CLeafNode(nullptr));
    ITCENode& node = *leaf;
    EXPECT_EQ(node.asLeafNode(), leaf.get());
    EXPECT_EQ(node.asLeafNode()->getTCENode(), &node);
    const void* others[] = {
        node.asRootNode(),         node.asChessNode(),     node.asMappingNode(),
        node.asTurbulenceNode(),   node.asFresnelNode(),   node.asFresnelDiffuseNode(),
        node.asGlazingNode(),      node.asCustomNode(),    node.asAltitudeNode(),
        node.asMultiTextureNode(), node.asWangTilesNode(), node.asMatteShadowNode(),
        node.asReserved1(),        node.asReserved2(),     node.asReserved3(),
        node.asReserved4()};
    for (const void* other : others)
        EXPECT_EQ(other, nullptr);
}

TEST(TCENode, ReachesTheDocumentThroughTheRootAlone)
{
    CTestMaterial material;
    auto* mapping = material.add<CMappingNode>(material.root.get());
    auto* leaf = material.add<CLeafNode>(mapping);
    EXPECT_EQ(leaf->getEnclosingMgr(), material.document.ref());

    const TZelComPtr<CLeafNode> lone(new CLeafNode(nullptr));
    EXPECT_EQ(messageOf([&] { lone->getEnclosingMgr(); }), "");
    material.root->forgetProperty();
    EXPECT_EQ(messageOf([&] { leaf->getEnclosingMgr(); }), "");
    EXPECT_EQ(leaf->getMgrRef(), nullptr);
}

TEST(TCENode, BasicDataGivesTheIdentityAndWarnsOfTheRest)
{
    CTestMaterial material;
    auto* leaf = material.add<CLeafNode>(material.root.get());
    IZelBasicData* data = leaf->getBasicData();
    EXPECT_EQ(*data->getId(), leaf->getId());
    const CZelUUID id("000102030405060708090A0B0C0D0E0F");
    data->setId(&id);
    EXPECT_EQ(leaf->getId(), id);
    data->setId(nullptr);
    EXPECT_TRUE(leaf->getId().isNull());
    EXPECT_STREQ(data->getName(), "");
    EXPECT_EQ(data->getWarningTarget(), material.document.ref());
    EXPECT_EQ(material.takeMessages(),
              CMessages{"CZelEmptyBasicData::getName - This class doesn't implement name"});
}

TEST(TCENode, BasicDataWritesAndReadsTheNodeAlone)
{
    CTestMaterial material;
    auto* leaf = material.add<CLeafNode>(material.root.get());
    leaf->setGlossy(3.0);
    const ZelTest::CTestElement target;
    ASSERT_NE(leaf->getBasicData()->putInXML(target.element()), nullptr);
    auto* other = material.add<CLeafNode>(material.root.get());
    EXPECT_TRUE(other->getBasicData()->initWithXML(target.element(), false));
    EXPECT_EQ(other->getGlossy(), 3.0);
    EXPECT_EQ(other->getId(), leaf->getId());
    EXPECT_EQ(material.takeMessages(), CMessages());
}

TEST(TCENode, AChainLongerThanTheStackIsDeepDies)
{
    CTestMaterial material;
    constexpr int kLength = 300'000;
    ITCENode* last = material.root.get();
    for (int i = 0; i < kLength; ++i)
        last = material.add<CLeafNode>(last);
    EXPECT_EQ(last->getObjectLink()->getMgrRef(), material.document.ref());
    EXPECT_EQ(material.root->findNode(last->getId()), last);
    const TZelComPtr<ITCENode> kept(last);
    material.root.reset();
    EXPECT_EQ(kept->getParent(), nullptr);
}

// What a client may do with setParent and addChild: walks still come to an end.

namespace {

/// Nodes that are each the parent and the only child of the next, round in a circle.
class CCircle {
public:
    explicit CCircle(std::size_t size)
    {
        for (std::size_t i = 0; i < size; ++i)
            nodes.emplace_back(new CMappingNode(nullptr));
        for (std::size_t i = 0; i < size; ++i) {
            nodes[i]->addChild(nodes[(i + 1) % size].get());
            nodes[(i + 1) % size]->setParent(nodes[i].get());
        }
    }
    ~CCircle() { nodes.front()->removeChild(0); }

    std::vector<TZelComPtr<CMappingNode>> nodes;
};

} // namespace

TEST(TCENode, ACircleOfNodesBelongsToNoDocument)
{
    for (const std::size_t size : {1u, 2u, 3u, 4u, 5u, 100u}) {
        const CCircle circle(size);
        const TZelComPtr<CLeafNode> below(new CLeafNode(circle.nodes.front().get()));
        for (const CTCENode* node : {static_cast<CTCENode*>(circle.nodes.back().get()),
                                     static_cast<CTCENode*>(below.get())}) {
            EXPECT_EQ(node->getMgrRef(), nullptr) << size;
            EXPECT_EQ(messageOf([&] { node->getEnclosingMgr(); }), "") << size;
        }
    }
}

TEST(TCENode, ASearchVisitsEachNodeOfACircleOnce)
{
    for (const std::size_t size : {1u, 2u, 5u}) {
        const CCircle circle(size);
        auto* last = circle.nodes.back().get();
        EXPECT_EQ(circle.nodes.front()->findNode(last->getId()), last);
        EXPECT_EQ(circle.nodes.front()->findNode(CZelUUID()), nullptr);
    }
}

TEST(TCENode, ASearchIsNotSlowedDownByNodesInTwoPlaces)
{
    CTestMaterial material;
    ITCENode* last = material.root.get();
    for (int i = 0; i < 64; ++i) { // 2 to the 64th ways down
        ITCENode* next = material.add<CLeafNode>(last);
        last->addChild(next);
        last = next;
    }
    EXPECT_EQ(material.root->findNode(CZelUUID()), nullptr);
}

TEST(TCENode, ANodeKeptLongerThanPropertyAndDocumentStillAnswers)
{
    TZelComPtr<CMappingNode> kept;
    TZelComPtr<CZelTCE> root;
    {
        CTestMaterial material;
        kept = TZelComPtr<CMappingNode>(material.add<CMappingNode>(material.root.get()));
        root = material.root;
        material.root->forgetProperty();
    }
    EXPECT_EQ(kept->getParent(), root.get());
    EXPECT_EQ(messageOf([&] { kept->removeLinkedMap(CZelUUID()); }), "");
    kept->setXCenter(2.0);
    EXPECT_EQ(kept->getXCenter(), 1.0);
    root->getName()->setCurrentText("oak");
    EXPECT_STREQ(root->getName()->getCurrentText(), "oak");
    root.reset();
    EXPECT_EQ(kept->getParent(), nullptr);
    EXPECT_EQ(kept->getMgrRef(), nullptr);
}
