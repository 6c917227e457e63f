#include "materials/CZelTCE.h"

#include "tests/support/CTestMaterial.h"
#include "tests/support/messageOf.h"

#include <gtest/gtest.h>

using namespace OvZel;
using ZelTest::CTestMaterial;
using CMessages = std::vector<std::string>;

TEST(ZelTCE, ANewTreeIsEmpty)
{
    CTestMaterial material;
    const IZelTCE& tce = *material.root;
    EXPECT_STREQ(tce.getUrl(), "");
    EXPECT_TRUE(tce.getId().isNull());
    EXPECT_EQ(tce.getName()->getNbTexts(), 0U);
    EXPECT_EQ(tce.getUIValue(), 0U);
    EXPECT_STREQ(tce.getEditorName(), "");
    EXPECT_EQ(tce.getRootNode()->getNbChilds(), 0);
    EXPECT_EQ(tce.getRootNode()->getNodeType(), eRootNode);
    EXPECT_EQ(tce.getRootNode()->getParent(), nullptr);
    EXPECT_EQ(material.root->getOwnerLink(), material.document.ref());
}

TEST(ZelTCE, AddressesThatNameNoShaderAreEmpty)
{
    const struct {
        const char *given, *kept;
    } cases[] = {{"", ""},
                 {"file:///", ""},
                 {"file://", ""},
                 {"file:///noshader", ""},
                 {"file://noshader", ""},
                 {nullptr, ""},
                 {"file:///noshader/", "file:///noshader/"},
                 {"file:///NoShader", "file:///NoShader"},
                 {"noshader", "noshader"},
                 {"file:///a b%20c.zel", "file:///a b%20c.zel"}};
    CTestMaterial material;
    for (const auto& [given, kept] : cases) {
        material.root->setUrl("before");
        material.root->setUrl(given);
        EXPECT_STREQ(material.root->getUrl(), kept);
    }
}

TEST(ZelTCE, TheTwoFacesHaveIdentitiesOfTheirOwnAndOneNumber)
{
    CTestMaterial material;
    IZelTCE& tce = *material.root;
    ITCENode& node = *material.root;
    const CZelUUID nodeId = node.getId();
    const CZelUUID shaderId("000102030405060708090A0B0C0D0E0F");
    tce.setId(shaderId);
    EXPECT_EQ(tce.getId(), shaderId);
    EXPECT_EQ(node.getId(), nodeId);
    node.setId(CZelUUID());
    EXPECT_EQ(tce.getId(), shaderId);

    tce.setUIValue(5);
    EXPECT_EQ(node.getUIValue(), 5U);
    node.setUIValue(6);
    EXPECT_EQ(tce.getUIValue(), 6U);
}

TEST(ZelTCE, TheRootLeadsToBothFaces)
{
    CTestMaterial material;
    IZelTCE& tce = *material.root;
    ITCENode* node = tce.getRootNode();
    EXPECT_EQ(node, static_cast<ITCENode*>(material.root.get()));
    ASSERT_NE(node->asRootNode(), nullptr);
    EXPECT_EQ(node->asRootNode()->getTCENode(), node);
    EXPECT_EQ(node->asLeafNode(), nullptr);
}

TEST(ZelTCE, MakesNodesOfEachTypeForTheirCaller)
{
    CTestMaterial material;
    for (std::int32_t type = 1; type <= 12; ++type) {
        ITCENode* node = material.root->createNode(type);
        ASSERT_NE(node, nullptr) << type;
        EXPECT_EQ(node->getNodeType(), type);
        EXPECT_EQ(node->getParent(), material.root.get());
        EXPECT_TRUE(node->isShader());
        const TZelComPtr<ITCENode> kept(node);
        node->Release(); // the reference of the call
    }
    EXPECT_EQ(material.root->getNbChilds(), 0);
    EXPECT_EQ(material.takeMessages(), CMessages());
}

TEST(ZelTCE, ANodeThatWasMadeDiesWithItsCallersReference)
{
    CTestMaterial material;
    ITCENode* node = material.root->createNode(eLeafNode);
    IZelSharedPtrBase* block = node->getObjectLink()->getSelfWeakPtr();
    block->addWeakRef();
    node->Release();
    EXPECT_FALSE(CZelSharedPtrObject::from(block)->isAlive());
    block->releaseWeakRef();
}

TEST(ZelTCE, ViewsAreNonNullInTheOneClassOfTheirName)
{
    CTestMaterial material;
    for (std::int32_t type = 1; type <= 12; ++type) {
        ITCENode* node = material.root->createNode(type);
        const std::vector<std::pair<eNodeType, const void*>> views = {
            {eRootNode, node->asRootNode()},
            {eChessNode, node->asChessNode()},
            {eMappingNode, node->asMappingNode()},
            {eTurbulenceNode, node->asTurbulenceNode()},
            {eLeafNode, node->asLeafNode()},
            {eFresnelNode, node->asFresnelNode()},
            {eFresnelDiffuseNode, node->asFresnelDiffuseNode()},
            {eGlazingNode, node->asGlazingNode()},
            {eCustomNode, node->asCustomNode()},
            {eAltitudeNode, node->asAltitudeNode()},
            {eMultiTextureNode, node->asMultiTextureNode()},
            {eWangTilesNode, node->asWangTilesNode()},
            {eMatteShadowNode, node->asMatteShadowNode()}};
        for (const auto& [view, pointer] : views)
            EXPECT_EQ(pointer != nullptr, view == type) << view << " of " << type;
        node->Release();
    }
}

TEST(ZelTCE, OtherNumbersMakeNothing)
{
    const char* unknown = "CZelTCE::createNode - Unknown node type";
    const std::pair<std::int32_t, const char*> cases[] = {
        {0, "CZelTCE::createNode - eRootNode node cannot be created"},
        {-1, unknown},
        {13, unknown},
        {0x7FFFFFFF, unknown}};
    CTestMaterial material;
    for (const auto& [type, message] : cases) {
        EXPECT_EQ(material.root->createNode(type), nullptr);
        EXPECT_EQ(material.takeMessages(), CMessages{message});
    }
}

TEST(ZelTCE, SaysNothingOnceItsPropertyOrDocumentIsGone)
{
    CTestMaterial material;
    material.root->reportWarning("one");
    material.root->reportWarning(nullptr);
    EXPECT_EQ(material.takeMessages(), (CMessages{"one", ""}));
    material.root->forgetProperty();
    material.root->reportWarning("two");
    EXPECT_EQ(material.root->createNode(0), nullptr);
    EXPECT_EQ(material.root->getOwnerLink(), nullptr);
    EXPECT_EQ(material.takeMessages(), CMessages());
}

TEST(ZelTCE, NamesFollowTheDocumentsLanguage)
{
    CTestMaterial material;
    material.document.ref()->setLanguage("fr");
    material.root->getName()->setCurrentText("bois");
    EXPECT_EQ(material.root->getName()->getLanguageKey(0), 0x6672U);
    material.root->setEditorName("editor");
    EXPECT_STREQ(material.root->getEditorName(), "editor");
    material.root->setEditorName(nullptr);
    EXPECT_STREQ(material.root->getEditorName(), "");
}
