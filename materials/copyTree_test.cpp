#include "materials/copyTree.h"

#include "materials/CChessNode.h"
#include "materials/CCustomNode.h"
#include "materials/CLeafNode.h"
#include "materials/CMappingNode.h"
#include "tests/support/CTestMaterial.h"
#include "tests/support/messageOf.h"

#include <gtest/gtest.h>

using namespace OvZel;
using ZelTest::CTestMaterial;
using ZelTest::messageOf;

namespace {

/// The same identities, types, flags and numbers in the same places, in different objects.
void expectSame(const ITCENode& a, const ITCENode& b)
{
    EXPECT_NE(&a, &b);
    EXPECT_EQ(a.getId(), b.getId());
    EXPECT_EQ(a.getNodeType(), b.getNodeType());
    EXPECT_EQ(a.isShader(), b.isShader());
    EXPECT_EQ(a.getUIValue(), b.getUIValue());
    ASSERT_EQ(a.getNbChilds(), b.getNbChilds());
    for (std::int32_t i = 0; i < a.getNbChilds(); ++i) {
        EXPECT_EQ(b.getChild(i)->getParent(), &b);
        expectSame(*a.getChild(i), *b.getChild(i));
    }
}

} // namespace

TEST(CopyTree, KeepsTheIdentitiesOfAllNodes)
{
    CTestMaterial source;
    auto* mapping = source.add<CMappingNode>(source.root.get());
    mapping->setShader(false);
    mapping->setUIValue(4);
    auto* chess = source.add<CChessNode>(mapping);
    source.add<CLeafNode>(chess)->setGlossy(2.0);
    source.add<CLeafNode>(chess)->setGlossy(3.0);

    CTestMaterial target;
    const TZelComPtr<CTCENode> clone = cloneNode(target.root.get(), mapping);
    EXPECT_EQ(clone->getParent(), target.root.get());
    EXPECT_EQ(target.root->getNbChilds(), 0);
    expectSame(*mapping, *clone);
    EXPECT_EQ(clone->getChild(0)->getChild(1)->asLeafNode()->getGlossy(), 3.0);
}

TEST(CopyTree, CopiesNodesOfEveryType)
{
    CTestMaterial material;
    for (std::int32_t type = 1; type <= 12; ++type) {
        ITCENode* node = material.root->createNode(type);
        node->setUIValue(9);
        expectSame(*node, *cloneNode(nullptr, node));
        node->Release();
    }
}

TEST(CopyTree, ReplacesTheFirstChildAndCopiesTheShadersValues)
{
    CTestMaterial source, target;
    source.add<CLeafNode>(source.root.get());
    source.root->setUrl("file:///wood.zel");
    source.root->getName()->setText(0x656E, "wood");
    source.root->setShaderId(CZelUUID("000102030405060708090A0B0C0D0E0F"));
    source.root->setEditorName("editor");
    source.root->setUIValue(8);
    target.add<CMappingNode>(target.root.get());
    target.root->getName()->setText(0x6672, "gone");
    const CZelUUID targetId = target.root->CTCENode::getId();

    copyTree(*target.root, *source.root);
    ASSERT_EQ(target.root->getNbChilds(), 1);
    expectSame(*source.root->getChild(0), *target.root->getChild(0));
    EXPECT_EQ(target.root->getChild(0)->getParent(), target.root.get());
    EXPECT_STREQ(target.root->getUrl(), "file:///wood.zel");
    EXPECT_EQ(target.root->getName()->getNbTexts(), 1U);
    EXPECT_STREQ(target.root->getName()->getText(0x656E), "wood");
    EXPECT_EQ(target.root->getShaderId(), source.root->getShaderId());
    EXPECT_STREQ(target.root->getEditorName(), "editor");
    EXPECT_EQ(target.root->getUIValue(), 0U);
    EXPECT_EQ(target.root->CTCENode::getId(), targetId);
}

TEST(CopyTree, RaisesOnWhatIsMissingOrUnknownAndChangesNothing)
{
    CTestMaterial source, target;
    source.root->setUrl("file:///wood.zel");
    EXPECT_EQ(messageOf([&] { copyTree(*target.root, *source.root); }), "Node is NULL");
    EXPECT_STREQ(target.root->getUrl(), "");
    EXPECT_EQ(messageOf([&] { cloneNode(nullptr, nullptr); }), "Node is NULL");
    EXPECT_EQ(messageOf([&] { cloneNode(nullptr, source.root.get()); }), "Node is unknown");
    source.add<CMappingNode>(source.root.get())->addChild(nullptr);
    EXPECT_EQ(messageOf([&] { copyTree(*target.root, *source.root); }), "Node is NULL");
    EXPECT_EQ(target.root->getNbChilds(), 0);
}

TEST(CopyTree, CopiesAChainLongerThanTheStackIsDeep)
{
    CTestMaterial material;
    ITCENode* last = material.root.get();
    for (int i = 0; i < 100'000; ++i)
        last = material.add<CLeafNode>(last);
    const TZelComPtr<CTCENode> clone = cloneNode(nullptr, material.root->getChild(0));
    EXPECT_NE(clone->findNode(last->getId()), nullptr);
}

TEST(CopyTree, ANodeBelowItselfIsRefused)
{
    CTestMaterial source, target;
    auto* top = source.add<CMappingNode>(source.root.get());
    auto* below = source.add<CMappingNode>(top);
    for (ITCENode* node : {static_cast<ITCENode*>(top), static_cast<ITCENode*>(below)}) {
        below->addChild(node);
        EXPECT_EQ(messageOf([&] { copyTree(*target.root, *source.root); }),
                  "A node of the material stands below itself");
        EXPECT_EQ(target.root->getNbChilds(), 0);
        below->removeChild(0);
    }
}

TEST(CopyTree, ANodeInTwoPlacesIsCopiedTwice)
{
    CTestMaterial source;
    auto* chess = source.add<CChessNode>(source.root.get());
    chess->addChild(source.add<CLeafNode>(chess));
    const TZelComPtr<CTCENode> clone = cloneNode(nullptr, chess);
    expectSame(*chess, *clone);
    EXPECT_NE(clone->getChild(0), clone->getChild(1));
}
