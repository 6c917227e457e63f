#include "environment/CZelGround.h"
#include "tests/support/checkElement.h"
#include "tests/support/messageOf.h"
#include "tests/support/textOf.h"
#include "tests/support/zelFile.h"

#include <zel/ITCENode.h>

#include <gtest/gtest.h>

namespace {

using namespace OvZel;
using namespace ZelTest;

const std::string kIdD(32, 'D');
constexpr const char* kNoIdLine = "CZelXMLIO::GetGround - no UUID or mGetUUID == false\n";

/// The material, with that grey as its diffuse colour.
std::string material(const std::string& name, const std::string& grey)
{
    const std::string diffuse = " R=\"" + grey + "\" G=\"" + grey + "\" B=\"" + grey + "\"";
    const std::string black = " R=\"0\" G=\"0\" B=\"0\"";
    return "<Property Id=\"" + kIdC + "\" Overload.Prop.Index=\"" + kNoId + "\" Overload.Id=\"" +
           kNoId + "\"><Name en=\"" + name + "\"/><Visible/><Cast.Shadow/><Receive.Shadow/>" +
           "<Smooth>1.000000</Smooth><Bevel>0.000000</Bevel><Scale>1.000000</Scale><URL/>" +
           "<Shader.Name en=\"Ground Material Name\"/><Editor.Name/>" + "<Node Id=\"" + kIdD +
           "\" Type=\"Leaf\" Shape=\"General\" Illumination.Model=\"Phong\"><Shader/>" +
           "<Diffuse" + diffuse + "/><Transparent" + black + "/><Specular" + black +
           "/><Reflection" + black + "/><Neon.Color" + black + "/>" +
           "<Neon.Value>0.000000</Neon.Value><Refraction>1.000000</Refraction>"
           "<Glossy>1000.000000</Glossy><Emitting.Color" +
           black +
           "/><Emitting.Power>0.000000</Emitting.Power>"
           "<Reflection.Limit>0.000000</Reflection.Limit>"
           "<Glossy.Reflection.Sampling>1000</Glossy.Reflection.Sampling>"
           "<Glossy.Refraction.Sampling>1000</Glossy.Refraction.Sampling>"
           "<Roughness>0.000000</Roughness><Reflectance>1.000000</Reflectance>"
           "<Glossy.Reflection.Shininess>1000</Glossy.Reflection.Shininess>"
           "<Glossy.Refraction.Shininess>1000</Glossy.Refraction.Shininess></Node></Property>";
}

/// With identifiers that a test knows.
TZelComPtr<CZelGround> makeKnown(CTestDocument& document)
{
    TZelComPtr<CZelGround> made(new CZelGround(document.ref()));
    const CZelUUID id(kIdA.c_str()), materialId(kIdC.c_str());
    made->setId(&id);
    made->getProperty()->setId(&materialId);
    made->getProperty()->getTCE()->getRootNode()->getChild(0)->setId(CZelUUID(kIdD.c_str()));
    return made;
}

TEST(GroundXml, FileForm)
{
    const std::vector<CRow> rows = {
        required(raw("Name", "<Name en=\"Meadow\"/>", "<Name en=\"\"/>"),
                 "CZelXMLGet::CZelXMLGet - NULL ptr"),
        attribute("UUID", kIdB, kIdA),
        flag("Active", false),
        real("Height", 2.5, -10.0),
        raw("Property", material("Grass", "7"), material("Ground Material Name", "128")),
    };
    testing::internal::CaptureStdout();
    checkElement("Ground", rows, makeKnown,
                 {.readOrder = {"Active", "Height", "Property", "Name", "UUID"}});
    EXPECT_EQ(testing::internal::GetCapturedStdout(), kNoIdLine) << "the one file without it";
}

TEST(GroundXml, ItsIdentifierIsTakenOnlyWhenItIsThereAndAskedFor)
{
    const struct {
        std::string attribute;
        bool getUUID;
        std::string id;
        std::string line;
    } cases[] = {{" UUID=\"" + kIdB + "\"", true, kIdB, ""},
                 {" UUID=\"" + kIdB + "\"", false, kIdA, kNoIdLine},
                 {"", true, kIdA, kNoIdLine},
                 {"", false, kIdA, kNoIdLine}};
    for (const auto& [attribute, getUUID, id, line] : cases) {
        CTestDocument document;
        const TZelComPtr<CZelGround> ground = makeKnown(document);
        const CTestElement source("<E><Ground" + attribute +
                                  "><Name en=\"Meadow\"/><Height>1</Height>" +
                                  material("Grass", "7") + "</Ground></E>");
        testing::internal::CaptureStdout();
        EXPECT_TRUE(ground->initWithXML(source.element(), getUUID));
        EXPECT_EQ(testing::internal::GetCapturedStdout(), line);
        EXPECT_EQ(textOf(*ground->getId()), id);
        EXPECT_EQ(document.takeMessages(), std::vector<std::string>());
    }
}

TEST(GroundXml, FailuresOfOneAloneGoToTheFeedback)
{
    const struct {
        std::string xml;
        std::string message;
    } cases[] = {
        {"<E/>", "CZelXMLGet::GetElement - NULL ptr for tag Ground"},
        {"<E><Ground/></E>", "CZelXMLGet::GetElement - NULL ptr for tag Height"},
        {"<E><Ground><Height>1</Height></Ground></E>",
         "CZelXMLGet::GetElement - NULL ptr for tag Property"},
    };
    for (const auto& [xml, message] : cases) {
        CTestDocument document;
        const TZelComPtr<CZelGround> ground = makeKnown(document);
        const CTestElement source(xml);
        EXPECT_FALSE(ground->initWithXML(source.element(), true));
        EXPECT_EQ(
            document.takeMessages(),
            std::vector<std::string>{"Exception in CZelXMLBasicData::initWithXML : " + message});
    }
}

TEST(GroundXml, ANewOneCanBeSavedAndReadBack)
{
    CTestDocument document;
    const TZelComPtr<CZelGround> ground(new CZelGround(document.ref())),
        copy(new CZelGround(document.ref()));
    const CTestElement target;
    ASSERT_NE(ground->putInXML(target.element()), nullptr);
    EXPECT_TRUE(copy->initWithXML(target.element(), true));
    EXPECT_EQ(*copy->getId(), *ground->getId());
    EXPECT_EQ(*copy->getProperty()->getId(), *ground->getProperty()->getId());
}

} // namespace
