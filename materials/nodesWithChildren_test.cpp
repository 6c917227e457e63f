#include "materials/CTCENodeXML.h"
#include "materials/CZelTCE.h"
#include "materials/copyTree.h"
#include "materials/nodeTypes.h"
#include "tests/support/CTestDocument.h"
#include "tests/support/CTestElement.h"
#include "tests/support/messageOf.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

// The children of the nodes that have some, and what stands ahead of what in their elements.

using namespace OvZel;
using namespace ZelTest;

namespace {

const std::string kLeaf = "<Node Type=\"Leaf\"";

struct CCase {
    eNodeType type;
    const char* label;
    std::vector<std::string> children; ///< their tags
    const char* firstMissing;          ///< the failure of an element without anything in it
};

const std::vector<CCase>& cases()
{
    static const std::vector<CCase> kCases = {
        {eChessNode, "Chess", {"Node", "SecondNode"}, "CZelXMLGet::CZelXMLGet - NULL ptr"},
        {eTurbulenceNode, "Turbulence", {"Node"}, "CZelXMLGet::CZelXMLGet - NULL ptr"},
        // Their child is read ahead of their values.
        {eAltitudeNode, "Altitude", {"Node"}, "CZelXMLGet::GetElement - NULL ptr for tag Node"},
        {eMultiTextureNode,
         "MultiTexture",
         {"Node"},
         "CZelXMLGet::GetElement - NULL ptr for tag Node"},
        {eFresnelNode,
         "Fresnel",
         {"Node"},
         "CZelXMLGet::GetElement - NULL ptr for tag Min.Reflection"},
        {eFresnelDiffuseNode,
         "FresnelDiffuse",
         {"Node"},
         "CZelXMLGet::GetElement - NULL ptr for tag Min.Reflection"},
        {eGlazingNode, "Glazing", {"Node"}, "CZelXMLGet::GetElement - NULL ptr for tag X.Scale"},
        {eMatteShadowNode,
         "MatteShadow",
         {"Node"},
         "CZelXMLGet::GetElement - NULL ptr for tag Transparency"},
        {eWangTilesNode,
         "WangTexture",
         {"Node"},
         "CZelXMLGet::GetAttributeLabel - NULL ptr for tag Projection"},
    };
    return kCases;
}

class NodesWithChildren : public testing::Test {
protected:
    TZelComPtr<CTCENode> make(std::int32_t type, ITCENode* parent = nullptr)
    {
        const TZelComPtr<CTCENode> node = makeNode(parent, type);
        node->setId(CZelUUID());
        node->setShader(false);
        return node;
    }
    TZelComPtr<CTCENode> makeWithLeaves(std::int32_t type, std::size_t nbLeaves)
    {
        const TZelComPtr<CTCENode> node = make(type, root.get());
        for (std::size_t i = 0; i < nbLeaves; ++i)
            node->addChild(make(eLeafNode, node.get()).get());
        return node;
    }
    std::string text(const ITCENode* node)
    {
        CTestElement target;
        addNode(io, CZelXMLAdd(CZelXMLAdd(target.element()).AddElement("Node")), node);
        return target.text();
    }
    TZelComPtr<CTCENode> read(const std::string& xml)
    {
        const CTestElement source(xml);
        return getNode(io, CZelXMLGet(source.element()->GetFirstElement()), root.get());
    }
    /// The text of a leaf as a child of this name.
    std::string leafText(const std::string& tag)
    {
        const std::string whole = text(make(eLeafNode).get());
        const std::size_t start = whole.find(kLeaf) + 5;
        const std::string inside = whole.substr(start, whole.rfind("</Node>") - start);
        return "<" + tag + inside + "</" + tag + ">";
    }

    CTestDocument document;
    TZelComPtr<CZelTCE> root{new CZelTCE(document.ref())};
    CZelXMLIO io{document.ref(), true};
};

} // namespace

TEST_F(NodesWithChildren, ChildrenAreWrittenBehindTheValuesAndComeBack)
{
    for (const CCase& each : cases()) {
        SCOPED_TRACE(each.label);
        const TZelComPtr<CTCENode> node = makeWithLeaves(each.type, each.children.size());
        const std::string written = text(node.get());
        EXPECT_NE(written.find("<Node Type=\"" + std::string(each.label) + "\""),
                  std::string::npos);
        std::string end;
        for (const std::string& tag : each.children)
            end += leafText(tag);
        EXPECT_TRUE(written.ends_with(end + "</Node></E>")) << written;

        const TZelComPtr<CTCENode> back = read(written);
        EXPECT_EQ(back->getNodeType(), each.type);
        EXPECT_EQ(back->getNbChilds(), static_cast<std::int32_t>(each.children.size()));
        EXPECT_EQ(back->getChild(0)->getParent(), back.get());
        back->setId(CZelUUID());
        for (std::int32_t i = 0; i < back->getNbChilds(); ++i)
            back->getChild(i)->setId(CZelUUID());
        EXPECT_EQ(text(back.get()), written);
    }
}

TEST_F(NodesWithChildren, ANodeThatLacksAChildCannotBeWritten)
{
    for (const CCase& each : cases())
        for (std::size_t nbLeaves = 0; nbLeaves < each.children.size(); ++nbLeaves) {
            const TZelComPtr<CTCENode> node = makeWithLeaves(each.type, nbLeaves);
            EXPECT_EQ(messageOf([&] { text(node.get()); }), "") << each.label;
        }
}

TEST_F(NodesWithChildren, AFileThatLacksAChildStopsTheLoad)
{
    for (const CCase& each : cases())
        for (const std::string& tag : each.children) {
            std::string written = text(makeWithLeaves(each.type, each.children.size()).get());
            const std::string leaf = leafText(tag);
            written.erase(written.find(leaf), leaf.size());
            EXPECT_EQ(messageOf([&] { read(written); }),
                      "CZelXMLGet::GetElement - NULL ptr for tag " + tag)
                << each.label;
        }
}

TEST_F(NodesWithChildren, WhatIsReadFirst)
{
    for (const CCase& each : cases())
        EXPECT_EQ(
            messageOf([&] { read("<E><Node Type=\"" + std::string(each.label) + "\"/></E>"); }),
            each.firstMissing)
            << each.label;
    // The sub-parts of an altitude node stand ahead even of its child.
    EXPECT_EQ(messageOf([&] {
                  read("<E><Node Type=\"Altitude\"><Sub.Parts><Sub.Part/></Sub.Parts></Node></E>");
              }),
              "CZelXMLGet::GetElement - NULL ptr for tag Maps");
}

TEST_F(NodesWithChildren, ACustomNodeWithoutChildrenHasAnEmptyContainer)
{
    const TZelComPtr<CTCENode> node = make(eCustomNode, root.get());
    const std::string written = text(node.get());
    EXPECT_TRUE(written.ends_with("<E><Node Type=\"Custom\"><Custom.Data Class=\"Unknown\"/>"
                                  "<Childs/></Node></E>"))
        << written;
    EXPECT_EQ(read(written)->getNbChilds(), 0);
}

TEST_F(NodesWithChildren, TheChildrenOfACustomNodeStandInItsContainer)
{
    const TZelComPtr<CTCENode> node = makeWithLeaves(eCustomNode, 3);
    for (std::int32_t i = 0; i < 3; ++i)
        node->getChild(i)->setUIValue(static_cast<std::uint32_t>(10 + i));
    const TZelComPtr<CTCENode> back = read(text(node.get()));
    ASSERT_EQ(back->getNbChilds(), 3);
    for (std::int32_t i = 0; i < 3; ++i) {
        EXPECT_EQ(back->getChild(i)->getUIValue(), static_cast<std::uint32_t>(10 + i));
        EXPECT_EQ(back->getChild(i)->getParent(), back.get());
    }
    node->setChild(1, nullptr);
    EXPECT_EQ(messageOf([&] { text(node.get()); }), "");
}

TEST_F(NodesWithChildren, TheContainerOfACustomNodeIsRequired)
{
    EXPECT_EQ(
        messageOf([&] { read("<E><Node Type=\"Custom\"><Custom.Data Class=\"a\"/></Node></E>"); }),
        "CZelXMLGet::GetElement - NULL ptr for tag Childs");
}

TEST_F(NodesWithChildren, ACustomNodeAloneIsWrittenWithoutItsContainer)
{
    CTestElement target;
    const TZelComPtr<CTCENode> node = makeWithLeaves(eCustomNode, 1);
    ASSERT_NE(node->getBasicData()->putInXML(target.element()), nullptr);
    EXPECT_TRUE(target.text().ends_with("<E><Node Type=\"Custom\"><Custom.Data Class=\"Unknown\"/>"
                                        "</Node></E>"))
        << target.text();
    EXPECT_TRUE(make(eCustomNode, root.get())->getBasicData()->initWithXML(target.element(), true));
}

TEST_F(NodesWithChildren, ACloneOfATreeIsWrittenAsItsSource)
{
    const TZelComPtr<CTCENode> custom = make(eCustomNode, root.get());
    for (const CCase& each : cases())
        custom->addChild(makeWithLeaves(each.type, each.children.size()).get());
    const TZelComPtr<CTCENode> clone = cloneNode(root.get(), custom.get());
    EXPECT_EQ(text(clone.get()), text(custom.get()));
}
