#include "tests/support/CTestProperty.h"
#include "tests/support/messageOf.h"

#include <zel/ILeafNode.h>
#include <zel/IMappingNode.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>

// The nodes that the facade of a material finds, makes, inserts and removes.

namespace {

using namespace OvZel;
using ZelTest::CTestProperty;

constexpr CZelColor kColor = CZelColor::rgb(1, 2, 3);

/// A chain with a letter for each node, the top first: "m", "S", "L" as CTestProperty tells them,
/// "A" an altitude node.
void build(const CTestProperty& property, const std::string& letters)
{
    for (auto letter = letters.rbegin(); letter != letters.rend(); ++letter) {
        const eNodeType type = *letter == 'L'   ? eLeafNode
                               : *letter == 'A' ? eAltitudeNode
                                                : eMappingNode;
        property.hang(property.root(), type).setShader(*letter == 'S');
    }
}

TEST(PropertyTree, TheLeafIsFoundAlongFirstChildrenOnly)
{
    const CTestProperty property;
    ITCENode& chess = property.hang(property.root(), eChessNode);
    ITCENode* second = property->getTCE()->createNode(eLeafNode);
    second->asLeafNode()->setDiffuse(kColor);
    chess.setChild(0, nullptr);
    chess.setChild(1, second);
    second->Release();
    EXPECT_EQ(property->getDiffuseColor(), CZelColor::rgb(100, 100, 100));

    property->setDiffuseColor(CZelColor::rgb(4, 5, 6));
    ASSERT_EQ(chess.getNbChilds(), 2);
    EXPECT_EQ(chess.getChild(1), second);
    EXPECT_EQ(second->asLeafNode()->getDiffuse(), kColor);
    ASSERT_NE(chess.getChild(0), nullptr);
    EXPECT_EQ(chess.getChild(0)->asLeafNode()->getDiffuse(), CZelColor::rgb(4, 5, 6));
}

TEST(PropertyTree, ANewLeafHangsBelowTheLastNodeAndNamesTheRootAsItsParent)
{
    for (const std::string above : {"", "m", "S", "A", "mA"}) {
        SCOPED_TRACE(above);
        const CTestProperty property;
        build(property, above);
        property->setDiffuseColor(kColor);
        const int depth = static_cast<int>(above.size());
        ASSERT_NE(property.at(depth), nullptr);
        ASSERT_NE(property.at(depth)->asLeafNode(), nullptr);
        EXPECT_EQ(property.at(depth)->getParent(), &property.root());
        EXPECT_TRUE(property.at(depth)->isShader());
    }
}

TEST(PropertyTree, ALeafThatIsThereIsTaken)
{
    for (const std::string chain : {"L", "mL", "SL", "mAL"}) {
        SCOPED_TRACE(chain);
        const CTestProperty property;
        build(property, chain);
        ITCENode* leaf = property.at(static_cast<int>(chain.size()) - 1);
        property->setDiffuseColor(kColor);
        EXPECT_EQ(leaf->asLeafNode()->getDiffuse(), kColor);
        EXPECT_EQ(leaf->getNbChilds(), 0);
        EXPECT_EQ(property->getDiffuseColor(), kColor);
    }
}

TEST(PropertyTree, MappingNodesOfAShaderArePassedOver)
{
    const CTestProperty property;
    build(property, "SAmmL");
    property.at(0)->asMappingNode()->setAngle(1.0);
    property.at(2)->asMappingNode()->setAngle(2.0);
    property.at(3)->asMappingNode()->setAngle(3.0);
    double angle = 0.0;
    EXPECT_TRUE(property->getMapAngle(&angle));
    EXPECT_EQ(angle, 2.0);

    property.at(2)->setShader(true);
    EXPECT_TRUE(property->getMapAngle(&angle));
    EXPECT_EQ(angle, 3.0);
    property.at(3)->setShader(true);
    EXPECT_FALSE(property->getMapAngle(&angle));
    EXPECT_EQ(angle, 0.0);
}

TEST(PropertyTree, ANewMappingNodeStandsBetweenTheRootAndTheRest)
{
    for (const std::string rest : {"L", "S", "SL", "AL"}) {
        SCOPED_TRACE(rest);
        const CTestProperty property;
        build(property, rest);
        ITCENode* first = property.at(0);
        property->setMapAngle(1.0);
        ASSERT_NE(property.at(0)->asMappingNode(), nullptr);
        EXPECT_EQ(property.at(0)->asMappingNode()->getAngle(), 1.0);
        EXPECT_FALSE(property.at(0)->isShader());
        EXPECT_EQ(property.at(0)->getParent(), &property.root());
        EXPECT_EQ(property.at(1), first);
        EXPECT_EQ(first->getParent(), property.at(0));
        EXPECT_EQ(property.root().getNbChilds(), 1);
        EXPECT_EQ(property.at(0)->getNbChilds(), 1);
    }
}

TEST(PropertyTree, ANewMappingNodeUnderAnEmptyRootGetsALeaf)
{
    const CTestProperty property;
    property->setMapAngle(1.0);
    ASSERT_EQ(property.chain(), "mL");
    EXPECT_EQ(property.at(0)->getParent(), &property.root());
    EXPECT_EQ(property.at(1)->getParent(), property.at(0));
}

TEST(PropertyTree, MappingNodesAreCountedFromZero)
{
    const CTestProperty property;
    build(property, "mSAmL");
    EXPECT_EQ(property->getMappingNode(0), property.at(0)->asMappingNode());
    EXPECT_EQ(property->getMappingNode(1), property.at(3)->asMappingNode());
    EXPECT_EQ(std::as_const(*property).getMappingNode(1), property.at(3)->asMappingNode());
    for (const std::int32_t index : {2, 3, 0x7FFFFFFF, -1, std::numeric_limits<int>::min()})
        EXPECT_EQ(property->getMappingNode(index), nullptr) << index;
}

TEST(PropertyTree, AnInsertedNodeStandsBelowTheOneAhead)
{
    const struct {
        const char* before;
        std::int32_t index;
        const char* after; ///< with the new node, whose flag is set
        int place;
    } cases[] = {
        {"", 0, "SL", 0},      {"L", 0, "SL", 0},       {"mL", 0, "SmL", 0},   {"mL", 1, "mSL", 1},
        {"mmL", 1, "mSmL", 1}, {"mSmL", 1, "mSSmL", 1}, {"SmL", 1, "SmSL", 2}, {"m", 1, "mSL", 1},
    };
    for (const auto& [before, index, after, place] : cases) {
        SCOPED_TRACE(std::string(before) + " at " + std::to_string(index));
        const CTestProperty property;
        build(property, before);
        ITCENode* parent = place == 0 ? &property.root() : property.at(place - 1);
        IMappingNode* made = property->insertMappingNode(index);
        ASSERT_NE(made, nullptr);
        EXPECT_EQ(property.chain(), after);
        EXPECT_EQ(property.at(place), made->getTCENode());
        EXPECT_EQ(made->getTCENode()->getParent(), parent);
        EXPECT_EQ(property.at(place + 1)->getParent(), made->getTCENode());
        EXPECT_TRUE(made->getTCENode()->isShader());
    }
}

TEST(PropertyTree, AnInsertedNodeCountsOnceItIsNoShader)
{
    const CTestProperty property;
    build(property, "mL");
    IMappingNode* made = property->insertMappingNode(0);
    EXPECT_NE(property->getMappingNode(0), made);
    made->getTCENode()->setShader(false);
    EXPECT_EQ(property->getMappingNode(0), made);
}

TEST(PropertyTree, NothingIsInsertedBehindAMissingNode)
{
    for (const char* chain : {"", "L", "SL", "mL"}) {
        const CTestProperty property;
        build(property, chain);
        for (const std::int32_t index : {2, -1, std::numeric_limits<int>::min()})
            EXPECT_EQ(property->insertMappingNode(index), nullptr);
        EXPECT_EQ(property.chain(), chain);
    }
}

TEST(PropertyTree, TheChildOfARemovedNodeMovesUp)
{
    const struct {
        const char* before;
        std::int32_t index;
        const char* after;
        int place; ///< of the removed node, and then of its child
    } cases[] = {{"mL", 0, "L", 0},
                 {"mmL", 0, "mL", 0},
                 {"mmL", 1, "mL", 1},
                 {"SmL", 0, "SL", 1},
                 {"mSmSL", 1, "mSSL", 2}};
    for (const auto& [before, index, after, place] : cases) {
        SCOPED_TRACE(std::string(before) + " at " + std::to_string(index));
        const CTestProperty property;
        build(property, before);
        ITCENode* child = property.at(place + 1);
        ITCENode* parent = place == 0 ? &property.root() : property.at(place - 1);
        EXPECT_TRUE(property->removeMappingNode(index));
        EXPECT_EQ(property.chain(), after);
        EXPECT_EQ(property.at(place), child);
        EXPECT_EQ(child->getParent(), parent);
        EXPECT_EQ(parent->getNbChilds(), 1);
    }
}

TEST(PropertyTree, ARemovedNodeWithoutAChildLeavesNoEmptyPlace)
{
    for (const std::string above : {"", "S"}) {
        const CTestProperty property;
        build(property, above + "m");
        ITCENode* parent = above.empty() ? &property.root() : property.at(0);
        EXPECT_TRUE(property->removeMappingNode(0));
        EXPECT_EQ(property.chain(), above);
        EXPECT_EQ(parent->getNbChilds(), 0);
    }
}

TEST(PropertyTree, FurtherChildrenOfARemovedNodeGoWithIt)
{
    const CTestProperty property;
    build(property, "mL");
    ITCENode* extra = property->getTCE()->createNode(eLeafNode);
    property.at(0)->addChild(extra);
    extra->Release();
    EXPECT_TRUE(property->removeMappingNode(0));
    EXPECT_EQ(property.chain(), "L");
    EXPECT_EQ(property.root().getNbChilds(), 1);
}

TEST(PropertyTree, TheParentOfARemovedNodeIsTheOneThatHoldsIt)
{
    const CTestProperty property;
    build(property, "SmL");
    property.at(1)->setParent(&property.root()); // not where it stands
    EXPECT_TRUE(property->removeMappingNode(0));
    EXPECT_EQ(property.chain(), "SL");
    EXPECT_EQ(property.at(1)->getParent(), property.at(0));
}

TEST(PropertyTree, RemovingWhatIsNotThereAnswersFalse)
{
    for (const char* chain : {"", "L", "SL", "mL"}) {
        const CTestProperty property;
        build(property, chain);
        for (const std::int32_t index : {1, -1})
            EXPECT_FALSE(property->removeMappingNode(index));
        EXPECT_EQ(property.chain(), chain);
    }
}

TEST(PropertyTree, RemovingRightBehindAnInsertionTakesAnotherNode)
{
    const CTestProperty property;
    build(property, "mL");
    property->insertMappingNode(0);
    EXPECT_TRUE(property->removeMappingNode(0));
    EXPECT_EQ(property.chain(), "SL");
    EXPECT_FALSE(property->removeMappingNode(0));
}

TEST(PropertyTree, AChainWithoutAnEndHasNoLeafAndTakesNone)
{
    for (const std::string chain : {"S", "SS", "AAS", "m", "Sm", "mAS"}) {
        SCOPED_TRACE(chain);
        const CTestProperty property;
        build(property, chain);
        const int nbNodes = static_cast<int>(chain.size());
        const int nbMappings = static_cast<int>(std::count(chain.begin(), chain.end(), 'm'));
        ITCENode& last = *property.at(nbNodes - 1);
        last.addChild(property.at(0));

        EXPECT_EQ(property->getDiffuseColor(), CZelColor::rgb(100, 100, 100));
        EXPECT_EQ(property->getMapAngle(nullptr), nbMappings > 0);
        EXPECT_EQ(property->getMappingNode(1000), nullptr);
        EXPECT_EQ(property->insertMappingNode(1000), nullptr);
        EXPECT_FALSE(property->removeMappingNode(1000));
        EXPECT_EQ(ZelTest::messageOf([&] { property->setDiffuseColor(kColor); }),
                  "A node of the material stands below itself");
        property->setMapAngle(2.0);
        EXPECT_EQ(property->getMappingNode(0)->getAngle(), 2.0);

        last.removeChild(0);
        EXPECT_EQ(property->getDiffuseColor(), CZelColor::rgb(100, 100, 100));
    }
}

} // namespace
