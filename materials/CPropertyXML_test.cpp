#include "tests/support/CTestProperty.h"
#include "tests/support/checkElement.h"
#include "tests/support/messageOf.h"
#include "tests/support/textOf.h"
#include "tests/support/zelFile.h"

#include "core/TObject2Mgr.h"
#include "xml/listXML.h"

#include <zel/ILeafNode.h>
#include <zel/IMappingNode.h>
#include <zel/IZelString.h>

#include <gtest/gtest.h>

namespace {

using namespace OvZel;
using namespace ZelTest;

using CMessages = std::vector<std::string>;

const std::string kIdD(32, 'D');

/// What a leaf with the values of a new property has behind its attributes.
const std::string kLeafValues = "<Diffuse R=\"100\" G=\"100\" B=\"100\"/>"
                                "<Transparent R=\"0\" G=\"0\" B=\"0\"/>"
                                "<Specular R=\"0\" G=\"0\" B=\"0\"/>"
                                "<Reflection R=\"0\" G=\"0\" B=\"0\"/>"
                                "<Neon.Color R=\"0\" G=\"0\" B=\"0\"/>"
                                "<Neon.Value>0.000000</Neon.Value>"
                                "<Refraction>0.000000</Refraction>"
                                "<Glossy>6.000000</Glossy>"
                                "<Emitting.Color R=\"0\" G=\"0\" B=\"0\"/>"
                                "<Emitting.Power>0.000000</Emitting.Power>"
                                "<Reflection.Limit>0.000000</Reflection.Limit>"
                                "<Glossy.Reflection.Sampling>1000</Glossy.Reflection.Sampling>"
                                "<Glossy.Refraction.Sampling>1000</Glossy.Refraction.Sampling>"
                                "<Roughness>0.000000</Roughness>"
                                "<Reflectance>1.000000</Reflectance>"
                                "<Glossy.Reflection.Shininess>1000</Glossy.Reflection.Shininess>"
                                "<Glossy.Refraction.Shininess>1000</Glossy.Refraction.Shininess>";
const std::string kLeafKind = " Type=\"Leaf\" Shape=\"General\" Illumination.Model=\"Phong\"";
/// What stands for an empty tree.
const std::string kStandIn = "<Node" + kLeafKind + "><Shader/>" + kLeafValues + "</Node>";
const std::string kLeaf =
    "<Node Id=\"" + kIdD + "\"" + kLeafKind + "><Shader/>" + kLeafValues + "</Node>";

/// A property element with the least that can be read; `more` stands ahead of the rest.
std::string element(const std::string& more, const std::string& node = kLeaf,
                    const std::string& attributes = "")
{
    return "<E><Property" + attributes + "><Name en=\"N\"/>" + more +
           "<Smooth>1</Smooth><Scale>1</Scale><URL/>" + node + "</Property></E>";
}

const std::string kIds =
    " Id=\"" + kIdA + "\" Overload.Prop.Index=\"" + kIdB + "\" Overload.Id=\"" + kIdC + "\"";

/// The message of the failure, or "no exception".
std::string read(const CTestProperty& property, const std::string& xml, bool getUUID = false)
{
    const CTestElement source(xml);
    CZelXMLIO io(property.document.ref(), getUUID);
    return messageOf([&] { property->getXML(io, source.element()); });
}

std::string write(const CTestProperty& property)
{
    const CTestElement target;
    CZelXMLIO io(property.document.ref(), false);
    property->addXML(io, target.element());
    return target.text();
}

/// With identifiers that a test knows, and a leaf, since a file that lacks the nodes fails.
TZelComPtr<CProperty> makeKnown(CTestDocument& document)
{
    TZelComPtr<CProperty> made(new CProperty(document.ref()));
    const CZelUUID id(kIdA.c_str());
    made->setId(&id);
    made->setDiffuseColor(CZelColor::rgb(100, 100, 100));
    made->setGlossy(6.0);
    made->setRefraction(0.0);
    made->getTCE()->getRootNode()->getChild(0)->setId(CZelUUID(kIdD.c_str()));
    return made;
}

CRow idRow(const std::string& name, const std::string& full, const std::string& fresh)
{
    return required(attribute(name, full, fresh), "CZelXMLGet::GetUUID - NULL ptr for tag " + name);
}

std::vector<CRow> propertyRows()
{
    return {
        required(raw("Name", "<Name en=\"Wood\"/>", "<Name en=\"Material #0\"/>"),
                 "CZelXMLGet::CZelXMLGet - NULL ptr"),
        flag("Visible", true),
        alsoReads(flag("Cast.Shadow", true), "<Shadow/>", "<Cast.Shadow/>"),
        flag("Receive.Shadow", true),
        flag("UV.Defined", false),
        flag("Billboard", false),
        real("Smooth", 0.5, 1.0),
        optional(real("Bevel", 0.25, 0.0)),
        real("Scale", 2.0, 1.0),
        text("URL", "file:///oak", ""),
        attribute("Shader.Id", kIdB, ""),
        optional(raw("Shader.Name", "<Shader.Name en=\"Oak\" fr=\"Rouvre\"/>", "<Shader.Name/>")),
        optional(raw("TCE.UI.Value", "<TCE.UI.Value>7</TCE.UI.Value>", "")),
        optional(text("Editor.Name", "By hand", "")),
        raw("Node", kLeaf, kLeaf),
        idRow("Id", kIdC, kIdA),
        idRow("Overload.Prop.Index", kIdB, kNoId),
        idRow("Overload.Id", kIdD, kNoId),
        optional(raw("UI.Value", "<UI.Value>-1</UI.Value>", "")),
    };
}

const std::vector<std::string> kReadOrder = {"Node",
                                             "Name",
                                             "Visible",
                                             "Cast.Shadow",
                                             "Receive.Shadow",
                                             "UV.Defined",
                                             "Billboard",
                                             "Smooth",
                                             "Bevel",
                                             "Scale",
                                             "URL",
                                             "Shader.Id",
                                             "Editor.Name",
                                             "Shader.Name",
                                             "TCE.UI.Value",
                                             "Id",
                                             "Overload.Prop.Index",
                                             "Overload.Id",
                                             "UI.Value"};

TEST(PropertyXml, FileForm)
{
    checkElement("Property", propertyRows(), makeKnown, {.readOrder = kReadOrder});
}

TEST(PropertyXml, ANameWithoutATextCannotBeRead)
{
    const CTestProperty property;
    EXPECT_EQ(read(property, "<E><Property><Name/>" + kLeaf + "</Property></E>"),
              "CZelXMLGet::GetAttributeLanguage - NULL ptr");
}

TEST(PropertyXml, TheNodesAreReadFirstAndPutIntoTheTreeLate)
{
    const CTestProperty property;
    EXPECT_EQ(read(property, "<E><Property><Name en=\"N\"/></Property></E>"),
              "CZelXMLGet::GetElement - NULL ptr for tag Node");
    EXPECT_STREQ(property->getName(), "Material #0");
    EXPECT_EQ(read(property, "<E><Property><Name en=\"N\"/>" + kLeaf + "</Property></E>"),
              "CZelXMLGet::GetElement - NULL ptr for tag Smooth");
    EXPECT_STREQ(property->getName(), "N");
    EXPECT_EQ(property.chain(), "");
    EXPECT_EQ(read(property, element("", "<Node Type=\"Leaf\"/>")),
              "CZelXMLGet::CZelXMLGet - NULL ptr");
    // Once they are in, a failure behind them leaves them there.
    EXPECT_EQ(read(property, element(""), true), "CZelXMLGet::GetUUID - NULL ptr for tag Id");
    EXPECT_EQ(property.chain(), "L");
}

TEST(PropertyXml, TheNodesReplaceThoseOfTheTree)
{
    const CTestProperty property;
    property->setMapAngle(1.0);
    EXPECT_EQ(read(property, element("")), "no exception");
    EXPECT_EQ(property.chain(), "L");
    EXPECT_EQ(property.root().getNbChilds(), 1);
    EXPECT_EQ(textOf(property.at(0)->getId()), kIdD);
    EXPECT_EQ(property.at(0)->getParent(), &property.root());
}

TEST(PropertyXml, ARootCannotBeANode)
{
    const CTestProperty property;
    EXPECT_EQ(read(property, element("<TCE.UI.Value>7</TCE.UI.Value>", "<Node Type=\"Root\"/>")),
              "Can't root's child");
    EXPECT_EQ(property.chain(), "");
    EXPECT_EQ(property->getTCE()->getUIValue(), 7u) << "read ahead of that";
    EXPECT_EQ(read(property, element("", "<Node Type=\"Root\" Id=\"" + kIdA + "\"/>")),
              "TZelComPtr::operator->() - Dereferencing NULL");
    EXPECT_EQ(read(property, element("", "<Node Type=\"Stone\"/>")),
              "Invalid label (Stone) [Root..Custom]");
}

TEST(PropertyXml, ShadowIsTheOlderNameOfCastShadow)
{
    const struct {
        const char* text;
        bool casts;
    } cases[] = {{"<Shadow/>", true},
                 {"<Cast.Shadow/>", true},
                 {"<Cast.Shadow/><Shadow/>", true},
                 {"", false}};
    for (const auto& [text, casts] : cases) {
        const CTestProperty property;
        property->setCastShadow(!casts);
        EXPECT_EQ(read(property, element(text)), "no exception");
        EXPECT_EQ(property->getCastShadow(), casts) << text;
    }
}

TEST(PropertyXml, LimitsHoldOnReadingToo)
{
    struct {
        const char *smooth, *bevel, *scale;
        double kept[3];
    } cases[] = {{"0", "-1", "-1", {0.01, 0.0, 0.0}},
                 {"2", "0.6", "1000000000", {1.0, 0.5, 1e9}},
                 {"nan", "nan", "nan", {0.01, 0.0, 0.0}}};
    for (const auto& [smooth, bevel, scale, kept] : cases) {
        CTestProperty property;
        const auto tag = [](const std::string& name, const char* text) {
            return "<" + name + ">" + text + "</" + name + ">";
        };
        EXPECT_EQ(read(property, "<E><Property><Name en=\"N\"/>" + tag("Smooth", smooth) +
                                     tag("Bevel", bevel) + tag("Scale", scale) + "<URL/>" + kLeaf +
                                     "</Property></E>"),
                  "no exception");
        EXPECT_EQ(property->getSmooth(), kept[0]) << smooth;
        EXPECT_EQ(property->getBevel(), kept[1]) << bevel;
        EXPECT_EQ(property->getScale(), kept[2]) << scale;
        EXPECT_EQ(property.document.takeMessages(), CMessages());
    }
}

TEST(PropertyXml, AnAddressWithoutAShaderIsEmpty)
{
    const CTestProperty property;
    property->getTCE()->setUrl("file:///oak");
    EXPECT_EQ(read(property, "<E><Property><Name en=\"N\"/><Smooth>1</Smooth><Scale>1</Scale>"
                             "<URL>file:///noshader</URL>" +
                                 kLeaf + "</Property></E>"),
              "no exception");
    EXPECT_STREQ(property->getShaderUrl(), "");
}

TEST(PropertyXml, ShaderNamesThatAreThereReplaceTheOldOnes)
{
    const CTestProperty property;
    IZelString& name = *property->getTCE()->getName();
    name.setCurrentText("Oak");
    EXPECT_EQ(read(property, element("")), "no exception");
    EXPECT_STREQ(name.getCurrentText(), "Oak") << "no element, no change";
    EXPECT_EQ(read(property, element("<Shader.Name fr=\"Rouvre\"/>")), "no exception");
    EXPECT_EQ(name.getNbTexts(), 1u);
    EXPECT_STREQ(name.getCurrentText(), "Rouvre");
    EXPECT_EQ(read(property, element("<Shader.Name/>")), "no exception");
    EXPECT_EQ(name.getNbTexts(), 0u);
}

TEST(PropertyXml, IdentifiersAreTakenOnlyWhenAskedFor)
{
    const CTestProperty property;
    const std::string own = textOf(*property->getId());
    const CZelUUID overload(kIdD.c_str());
    property->setOverloadId(overload);
    EXPECT_EQ(read(property, element("", kLeaf, kIds), false), "no exception");
    EXPECT_EQ(textOf(*property->getId()), own);
    EXPECT_TRUE(property->getOverloadPropIndex().isNull());
    EXPECT_EQ(property->getOverloadId(), overload);
    EXPECT_EQ(read(property, element("", kLeaf, kIds), true), "no exception");
    EXPECT_EQ(textOf(*property->getId()), kIdA);
    EXPECT_EQ(textOf(property->getOverloadPropIndex()), kIdB);
    EXPECT_EQ(textOf(property->getOverloadId()), kIdC);
}

TEST(PropertyXml, AnEmptyTreeIsWrittenAsALeafAndStaysEmpty)
{
    const CTestProperty property;
    const std::string text = write(property);
    EXPECT_NE(text.find(kStandIn), std::string::npos) << text;
    EXPECT_EQ(property.root().getNbChilds(), 0);
    EXPECT_EQ(write(property), text) << "two saves are alike";

    const CTestProperty copy;
    EXPECT_EQ(read(copy, text), "no exception");
    EXPECT_EQ(copy.chain(), "L");
    EXPECT_EQ(copy->getDiffuseColor(), property->getDiffuseColor());
    EXPECT_EQ(copy->getGlossy(), 6.0);
    EXPECT_EQ(copy->getRefraction(), 0.0);
}

TEST(PropertyXml, AnyOtherMissingChildCannotBeWritten)
{
    const CTestProperty emptyPlace, noLeaf;
    emptyPlace.root().addChild(nullptr);
    noLeaf.hang(noLeaf.root(), eMappingNode);
    for (const CTestProperty* property : {&emptyPlace, &noLeaf})
        EXPECT_EQ(messageOf([&] { write(*property); }), "");
}

/// A chain of mapping nodes as a property has written it, with other identities for the outer one
/// and, in the inner one, for itself and the outer one.
std::string nested(const std::string& outer, const std::string& inner, const std::string& parent)
{
    const CTestProperty source;
    source->setMapAngle(1.0);
    source->insertMappingNode(1);
    const CZelUUID ids[] = {CZelUUID(outer.c_str()), CZelUUID(inner.c_str())};
    source.at(0)->asMappingNode()->setMappingNodeId(ids[0]);
    source.at(1)->asMappingNode()->setMappingNodeId(ids[1]);
    source.at(1)->asMappingNode()->setParentMappingNodeId(CZelUUID(parent.c_str()));
    return write(source);
}

TEST(PropertyXml, MappingNodesKeepTheirIdentitiesWhenIdentifiersAreTaken)
{
    const CTestProperty property;
    EXPECT_EQ(read(property, nested(kIdA, kIdB, kIdA), true), "no exception");
    const IMappingNode& inner = *property.at(1)->asMappingNode();
    EXPECT_EQ(textOf(property.at(0)->asMappingNode()->getMappingNodeId()), kIdA);
    EXPECT_EQ(textOf(inner.getMappingNodeId()), kIdB);
    EXPECT_EQ(textOf(inner.getParentMappingNodeId()), kIdA);
}

TEST(PropertyXml, MappingNodesWithNewIdentitiesStillFindTheirParents)
{
    CTestProperty property;
    EXPECT_EQ(read(property, nested(kIdA, kIdB, kIdA)), "no exception");
    const IMappingNode& outer = *property.at(0)->asMappingNode();
    const IMappingNode& inner = *property.at(1)->asMappingNode();
    EXPECT_NE(textOf(outer.getMappingNodeId()), kIdA);
    EXPECT_NE(textOf(inner.getMappingNodeId()), kIdB);
    EXPECT_EQ(inner.getParentMappingNodeId(), outer.getMappingNodeId());
    EXPECT_EQ(property.document.takeMessages(), CMessages());
}

TEST(PropertyXml, TheTableOfIdentitiesServesOnePropertyAlone)
{
    CTestDocument document;
    const TZelComPtr<TObject2Mgr<CProperty, IZelProperty>> list(
        new TObject2Mgr<CProperty, IZelProperty>(document.ref()));
    const auto inside = [](const std::string& text) {
        const std::size_t start = text.find("<Property");
        return text.substr(start, text.find("</Property>") + 11 - start);
    };
    const CTestElement source("<E>" + inside(nested(kIdA, kIdB, kIdA)) +
                              inside(nested(kIdC, kIdD, kIdA)) + "</E>");
    list->append()->setName("gone");
    CZelXMLIO io(document.ref(), false);
    getItems(io, source.element(), "Property", *list);
    ASSERT_EQ(list->size(), 2);
    EXPECT_STREQ(list->at(0)->getName(), "Material #0") << "the list was emptied first";
    ITCENode* top = list->at(1)->getTCE()->getRootNode()->getChild(0);
    EXPECT_TRUE(top->getChild(0)->asMappingNode()->getParentMappingNodeId().isNull());
    EXPECT_EQ(document.takeMessages(),
              CMessages{"CZelXMLIO::GetMappingNode - ParentId refered by child before we meet the "
                        "parent"});
}

TEST(PropertyXml, OneAloneIsWrittenAndReadAsAChild)
{
    const CTestProperty source, copy;
    source->setName("Wood & stone");
    source->setDiffuseColor(CZelColor::rgb(1, 2, 3));
    source->setUIValue(0xFFFFFFFF);
    const CTestElement target;
    EXPECT_NE(source->putInXML(target.element()), nullptr);
    EXPECT_TRUE(copy->initWithXML(target.element(), true));
    EXPECT_STREQ(copy->getName(), "Wood & stone");
    EXPECT_EQ(copy->getDiffuseColor(), CZelColor::rgb(1, 2, 3));
    EXPECT_EQ(copy->getUIValue(), 0xFFFFFFFF);
    EXPECT_EQ(*copy->getId(), *source->getId());
}

TEST(PropertyXml, FailuresOfOneAloneGoToTheFeedback)
{
    CTestProperty property;
    const CTestElement none;
    EXPECT_FALSE(property->initWithXML(none.element(), true));
    EXPECT_FALSE(property->initWithXML(nullptr, true));
    property.root().addChild(nullptr);
    EXPECT_EQ(property->putInXML(none.element()), nullptr);
    EXPECT_EQ(property.document.takeMessages(),
              (CMessages{"Exception in CZelXMLBasicData::initWithXML : "
                         "CZelXMLGet::GetElement - NULL ptr for tag Property",
                         "Exception in CZelXMLBasicData::initWithXML : Unknown exception",
                         "Exception in CZelXMLBasicData::putInXML : Unknown exception"}));
}

} // namespace
