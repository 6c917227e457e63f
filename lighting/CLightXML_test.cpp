#include "lighting/CLight.h"

#include "tests/support/checkElement.h"
#include "tests/support/messageOf.h"
#include "tests/support/textOf.h"

#include <array>

using namespace OvZel;
using namespace ZelTest;

namespace {

const char* const kNull = "00000000000000000000000000000000";
const char* const kMade = "11112222333344445555666677778888";
const char* const kFile = "00112233445566778899AABBCCDDEEFF";
const char* const kObject = "0123456789ABCDEF0123456789ABCDEF";
const char* const kIES = "FEDCBA9876543210FEDCBA9876543210";

TZelComPtr<CLight> newLight(CTestDocument& document)
{
    TZelComPtr<CLight> light(new CLight(document.ref()));
    const CZelUUID id(kMade);
    light->setId(&id);
    return light;
}

const std::string kGroups = "<Lights.Groups><Light UUID=\"0123456789ABCDEF0123456789ABCDEF\"/>"
                            "<Light UUID=\"FEDCBA9876543210FEDCBA9876543210\"/></Lights.Groups>";

std::vector<CRow> lightRows()
{
    return {
        required(raw("Name", "<Name en=\"Lamp\"/>", "<Name en=\"\"/>"),
                 "CZelXMLGet::CZelXMLGet - NULL ptr"),
        required(oneOf(attribute("Type", "Parallel", "Point"), {"Point", "Spot", "Parallel"}),
                 "CZelXMLGet::GetAttributeLabel - NULL ptr for tag Type"),
        flag("Active", true),
        color("Color", {1, 2, 3}, {255, 255, 255}),
        real("Power", 2.5, 1200.0),
        real("Distance.Near", -3.5, 0.0),
        real("Distance.Far", 4.5, 0.0),
        xyz("Position", {1, 2, 3}, {200, 200, -200}),
        xyz("Target", {4, 5, 6}, {0, 0, 0}),
        real("Cone.Angle", 5.5, 20.0),
        real("Sharpness", 0.6, 0.5),
        required(oneOf(attribute("Shadow.Type", "Soft", "Traced"), {"None", "Traced", "Soft"}),
                 "CZelXMLGet::GetAttributeLabel - NULL ptr for tag Shadow.Type"),
        real("Shadow.Power", 0.7, 0.1),
        integer("Map.Size", 8, 0),
        real("Bias", 0.9, 0.3),
        flag("Global.Illumination", false),
        real("Global.Illumination.Power", -1.5, 0.5),
        integer("Global.Illumination.Quality", -2, 0),
        flag("Locked", false),
        optional(raw("UI.Value", "<UI.Value>3</UI.Value>", "")),
        optional(raw("Lights.Groups", kGroups, "")),
        raw("Lens.Flare",
            "<Lens.Flare Type=\"Halo1\"><Used/><Size>6.000000</Size>"
            "<Intensity>7.000000</Intensity></Lens.Flare>",
            "<Lens.Flare Type=\"LensFlare1\"><Size>1.000000</Size>"
            "<Intensity>1.000000</Intensity></Lens.Flare>"),
        optional(raw("Light.Cone", "<Light.Cone><Used/><Power>8.000000</Power></Light.Cone>",
                     "<Light.Cone><Power>0.000000</Power></Light.Cone>")),
        flag("Radiosity", true),
        attribute("UUID", kFile, kMade),
        required(attribute("Object.Id", kObject, kNull),
                 "CZelXMLGet::GetUUID - NULL ptr for tag Object.Id"),
        absentAlsoDrops(oneOf(attribute("Target.type", "On.Object", "Fixed.Vertex"),
                              {"Fixed.Vertex", "On.Object"}),
                        {"Object.Id"}),
        attribute("IES", kIES, kNull),
        optional(text("IES.Url", "lamp.ies", "")),
    };
}

/// The full file with one text of it replaced.
std::string changed(const std::string& from, const std::string& to)
{
    const std::vector<CRow> rows = lightRows();
    std::string file = CItems("Light", rows, {}).text();
    const std::size_t place = file.find(from);
    EXPECT_NE(place, std::string::npos) << from;
    return place == std::string::npos ? file : file.replace(place, from.size(), to);
}

void read(CLight& light, CTestDocument& document, const std::string& file, bool getUUID = true)
{
    const CTestElement source(file);
    CZelXMLIO io(document.ref(), getUUID);
    light.getXML(io, source.element());
}

} // namespace

TEST(LightXml, FileForm)
{
    CForm form;
    for (const CRow& row : lightRows())
        if (row.name != "UUID" && row.name != "Object.Id" && row.name != "Target.type" &&
            row.name != "IES" && row.name != "IES.Url")
            form.readOrder.push_back(row.name);
    for (const char* name : {"UUID", "IES", "Target.type", "Object.Id", "IES.Url"})
        form.readOrder.emplace_back(name);
    checkElement("Light", lightRows(), newLight, form);
}

TEST(LightXml, ValuesOfAFileAreClippedInSilence)
{
    struct {
        const char *in, *file, *kept;
    } cases[] = {
        {"<Power>2.500000</Power>", "<Power>0.5</Power>", "<Power>1.000000</Power>"},
        {"<Power>2.500000</Power>", "<Power>2000000</Power>", "<Power>1000000.000000</Power>"},
        {"<Cone.Angle>5.500000</Cone.Angle>", "<Cone.Angle>-1</Cone.Angle>",
         "<Cone.Angle>0.000000</Cone.Angle>"},
        {"<Cone.Angle>5.500000</Cone.Angle>", "<Cone.Angle>361</Cone.Angle>",
         "<Cone.Angle>360.000000</Cone.Angle>"},
        {"<Sharpness>0.600000</Sharpness>", "<Sharpness>-1</Sharpness>",
         "<Sharpness>0.000000</Sharpness>"},
        {"<Sharpness>0.600000</Sharpness>", "<Sharpness>2</Sharpness>",
         "<Sharpness>1.000000</Sharpness>"},
        {"<Shadow.Power>0.700000</Shadow.Power>", "<Shadow.Power>-1</Shadow.Power>",
         "<Shadow.Power>0.000000</Shadow.Power>"},
        {"<Shadow.Power>0.700000</Shadow.Power>", "<Shadow.Power>2</Shadow.Power>",
         "<Shadow.Power>1.000000</Shadow.Power>"},
        {"<Map.Size>8</Map.Size>", "<Map.Size>-1</Map.Size>", "<Map.Size>0</Map.Size>"},
        {"<Map.Size>8</Map.Size>", "<Map.Size>14</Map.Size>", "<Map.Size>13</Map.Size>"},
        {"<Bias>0.900000</Bias>", "<Bias>-1</Bias>", "<Bias>0.000000</Bias>"},
        {"<Bias>0.900000</Bias>", "<Bias>2</Bias>", "<Bias>1.000000</Bias>"},
    };
    CTestDocument document;
    for (const auto& each : cases) {
        const TZelComPtr<CLight> light = newLight(document);
        read(*light, document, changed(each.in, each.file));
        const CTestElement target;
        ASSERT_NE(light->putInXML(target.element()), nullptr);
        EXPECT_NE(target.text().find(each.kept), std::string::npos) << each.file;
    }
    EXPECT_EQ(document.takeMessages(), std::vector<std::string>());
}

TEST(LightXml, WithoutTextTheTargetTypeIsAsIfAbsent)
{
    CTestDocument document;
    const TZelComPtr<CLight> light = newLight(document);
    read(*light, document, changed("Target.type=\"On.Object\"", "Target.type=\"\""));
    EXPECT_EQ(light->getTargetType(), 0);
    EXPECT_EQ(light->getObjectId(), CZelUUID());
    EXPECT_STREQ(light->getIESUrl(), "lamp.ies");
}

TEST(LightXml, AUrlElementWithoutTextLeavesTheUrl)
{
    CTestDocument document;
    const TZelComPtr<CLight> light = newLight(document);
    light->setIESUrl("old.ies");
    read(*light, document, changed("<IES.Url>lamp.ies</IES.Url>", "<IES.Url/>"));
    EXPECT_STREQ(light->getIESUrl(), "old.ies");
}

TEST(LightXml, OnlyItsOwnIdentifierDependsOnTheFlag)
{
    CTestDocument document;
    const TZelComPtr<CLight> light = newLight(document);
    read(*light, document, changed("", ""), false);
    EXPECT_EQ(textOf(*light->getId()), kMade);
    EXPECT_EQ(textOf(light->getIES()), kIES);
    EXPECT_EQ(textOf(light->getObjectId()), kObject);
}

TEST(LightXml, TheListOfGroupsIsEmptiedFirst)
{
    struct {
        const char* file;
        std::int32_t nb;
    } cases[] = {
        {"", 0},
        {"<Lights.Groups/>", 0},
        {"<Lights.Groups UUID=\"0123456789ABCDEF0123456789ABCDEF\"/>", 1}, // of older files
    };
    CTestDocument document;
    for (const auto& each : cases) {
        const TZelComPtr<CLight> light = newLight(document);
        read(*light, document, changed("", ""));
        EXPECT_EQ(light->getLightsGroups()->getNbObjects(), 2);
        read(*light, document, changed(kGroups, each.file));
        EXPECT_EQ(light->getLightsGroups()->getNbObjects(), each.nb) << each.file;
    }
}

TEST(LightXml, PositionAndTargetPassThroughTheReadTransform)
{
    const double move[16] = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 10, 20, 30, 1};
    CTestDocument document;
    document.ref()->setMatrix(move);
    double expected[2][3] = {{1, 2, 3}, {4, 5, 6}};
    for (auto& point : expected)
        document.ref()->transformPoint(point);
    ASSERT_NE(expected[0][0], 1.0);

    const TZelComPtr<CLight> light = newLight(document);
    read(*light, document, changed("", ""));
    const CZelPoint position = light->getPosition();
    const CZelPoint target = light->getTarget();
    EXPECT_EQ((std::array{position.x, position.y, position.z}), std::to_array(expected[0]));
    EXPECT_EQ((std::array{target.x, target.y, target.z}), std::to_array(expected[1]));
}

TEST(LightXml, ABadItemStopsTheReading)
{
    struct {
        const char *in, *file, *message;
    } cases[] = {
        {"<Name en=\"Lamp\"/>", "<Name fr=\"Lampe\"/>",
         "CZelXMLGet::GetAttributeLanguage - NULL ptr"},
        {"Type=\"Parallel\"", "Type=\"point\"", "Invalid label (point) [Point..Parallel]"},
        {"Shadow.Type=\"Soft\"", "Shadow.Type=\"\"", "Invalid label () [None..Soft]"},
        {"Target.type=\"On.Object\"", "Target.type=\"Object\"",
         "Invalid label (Object) [Fixed.Vertex..On.Object]"},
        {"<Power>2.500000</Power>", "<Power/>", "CZelXMLGet::GetDouble - NULL ptr"},
        {"IES=\"FE", "IES=\"XE", "CZelUUID::Hex2Int: Invalid hex value"},
        {"<Light.Cone><Used/><Power>8.000000</Power>", "<Light.Cone>",
         "CZelXMLGet::GetElement - NULL ptr for tag Power"},
    };
    CTestDocument document;
    for (const auto& each : cases) {
        const TZelComPtr<CLight> light = newLight(document);
        const std::string file = changed(each.in, each.file);
        EXPECT_EQ(messageOf([&] { read(*light, document, file); }), each.message);
    }
}

TEST(LightXml, ANumberWithoutALabelFailsTheWritingUntilItIsPutRight)
{
    CTestDocument document;
    const TZelComPtr<CLight> light = newLight(document);
    const CTestElement target;
    light->setType(3);
    EXPECT_EQ(light->putInXML(target.element()), nullptr);
    light->setType(2);
    light->setShadowType(-1);
    EXPECT_EQ(light->putInXML(target.element()), nullptr);
    light->setShadowType(2);
    EXPECT_NE(light->putInXML(target.element()), nullptr);
    EXPECT_EQ(document.takeMessages(),
              (std::vector<std::string>{"Exception in CZelXMLBasicData::putInXML : "
                                        "No label for the value (3) [Point..Parallel]",
                                        "Exception in CZelXMLBasicData::putInXML : "
                                        "No label for the value (-1) [None..Soft]"}));
}
