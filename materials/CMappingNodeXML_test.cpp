#include "materials/CMappingNode.h"

#include "materials/CLeafNode.h"
#include "materials/CTCENodeXML.h"
#include "tests/support/CTestMaterial.h"
#include "tests/support/checkElement.h"
#include "tests/support/messageOf.h"
#include "tests/support/textOf.h"

#include <gtest/gtest.h>

using namespace OvZel;
using namespace ZelTest;
using CMessages = std::vector<std::string>;

namespace {

const std::string kIdText = "000102030405060708090A0B0C0D0E0F";
const std::string kOtherText = "F0E0D0C0B0A090807060504030201000";
const CZelUUID kId(kIdText.c_str());
const CZelUUID kOther(kOtherText.c_str());
const std::string kNull(32, '0');

TZelComPtr<CMappingNode> newMapping(CTestDocument&)
{
    TZelComPtr<CMappingNode> node(new CMappingNode(nullptr));
    node->setMappingNodeId(kOther);
    return node;
}

/// A node in a tree, with its element to be read.
class CMappingFile {
public:
    CMappingFile() { refresh(); }

    /// The node's element with one text in it replaced.
    std::string with(const std::string& old, const std::string& text) const
    {
        std::string changed = mText;
        const std::size_t place = changed.find(old);
        EXPECT_NE(place, std::string::npos) << old;
        return place != std::string::npos ? changed.replace(place, old.size(), text) : changed;
    }
    /// Takes the present form of the node.
    void refresh()
    {
        const CTestElement target;
        EXPECT_NE(node->putInXML(target.element()), nullptr);
        const std::string text = target.text();
        mText = text.substr(text.find("<E"));
    }
    bool read(const std::string& xml) { return node->initWithXML(CTestElement(xml).element()); }
    const std::string& text() const { return mText; }

    CTestMaterial material;
    CMappingNode* node = material.add<CMappingNode>(material.root.get());

private:
    std::string mText;
};

CRow presence(const std::string& name)
{
    return flag(name, false);
}

} // namespace

TEST(MappingNodeXml, FileForm)
{
    const std::string noProjection = "CZelXMLGet::GetAttributeLabel - NULL ptr for tag Projection";
    const std::vector<CRow> rows = {
        alsoReads(
            raw("Maps",
                "<Maps><URL Type=\"Diffuse\">a.png</URL><URL Type=\"Bump\">b.png</URL></Maps>",
                "<Maps/>"),
            "<URL>c.png</URL>", "<Maps><URL Type=\"Diffuse\">c.png</URL></Maps>"),
        optional(raw("Maps.Linked",
                     "<Maps.Linked><Map.Node Id=\"" + kIdText + "\"/><Map.Node Id=\"" + kOtherText +
                         "\"/></Maps.Linked>",
                     "")),
        xyz("Normal", {1, 2, 3}, {0, 0, -1}),
        xyz("Origin", {4, 5, 6}, {0, 0, 0}),
        xyz("X.Axis", {7, 8, 9}, {-1, 0, 0}),
        xyz("Y.Axis", {10, 11, 12}, {0, -1, 0}),
        real("Angle", 1.5, 0.0),
        real("Width", 2.5, 1.0),
        real("Height", 3.5, 1.0),
        real("Bump", 4.5, 0.0),
        optional(real("Relief", 5.5, 0.0)),
        real("X.Center", 0.25, 0.5),
        real("Y.Center", 0.75, 0.5),
        real("X.Delta", 6.5, 0.0),
        real("Y.Delta", 7.5, 0.0),
        real("Glossy", 8.5, 1000.0),
        presence("X.Repeat"),
        presence("Y.Repeat"),
        color("Specular", {1, 2, 3}, {0, 0, 0}),
        color("Transparent", {4, 5, 6}, {0, 0, 0}),
        color("Reflection", {7, 8, 9}, {0, 0, 0}),
        optional(real("Reflection.Limit", 9.5, 0.0)),
        optional(raw("CutOut1", "<CutOut1 R=\"10\" G=\"11\" B=\"12\"/>", "")),
        optional(raw("CutOut2", "<CutOut2 R=\"13\" G=\"14\" B=\"15\"/>", "")),
        presence("CutSet"),
        presence("CutAlpha"),
        presence("X.Invert"),
        presence("Y.Invert"),
        presence("X.Mirror"),
        presence("Y.Mirror"),
        presence("Alpha.Bump"),
        presence("Alpha.Transparency"),
        required(oneOf(attribute("Projection", "Horizontal", "X.Cylindrical"),
                       {"Planetary", "Orthogonal", "Vertical", "Spherical", "Y.Cylindrical",
                        "X.Cylindrical", "Mapping.UV", "Horizontal", "Planar"}),
                 noProjection),
        flag("Visible", true),
        presence("Mix"),
        color("Mix.Color", {16, 17, 18}, {127, 127, 127}),
        real("Mix.Value", 0.5, 0.0),
        presence("MIPMAP"),
        presence("Trilinear.Filter"),
        presence("Display.Mode"),
        optional(real("Brightness", 10.5, 0.0)),
        optional(real("Contrast", 11.5, 1.0)),
        optional(integer("Frame", 12, 0)),
        optional(integer("Movie.Length", 13, 0)),
        optional(real("Normal.Map", 14.5, 0.0)),
        attribute("MappingNode.Id", kIdText, kOtherText),
        attribute("MappingNode.Parent.Id", kOtherText, kNull),
        presence("Glossy.Activated"),
    };
    checkElement("Node", rows, newMapping, {.which = "Mapping"});
}

TEST(MappingNodeXml, ProjectionsHaveTheirLabels)
{
    const char* labels[] = {"Planetary",  "Orthogonal",    "Vertical",
                            "Spherical",  "Y.Cylindrical", "X.Cylindrical",
                            "Mapping.UV", "Horizontal",    "Planar"};
    CMappingFile file;
    for (std::int32_t projection = 0; projection < 9; ++projection) {
        const std::string attribute = "Projection=\"" + std::string(labels[projection]) + "\"";
        const std::string text = file.with("Projection=\"X.Cylindrical\"", attribute);
        EXPECT_TRUE(file.read(text));
        EXPECT_EQ(file.node->getProjection(), projection);
        const CTestElement target;
        file.node->putInXML(target.element());
        EXPECT_NE(target.text().find(attribute), std::string::npos) << attribute;
    }
    EXPECT_FALSE(file.read(file.with("X.Cylindrical", "Conical")));
    EXPECT_EQ(file.material.takeMessages(),
              CMessages{"Exception in CTCENode::initWithXML : Invalid label (Conical) "
                        "[Planetary..Planar]"});
}

TEST(MappingNodeXml, OlderFilesNameThePlaneByAnElement)
{
    CMappingFile file;
    std::string older = file.with("X.Cylindrical", "Orthogonal");
    older.replace(older.find("<Visible/>"), 10, "<Visible/><Planar/>");
    EXPECT_TRUE(file.read(older));
    EXPECT_EQ(file.node->getProjection(), 8);
    file.refresh();
    EXPECT_NE(file.text().find("Projection=\"Planar\""), std::string::npos);
    EXPECT_EQ(file.text().find("<Planar"), std::string::npos);
    // Beside any other label the element means nothing.
    EXPECT_TRUE(file.read(file.with("Projection=\"Planar\"", "Projection=\"Vertical\"")));
    EXPECT_EQ(file.node->getProjection(), 2);
}

TEST(MappingNodeXml, LimitsHoldInTheFileToo)
{
    const struct {
        const char *old, *text;
        double (CMappingNode::*get)() const;
        double kept;
    } cases[] = {
        {"<X.Center>0.5", "<X.Center>1.5", &CMappingNode::getXCenter, 1.0},
        {"<Y.Center>0.5", "<Y.Center>-0.5", &CMappingNode::getYCenter, 0.0},
        {"<Glossy>1000.0", "<Glossy>5000.0", &CMappingNode::getGlossy, 1000.0},
        {"<Mix.Value>0.0", "<Mix.Value>7.0", &CMappingNode::getMixValue, 1.0},
    };
    CMappingFile file;
    for (const auto& [old, text, get, kept] : cases) {
        EXPECT_TRUE(file.read(file.with(old, text)));
        EXPECT_EQ((file.node->*get)(), kept) << text;
    }
    EXPECT_EQ(file.material.takeMessages(), CMessages());
}

TEST(MappingNodeXml, CoordinatesPassThroughTheReadTransform)
{
    CMappingFile file;
    const double matrix[16] = {2, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 5, 0, 0, 1};
    file.material.document.ref()->setMatrix(matrix);
    EXPECT_TRUE(file.read(file.text()));
    EXPECT_EQ(file.node->getOrigin().x, 5.0);
    CZelPoint axis{-1.0, 0.0, 0.0};
    file.material.document.ref()->transformNormal(&axis.x);
    EXPECT_EQ(file.node->getXAxis().x, axis.x);
}

TEST(MappingNodeXml, ADirectionWithoutZPointsUp)
{
    CMappingFile file;
    EXPECT_TRUE(file.read(file.with(" Z=\"-1.000000\"", "")));
    EXPECT_EQ(file.node->getNormal().z, 1.0);
}

TEST(MappingNodeXml, OlderFilesHaveOneAddress)
{
    CMappingFile file;
    file.node->getMaps()->setURL(7, "bump");
    EXPECT_TRUE(file.read(file.with("<Maps/>", "<URL>a.png</URL>")));
    EXPECT_STREQ(file.node->getMaps()->getURL(1), "a.png");
    EXPECT_STREQ(file.node->getMaps()->getURL(7), "");
}

TEST(MappingNodeXml, ReadingReplacesMapsAndLinks)
{
    CMappingFile file;
    file.node->getMaps()->setURL(7, "bump");
    file.node->addLinkedMap(kId);
    EXPECT_TRUE(file.read(file.text()));
    EXPECT_STREQ(file.node->getMaps()->getURL(7), "");
    EXPECT_EQ(file.node->getNbLinkedMaps(), 0);
}

TEST(MappingNodeXml, ANullLinkWarnsAndAMissingIdentityStopsTheRead)
{
    CMappingFile file;
    EXPECT_TRUE(file.read(file.with("<Normal", "<Maps.Linked><Map.Node Id=\"" + kNull +
                                                   "\"/><Map.Node Id=\"" + kIdText +
                                                   "\"/></Maps.Linked><Normal")));
    EXPECT_EQ(file.node->getNbLinkedMaps(), 1);
    EXPECT_EQ(file.material.takeMessages(),
              CMessages{"CMappingNode::addLinkedMap - NULL UUID is Invalid"});
    EXPECT_FALSE(file.read(file.with("<Normal", "<Maps.Linked><Map.Node/></Maps.Linked><Normal")));
    EXPECT_EQ(file.material.takeMessages(),
              CMessages{"Exception in CTCENode::initWithXML : CZelXMLGet::GetUUID - NULL ptr for "
                        "tag Id"});
}

TEST(MappingNodeXml, ASingleNodeIsWrittenWithItsFrameAndNoChildren)
{
    CMappingFile file;
    file.material.add<CLeafNode>(file.node);
    file.node->setUIValue(5);
    file.refresh();
    const std::string begin = "<E><Node Id=\"" + textOf(file.node->getId()) +
                              "\" Type=\"Mapping\" Projection=\"X.Cylindrical\" MappingNode.Id=\"" +
                              textOf(file.node->getMappingNodeId()) +
                              "\" MappingNode.Parent.Id=\"" + kNull +
                              "\"><UI.Value>5</UI.Value><Shader/><Maps/>";
    EXPECT_EQ(file.text().substr(0, begin.size()), begin);
    EXPECT_EQ(file.text().find("<Node", 4), std::string::npos);
    file.node->setId(CZelUUID());
    file.node->setUIValue(0);
    file.node->setShader(false);
    file.refresh();
    EXPECT_EQ(file.text().find("<E><Node Type=\"Mapping\""), 0U);
    EXPECT_EQ(file.text().find("UI.Value"), std::string::npos);
    EXPECT_EQ(file.text().find("Shader"), std::string::npos);
}

TEST(MappingNodeXml, ASingleReadTakesWhatTheFrameHas)
{
    CMappingFile file;
    file.node->setId(kId);
    file.node->setMappingNodeId(kId);
    file.node->setParentMappingNodeId(kOther);
    file.node->setUIValue(5);
    file.refresh();

    auto* other = file.material.add<CMappingNode>(file.material.root.get());
    other->setShader(false);
    const CTestElement source(file.text());
    EXPECT_TRUE(other->initWithXML(source.element()));
    EXPECT_EQ(other->getId(), kId);
    EXPECT_EQ(other->getUIValue(), 5U);
    EXPECT_TRUE(other->isShader());
    EXPECT_EQ(other->getMappingNodeId(), kId);
    EXPECT_EQ(other->getParentMappingNodeId(), kOther);

    // What the element lacks stays.
    std::string bare = file.with(" Id=\"" + kIdText + "\"", "");
    for (const std::string gone : {"<UI.Value>5</UI.Value>", "<Shader/>"})
        bare.erase(bare.find(gone), gone.size());
    other->setId(kOther);
    EXPECT_TRUE(other->initWithXML(CTestElement(bare).element()));
    EXPECT_EQ(other->getId(), kOther);
    EXPECT_EQ(other->getUIValue(), 5U);
    EXPECT_TRUE(other->isShader());
    EXPECT_EQ(file.material.takeMessages(), CMessages());
}

TEST(MappingNodeXml, ASingleReadFailsWithAReport)
{
    const std::string context = "Exception in CTCENode::initWithXML : ";
    CMappingFile file;
    EXPECT_FALSE(file.read("<E/>"));
    EXPECT_EQ(file.material.takeMessages(), CMessages());
    EXPECT_FALSE(file.read(file.with("\"Mapping\"", "\"Leaf\"")));
    EXPECT_EQ(file.material.takeMessages(),
              CMessages{context + "CZelXMLIO::GetMappingNode : xml node is not a mapping node"});
    EXPECT_FALSE(file.read(file.with("<Maps/>", "")));
    EXPECT_EQ(file.material.takeMessages(),
              CMessages{context + "CZelXMLGet::GetElement - NULL ptr for tag Maps"});
    EXPECT_FALSE(file.node->initWithXML(nullptr));
    EXPECT_EQ(file.material.takeMessages(), CMessages{context + "Unknown exception"});

    file.node->setProjection(9);
    const CTestElement target;
    EXPECT_EQ(file.node->putInXML(target.element()), nullptr);
    EXPECT_EQ(file.material.takeMessages(),
              CMessages{"Exception in CTCENode::putInXML : No label for the value (9) "
                        "[Planetary..Planar]"});
}

TEST(MappingNodeXml, WithoutADocumentASingleNodeIsNeitherWrittenNorRead)
{
    const CMappingFile file;
    const TZelComPtr<CMappingNode> lone(new CMappingNode(nullptr));
    const CTestElement target(file.text());
    EXPECT_EQ(lone->putInXML(target.element()), nullptr);
    EXPECT_FALSE(lone->initWithXML(target.element()));
}

// ---- the identities by which mapping nodes name each other

namespace {

struct CIdentityRead {
    CZelUUID fresh, id, parentId;
    CZelXMLIO::CIdentities table;
    CMessages messages;
};

/// Reads a node with these identities, with a table or without one.
CIdentityRead readIdentities(const std::string& attributes, const CZelXMLIO::CIdentities* table)
{
    CMappingFile file;
    auto* node = file.material.add<CMappingNode>(file.material.root.get());
    node->setParentMappingNodeId(kOther);
    CIdentityRead result;
    result.fresh = node->getMappingNodeId();
    if (table != nullptr)
        result.table = *table;
    CZelXMLIO io(file.material.document.ref(), false);
    io.setIdentities(table != nullptr ? &result.table : nullptr);
    const CTestElement source(file.with(" MappingNode.Id=\"" +
                                            textOf(file.node->getMappingNodeId()) +
                                            "\" MappingNode.Parent.Id=\"" + kNull + "\"",
                                        attributes));
    node->getFrom(io, CZelXMLGet(CZelXMLGet(source.element()).GetElement("Node")));
    result.id = node->getMappingNodeId();
    result.parentId = node->getParentMappingNodeId();
    result.messages = file.material.takeMessages();
    return result;
}

std::string identity(const std::string& id)
{
    return " MappingNode.Id=\"" + id + "\"";
}

std::string parentIdentity(const std::string& id)
{
    return " MappingNode.Parent.Id=\"" + id + "\"";
}

const char* const kNullId = "CZelXMLIO::GetMappingNode - nodeId is NULL";

} // namespace

TEST(MappingNodeXml, WithoutATableIdentitiesAreTakenAsTheyStand)
{
    const CIdentityRead both = readIdentities(identity(kIdText) + parentIdentity(kIdText), nullptr);
    EXPECT_EQ(both.id, kId);
    EXPECT_EQ(both.parentId, kId);
    const CIdentityRead neither = readIdentities("", nullptr);
    EXPECT_EQ(neither.id, neither.fresh);
    EXPECT_EQ(neither.parentId, kOther);
    const CIdentityRead null = readIdentities(identity(kNull) + parentIdentity(kNull), nullptr);
    EXPECT_TRUE(null.id.isNull());
    EXPECT_EQ(null.parentId, kOther);
    EXPECT_EQ(null.messages, CMessages{kNullId});
    EXPECT_EQ(readIdentities(parentIdentity(kIdText), nullptr).parentId, kId);
}

TEST(MappingNodeXml, WithATableANodeKeepsItsOwnAndFindsItsParent)
{
    const CZelUUID mother("11111111111111111111111111111111");
    const CZelXMLIO::CIdentities empty;
    const CZelXMLIO::CIdentities known{{kId, mother}};

    const CIdentityRead first = readIdentities(identity(kIdText) + parentIdentity(kNull), &empty);
    EXPECT_EQ(first.id, first.fresh);
    EXPECT_EQ(first.table, (CZelXMLIO::CIdentities{{kId, first.fresh}}));
    EXPECT_EQ(first.parentId, kOther);
    EXPECT_EQ(first.messages, CMessages());

    const CIdentityRead child =
        readIdentities(identity(kOtherText) + parentIdentity(kIdText), &known);
    EXPECT_EQ(child.parentId, mother);
    EXPECT_EQ(child.table.size(), 2U);

    const CIdentityRead lost =
        readIdentities(identity(kIdText) + parentIdentity(kOtherText), &empty);
    EXPECT_EQ(lost.parentId, kOther);
    EXPECT_EQ(lost.messages, CMessages{"CZelXMLIO::GetMappingNode - ParentId refered by child "
                                       "before we meet the parent"});

    const CIdentityRead null = readIdentities(identity(kNull), &empty);
    EXPECT_EQ(null.messages, CMessages{kNullId});
    EXPECT_EQ(null.id, null.fresh);
}
