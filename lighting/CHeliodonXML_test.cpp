#include "lighting/CHeliodon.h"

#include "tests/support/checkElement.h"
#include "tests/support/messageOf.h"
#include "tests/support/textOf.h"

#include <algorithm>

using namespace OvZel;
using namespace ZelTest;

namespace {

const char* const kMade = "11112222333344445555666677778888";
const char* const kFile = "00112233445566778899AABBCCDDEEFF";

TZelComPtr<CHeliodon> newHeliodon(CTestDocument& document)
{
    TZelComPtr<CHeliodon> heliodon(new CHeliodon(document.ref()));
    const CZelUUID id(kMade);
    heliodon->setId(&id);
    IZelTime* time = heliodon->getTime(); // that of a new one is now
    time->setMonth(6);
    time->setDay(21);
    time->setHour(12);
    time->setMinute(30);
    time->setYear(2004);
    return heliodon;
}

CRow needed(CRow row)
{
    return required(std::move(row), "CZelXMLGet::CZelXMLGet - NULL ptr");
}

std::vector<CRow> heliodonRows()
{
    const std::string newFlare = "<Lens.Flare Type=\"LensFlare1\"><Size>1.000000</Size>"
                                 "<Intensity>1.000000</Intensity></Lens.Flare>";
    const std::string flare = "<Lens.Flare Type=\"Halo1\"><Used/><Size>6.000000</Size>"
                              "<Intensity>7.000000</Intensity></Lens.Flare>";
    const std::string newColors =
        "<Colors><Sun.Color R=\"200\" G=\"182\" B=\"90\"/><Sun.Color R=\"230\" G=\"230\" "
        "B=\"225\"/><Sun.Color R=\"255\" G=\"255\" B=\"255\"/><Sun.Color R=\"222\" G=\"222\" "
        "B=\"130\"/><Sun.Color R=\"212\" G=\"135\" B=\"80\"/></Colors>";
    const std::string colors =
        "<Colors><Sun.Color R=\"1\" G=\"2\" B=\"3\"/><Sun.Color R=\"4\" G=\"5\" B=\"6\"/>"
        "<Sun.Color R=\"7\" G=\"8\" B=\"9\"/><Sun.Color R=\"10\" G=\"11\" B=\"12\"/>"
        "<Sun.Color R=\"13\" G=\"14\" B=\"15\"/></Colors>";
    const std::string newSky =
        "<Sky.Light Sky.Type=\"Automatic\" Sky.Kind=\"Physical\"><Factor>0.750000</Factor>"
        "<Color R=\"255\" G=\"255\" B=\"255\"/><Pollution>0.200000</Pollution>"
        "<Sky.Mix.Color R=\"255\" G=\"255\" B=\"255\"/><Sky.Saturation>0.500000</Sky.Saturation>"
        "<Sky.Exposure>0.000000</Sky.Exposure></Sky.Light>";
    const std::string sky =
        "<Sky.Light Sky.Type=\"User\" Sky.Kind=\"Vendralis5Sky\"><Used/><Factor>1.500000</Factor>"
        "<Color R=\"1\" G=\"2\" B=\"3\"/><Background/><Pollution>2.500000</Pollution>"
        "<Sky.Mix.Color.Flag/><Sky.Mix.Color R=\"4\" G=\"5\" B=\"6\"/><Power.Flag/>"
        "<Sky.Color.Flag/><Sky.Saturation>3.500000</Sky.Saturation>"
        "<Sky.Exposure>4.500000</Sky.Exposure></Sky.Light>";
    const std::string newClouds =
        "<Clouds><Cumulus.Size>0.600000</Cumulus.Size><Cumulus.Seed>0</Cumulus.Seed>"
        "<Cirrus.Size>0.500000</Cirrus.Size><Cirrus.Seed>0</Cirrus.Seed>"
        "<Stratus.Size>0.200000</Stratus.Size><Stratus.Seed>0</Stratus.Seed>"
        "<Cirrocumulus.Size>0.400000</Cirrocumulus.Size><Cirrocumulus.Seed>0</Cirrocumulus.Seed>"
        "<Wind.Speed>20.000000</Wind.Speed><Wind.Direction>0.000000</Wind.Direction></Clouds>";
    const std::string clouds =
        "<Clouds><Active/><Cumulus.Size>1.000000</Cumulus.Size><Cumulus.Seed>1</Cumulus.Seed>"
        "<Cirrus.Size>2.000000</Cirrus.Size><Cirrus.Seed>2</Cirrus.Seed>"
        "<Stratus.Size>3.000000</Stratus.Size><Stratus.Seed>3</Stratus.Seed>"
        "<Cirrocumulus.Size>4.000000</Cirrocumulus.Size><Cirrocumulus.Seed>4</Cirrocumulus.Seed>"
        "<Wind.Speed>5.000000</Wind.Speed><Wind.Direction>6.000000</Wind.Direction></Clouds>";
    const std::string newFog =
        "<Fog><Color R=\"221\" G=\"221\" B=\"221\"/><Density>0.500000</Density>"
        "<Start.Distance>50.000000</Start.Distance><End.Distance>2500.000000</End.Distance>"
        "<Altitude>300.000000</Altitude></Fog>";
    const std::string fog =
        "<Fog><Active/><Color R=\"1\" G=\"2\" B=\"3\"/><Density>1.000000</Density>"
        "<Start.Distance>2.000000</Start.Distance><End.Distance>3.000000</End.Distance>"
        "<Altitude>4.000000</Altitude></Fog>";
    return {
        flag("Active", true),
        needed(raw("Time",
                   "<Time><Month>1</Month><Day>2</Day><Hour>3</Hour><Minute>4</Minute>"
                   "<Year>1905</Year></Time>",
                   "<Time><Month>6</Month><Day>21</Day><Hour>12</Hour><Minute>30</Minute>"
                   "<Year>2004</Year></Time>")),
        needed(raw("Place",
                   "<Place><Longitude>140</Longitude><Latitude>4820</Latitude>"
                   "<TimeZone>60</TimeZone><Daylight/></Place>",
                   "<Place><Longitude>0</Longitude><Latitude>0</Latitude>"
                   "<TimeZone>0</TimeZone></Place>")),
        real("Sunshine", 1.5, 0.19),
        real("North.Angle", 2.5, 0.0),
        optional(real("Theta", 3.5, 0.0)),
        optional(real("Phi", 4.5, 0.785398)),
        flag("Shadow", true),
        real("Shadow.Power", 5.5, 0.8),
        integer("Sun.Blur", 6, 0),
        flag("Global.Illumination", false),
        real("Global.Illumination.Power", 7.5, 0.5),
        integer("Global.Illumination.Quality", 8, 0),
        absentAlsoDrops(optional(raw("Name", "<Name en=\"Noon\"/>", "<Name en=\"Heliodon\"/>")),
                        {"Lens.Flare", "Colored", "Colors"}),
        raw("Lens.Flare", flare, newFlare),
        optional(raw("God.Rays", "<God.Rays><Used/><Power>9.000000</Power></God.Rays>",
                     "<God.Rays><Power>1.000000</Power></God.Rays>")),
        flag("Colored", false),
        raw("Colors", colors, newColors),
        flag("Sun.PowerFlag", false),
        flag("Radiosity", false),
        optional(real("Cloud.Coverage", 10.5, 0.5)),
        flag("Cloud.Mask.Sun", false),
        optional(raw("Sky.Light", sky, newSky)),
        optional(raw("Clouds", clouds, newClouds)),
        optional(raw("Fog", fog, newFog)),
        attribute("UUID", kFile, kMade),
        oneOf(attribute("Placement.Kind", "Date.And.Place", "Manual"),
              {"Manual", "45.Degree", "Date.And.Place"}),
        oneOf(attribute("Color.Type", "User", "Automatic"), {"Automatic", "User"}),
        optional(raw("UI.Value", "<UI.Value>11</UI.Value>", "")),
        optional(real("Saturation", 12.5, 0.5)),
    };
}

/// The full file with one text of it replaced.
std::string changed(const std::string& from, const std::string& to)
{
    const std::vector<CRow> rows = heliodonRows();
    std::string file = CItems("Heliodon", rows, {}).text();
    const std::size_t place = file.find(from);
    EXPECT_NE(place, std::string::npos) << from;
    return place == std::string::npos ? file : file.replace(place, from.size(), to);
}

void read(CHeliodon& heliodon, CTestDocument& document, const std::string& file,
          bool getUUID = true)
{
    const CTestElement source(file);
    CZelXMLIO io(document.ref(), getUUID);
    heliodon.getXML(io, source.element());
}

} // namespace

TEST(HeliodonXml, FileForm)
{
    CForm form;
    for (const CRow& row : heliodonRows())
        form.readOrder.push_back(row.name);
    const auto moveAhead = [&](const char* name, const char* target) {
        std::erase(form.readOrder, name);
        form.readOrder.insert(
            std::find(form.readOrder.begin(), form.readOrder.end(), std::string(target)), name);
    };
    moveAhead("God.Rays", "Sun.PowerFlag"); // behind "Colors"
    moveAhead("Sky.Light", "Cloud.Coverage");
    moveAhead("Clouds", "Cloud.Coverage");
    checkElement("Heliodon", heliodonRows(), newHeliodon, form);
}

TEST(HeliodonXml, SkyAndCloudsAreReadAheadOfTheCoverage)
{
    CTestDocument document;
    const TZelComPtr<CHeliodon> heliodon = newHeliodon(document);
    const std::string file =
        changed("<Cloud.Coverage>10.500000</Cloud.Coverage>", "<Cloud.Coverage/>");
    EXPECT_EQ(messageOf([&] { read(*heliodon, document, file); }),
              "CZelXMLGet::GetDouble - NULL ptr");
    EXPECT_EQ(heliodon->getSkylight()->getFactor(), 1.5);
    EXPECT_TRUE(heliodon->getClouds()->getActive());
    EXPECT_FALSE(heliodon->getFog()->getActive());
}

TEST(HeliodonXml, GodRaysAreReadBehindTheColors)
{
    CTestDocument document;
    const TZelComPtr<CHeliodon> heliodon = newHeliodon(document);
    const std::string file = changed("<God.Rays><Used/><Power>9.000000</Power>", "<God.Rays>");
    EXPECT_EQ(messageOf([&] { read(*heliodon, document, file); }),
              "CZelXMLGet::GetElement - NULL ptr for tag Power");
    EXPECT_EQ(heliodon->getColor(4), CZelColor::rgb(13, 14, 15));
    EXPECT_FALSE(heliodon->getSunPowerFlag());
}

TEST(HeliodonXml, AllFiveColorsAreRequired)
{
    CTestDocument document;
    const TZelComPtr<CHeliodon> heliodon = newHeliodon(document);
    const std::string file = changed("<Sun.Color R=\"13\" G=\"14\" B=\"15\"/>", "");
    EXPECT_EQ(messageOf([&] { read(*heliodon, document, file); }),
              "CZelXMLGet::CZelXMLGet - NULL ptr");
    EXPECT_EQ(heliodon->getColor(3), CZelColor::rgb(10, 11, 12));
    EXPECT_EQ(heliodon->getColor(4), CZelColor::rgb(212, 135, 80));
}

TEST(HeliodonXml, ColorsOfOlderFilesAreRead)
{
    CTestDocument document;
    const TZelComPtr<CHeliodon> heliodon = newHeliodon(document);
    read(*heliodon, document,
         changed("<Sun.Color R=\"4\" G=\"5\" B=\"6\"/>",
                 "<Sun.Color><Red>40</Red><Green>50</Green><Blue>60</Blue></Sun.Color>"));
    EXPECT_EQ(heliodon->getColor(1), CZelColor::rgb(40, 50, 60));
    EXPECT_EQ(heliodon->getColor(2), CZelColor::rgb(7, 8, 9));
}

TEST(HeliodonXml, TheSettersLimitWhatAFileHolds)
{
    struct {
        const char *in, *file;
        double angle;
        std::int32_t blur;
        std::vector<std::string> messages;
    } cases[] = {
        {"<North.Angle>2.500000", "<North.Angle>725.5", 5.0, 6, {}},
        {"<North.Angle>2.500000", "<North.Angle>-400", -40.0, 6, {}},
        {"<North.Angle>2.500000", "<North.Angle>360", 360.0, 6, {}},
        {"<Sun.Blur>6", "<Sun.Blur>100", 2.5, 100, {}},
        {"<Sun.Blur>6",
         "<Sun.Blur>101",
         2.5,
         100,
         {"IZelHeliodon::setShadowBlur: invalid blur level"}},
        {"<Sun.Blur>6",
         "<Sun.Blur>-1",
         2.5,
         0,
         {"IZelHeliodon::setShadowBlur: invalid blur level"}},
    };
    CTestDocument document;
    for (const auto& each : cases) {
        const TZelComPtr<CHeliodon> heliodon = newHeliodon(document);
        read(*heliodon, document, changed(each.in, each.file));
        EXPECT_EQ(heliodon->getNorthAngle(), each.angle) << each.file;
        EXPECT_EQ(heliodon->getShadowBlur(), each.blur) << each.file;
        EXPECT_EQ(document.takeMessages(), each.messages) << each.file;
    }
}

TEST(HeliodonXml, AnOlderTimeZoneInHoursBecomesMinutes)
{
    CTestDocument document;
    const TZelComPtr<CHeliodon> heliodon = newHeliodon(document);
    read(*heliodon, document, changed("<TimeZone>60", "<TimeZone>2"));
    EXPECT_EQ(heliodon->getPlace()->getTimeZone(), 120);
}

TEST(HeliodonXml, ItsIdentifierIsTakenOnlyWhenAskedFor)
{
    CTestDocument document;
    const TZelComPtr<CHeliodon> heliodon = newHeliodon(document);
    read(*heliodon, document, changed("", ""), false);
    EXPECT_EQ(textOf(*heliodon->getId()), kMade);
    EXPECT_EQ(heliodon->getPlacementKind(), 2);
    EXPECT_EQ(heliodon->getSkylight()->getSkyKind(), 1);
}

TEST(HeliodonXml, EveryLabelHasItsNumber)
{
    struct {
        void (IZelHeliodon::*set)(std::int32_t);
        std::int32_t number;
        const char *attribute, *label;
    } cases[] = {
        {&IZelHeliodon::setPlacementKind, 0, "Placement.Kind", "Manual"},
        {&IZelHeliodon::setPlacementKind, 1, "Placement.Kind", "45.Degree"},
        {&IZelHeliodon::setPlacementKind, 2, "Placement.Kind", "Date.And.Place"},
        {&IZelHeliodon::setColorType, 0, "Color.Type", "Automatic"},
        {&IZelHeliodon::setColorType, 1, "Color.Type", "User"},
    };
    CTestDocument document;
    for (const auto& each : cases) {
        const TZelComPtr<CHeliodon> heliodon = newHeliodon(document);
        (*heliodon.get().*each.set)(each.number);
        const CTestElement target;
        OrvaneXML::XIXMLElement* written = heliodon->putInXML(target.element());
        ASSERT_NE(written, nullptr);
        EXPECT_STREQ(CZelXMLGet(written).GetOptionalAttribute(std::string(each.attribute)),
                     each.label);
    }
}

TEST(HeliodonXml, ABadItemStopsTheReading)
{
    struct {
        const char *in, *file, *message;
    } cases[] = {
        {"<Name en=\"Noon\"/>", "<Name/>", "CZelXMLGet::GetAttributeLanguage - NULL ptr"},
        {"Date.And.Place", "Place", "Invalid label (Place) [Manual..Date.And.Place]"},
        {"Color.Type=\"User\"", "Color.Type=\"\"", "Invalid label () [Automatic..User]"},
        {"<Hour>3</Hour>", "", "CZelXMLGet::GetElement - NULL ptr for tag Hour"},
        {"<Cumulus.Size>1.000000</Cumulus.Size>", "",
         "CZelXMLGet::GetElement - NULL ptr for tag Cumulus.Size"},
        {"<Density>1.000000</Density>", "", "CZelXMLGet::GetElement - NULL ptr for tag Density"},
    };
    CTestDocument document;
    for (const auto& each : cases) {
        const TZelComPtr<CHeliodon> heliodon = newHeliodon(document);
        const std::string file = changed(each.in, each.file);
        EXPECT_EQ(messageOf([&] { read(*heliodon, document, file); }), each.message);
    }
}

TEST(HeliodonXml, ANumberWithoutALabelFailsTheWriting)
{
    CTestDocument document;
    const TZelComPtr<CHeliodon> heliodon = newHeliodon(document);
    const CTestElement target;
    heliodon->setPlacementKind(3);
    EXPECT_EQ(heliodon->putInXML(target.element()), nullptr);
    heliodon->setPlacementKind(0);
    heliodon->setColorType(-1);
    EXPECT_EQ(heliodon->putInXML(target.element()), nullptr);
    EXPECT_EQ(document.takeMessages(),
              (std::vector<std::string>{"Exception in CZelXMLBasicData::putInXML : "
                                        "No label for the value (3) [Manual..Date.And.Place]",
                                        "Exception in CZelXMLBasicData::putInXML : "
                                        "No label for the value (-1) [Automatic..User]"}));
}
