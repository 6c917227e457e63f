#include "tests/support/CClientDocument.h"
#include "tests/support/zelFile.h"

#include <zel/IZelBasicData.h>
#include <zel/IZelZelObjectDefinition.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace OvZel;
using namespace ZelTest;
using testing::ElementsAre;
using testing::HasSubstr;

namespace {

std::string flat(const std::string& text)
{
    std::string plain = text;
    std::erase_if(plain, [](char c) { return c == '\n' || c == '\t'; });
    return plain;
}

/// A definition as a save writes it.
std::string definition(const std::string& id, const std::string& text, const std::string& data)
{
    const std::string zero = " X=\"0.000000\" Y=\"0.000000\" Z=\"0.000000\"/>";
    return "<Object.Definition UUID=\"" + id + "\" Placement=\"Perpendicular\" LightGroupID=\"" +
           kIdC + "\" Model.Origin=\"CenterXY\"><Class en=\"" + text +
           "\"/><Name en=\"Ship\" de=\"Schiff\"/><Anchor" + zero + "<Up" + zero +
           "<Initial.Angle>1.500000</Initial.Angle><Properties/><Model.Rotation" + zero +
           "<Model.Rotation.Matrixs>"
           "<Line Index=\"0\">1.000000, 0.000000, 0.000000, 0.000000</Line>"
           "<Line Index=\"1\">0.000000, 1.000000, 0.000000, 0.000000</Line>"
           "<Line Index=\"2\">0.000000, 0.000000, 1.000000, 0.000000</Line>"
           "<Line Index=\"3\">0.000000, 0.000000, 0.000000, 1.000000</Line>"
           "</Model.Rotation.Matrixs><Model.Position" +
           zero +
           "<Description1/><Description2/><Comment en=\"C\"/><UIValue>-1</UIValue>"
           "<Setups><Setup UUID=\"" +
           kIdB + "\"><Name en=\"S\"/></Setup></Setups>" + data + "</Object.Definition>";
}

const std::string kData = "<Object.Data a=\"1\"><Own><!--x--><Deep b=\"2\"/></Own></Object.Data>";

std::string wrapped(const std::string& inside)
{
    return components(component(kIdA, level(0) + section("Points", "\n0 \n") +
                                          section("Polygons", "\n0 \n") + inside));
}

} // namespace

TEST(Definitions, OfAnyClassComeBackInTheirWrapper)
{
    for (const char* text : {"ModelObject", "Spaceship"}) {
        CClientDocument document;
        const std::string expected = wrapped(definition(kIdA, text, kData));
        ASSERT_TRUE(document.read(zelFile(expected)));
        ASSERT_EQ(document->getDefinitions()->getNbObjects(), 1);
        const IZelZelObjectDefinition* loaded = document->getDefinitions()->getZelObject(0);
        EXPECT_STREQ(loaded->getClass(), text);
        EXPECT_EQ(loaded->getPlacement(), 0);
        EXPECT_STREQ(loaded->getObjectData()->GetFirstElement()->GetKey(), "Own");
        EXPECT_THAT(flat(document.save()), HasSubstr(flat(expected)));
        EXPECT_THAT(document.takeMessages(), ElementsAre());
    }
}

TEST(Definitions, ThatOfTheSceneComesBackInItsPlace)
{
    CClientDocument document;
    const std::string expected = "<A/>" + definition(kIdA, "Spaceship", kData) + "<B/>";
    ASSERT_TRUE(document.read(zelFile(expected)));
    EXPECT_EQ(*document->getObjectDefinition()->getBasicData()->getId(), CZelUUID(kIdA.c_str()));
    EXPECT_THAT(flat(document.save()), HasSubstr(expected));
    document->getObjectDefinition()->setClass("");
    EXPECT_THAT(flat(document.save()), HasSubstr("<A/><Object.Definition/><B/>"));
}

TEST(Definitions, ABadOneEndsTheLoad)
{
    CClientDocument document;
    EXPECT_FALSE(document.read(
        zelFile(wrapped("<Object.Definition><Class en=\"Billboard\"/></Object.Definition>"))));
    EXPECT_THAT(document.takeMessages(),
                ElementsAre("CZelXMLGet::GetElement - NULL ptr for tag Object.Data"));
}

TEST(Definitions, AValueWithoutALabelEndsTheSaveBeforeTheFirstByte)
{
    CClientDocument document;
    document->getObjectDefinition()->setModelOrigin(9);
    EXPECT_FALSE(document.write());
    EXPECT_EQ(document.written, "");
    EXPECT_THAT(document.takeMessages(),
                ElementsAre("Error \"No label for the value (9) "
                            "[Uninitialized..Camera.Target]\" while writting")); // (sic)
    document->getObjectDefinition()->setModelOrigin(2);
    EXPECT_TRUE(document.write());
}
