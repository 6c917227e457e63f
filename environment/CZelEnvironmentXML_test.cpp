#include "environment/CZelEnvironment.h"

#include "tests/support/checkElement.h"
#include "tests/support/messageOf.h"

using namespace OvZel;
using namespace ZelTest;

namespace {

const std::string kFreshId = "00112233445566778899AABBCCDDEEFF";
const std::string kFileId = "FFEEDDCCBBAA99887766554433221100";
const std::string kNullId(32, '0');

std::vector<CRow> cloudRows()
{
    return {
        flag("Active", false),
        real("Cumulus.Size", 1.5, 0.6),
        integer("Cumulus.Seed", 1, 0),
        real("Cirrus.Size", 2.5, 0.5),
        integer("Cirrus.Seed", 2, 0),
        real("Stratus.Size", 3.5, 0.2),
        integer("Stratus.Seed", 3, 0),
        real("Cirrocumulus.Size", 4.5, 0.4),
        integer("Cirrocumulus.Seed", 4, 0),
        flag("Active.Wind", false),
        optional(real("Wind.Speed", 5.5, 20.0)),
        optional(real("Wind.Direction", 6.5, 0.0)),
    };
}

std::vector<CRow> pictureRows()
{
    return {
        required(oneOf(attribute("Type", "HDRI", "None"),
                       {"None", "User.Gradiant", "Picture.2D", "Movie.3D", "User.Gradiant.4.Colors",
                        "HDRI"}),
                 "CZelXMLGet::GetAttributeLabel - NULL ptr for tag Type"),
        text("URL", "sky.png", ""),
        color("First.Color", {1, 2, 3}, {255, 255, 255}),
        color("Second.Color", {4, 5, 6}, {255, 255, 255}),
        color("Third.Color", {7, 8, 9}, {255, 255, 255}),
        optional(color("Fourth.Color", {10, 11, 12}, {0, 0, 0})),
        flag("3D", false),
        real("H.Offset", 1.5, 0.0),
        real("V.Offset", 2.5, 0.0),
        flag("Lighting.Flag", false),
        optional(real("Lighting.Intensity", 3.5, 0.5)),
        optional(real("Background.Intensity", 4.5, 0.5)),
        optional(real("Horizontal.Roll", 5.5, 0.0)),
        real("Width", 6.5, 1.0),
        real("Height", 7.5, 1.0),
        flag("Keep.Proportions", true),
    };
}

std::vector<CRow> foregroundRows()
{
    return {
        text("URL", "tree.png", ""),
        real("Position.X", 1.5, 0.0),
        real("Position.Y", 2.5, 0.0),
        optional(real("Size.X", 3.5, 1.0)),
        optional(real("Size.Y", 4.5, 1.0)),
        absentGives(attribute("Id", kNullId, kNullId), kNullId),
        optional(real("Intensity", 5.5, 0.5)),
        flag("Keep.Proportions", true),
    };
}

std::string fogText(const std::string& density)
{
    return "<Active/><Color R=\"1\" G=\"2\" B=\"3\"/>" + density +
           "<Start.Distance>5</Start.Distance><End.Distance>6</End.Distance>"
           "<Altitude>7</Altitude>";
}

/// What reading the content gives, with the identifier and the name in front.
std::string readContent(CZelEnvironment& environment, const std::string& content)
{
    const CTestElement file("<E><Environment UUID=\"" + kFileId + "\"><Name en=\"N\"/>" + content +
                            "</Environment></E>");
    CTestDocument document;
    CZelXMLIO io(document.ref(), false);
    return messageOf([&] { environment.getXML(io, file.element()); });
}

} // namespace

TEST(EnvironmentXml, FileForm)
{
    const std::vector<CRow> rows = {
        required(attribute("UUID", kFileId, kFreshId),
                 "CZelXMLGet::GetUUID - NULL ptr for tag UUID"),
        required(raw("Name", "<Name en=\"Sunset\"/>", "<Name en=\"Environment 1\"/>"),
                 "CZelXMLGet::CZelXMLGet - NULL ptr"),
        flag("Active", false),
        color("Color", {1, 2, 3}, {221, 221, 221}),
        absentAlsoDrops(optional(real("Density", 1.5, 0.5)),
                        {"Active", "Color", "Start.Distance", "End.Distance", "Altitude"}),
        real("Start.Distance", 2.5, 50.0),
        real("End.Distance", 3.5, 2500.0),
        real("Altitude", 4.5, 300.0),
        optional(part("Clouds", cloudRows())),
        optional(part("Background.Picture", pictureRows(),
                      {"URL", "First.Color", "Second.Color", "Third.Color", "Fourth.Color", "3D",
                       "Type", "H.Offset", "V.Offset", "Lighting.Flag", "Lighting.Intensity",
                       "Background.Intensity", "Horizontal.Roll", "Width", "Height",
                       "Keep.Proportions"})),
        optional(part("Foregroung", foregroundRows())),
    };
    checkElement("Environment", rows,
                 [](CTestDocument& document) {
                     auto made = std::make_unique<CZelEnvironment>(document.ref());
                     made->setId(CZelUUID(kFreshId.c_str()));
                     return made;
                 },
                 {.getUUID = false}); // the identifier is taken all the same
}

TEST(EnvironmentXml, ANameWithoutTheEnglishTextFails)
{
    CTestDocument document;
    CZelEnvironment environment(document.ref());
    const CTestElement file("<E><Environment UUID=\"" + kFileId + "\"><Name fr=\"N\"/>" +
                            "</Environment></E>");
    EXPECT_FALSE(environment.initWithXML(file.element(), true));
    EXPECT_STREQ(environment.getName(), "Environment 1");
    EXPECT_EQ(document.takeMessages(),
              std::vector<std::string>{"Exception in CZelXMLRef::initWithXML : "
                                       "CZelXMLGet::GetAttributeLanguage - NULL ptr"});
}

TEST(EnvironmentXml, TheFogStandsInTheElementOrInAChild)
{
    const std::string inside = fogText("<Density>4</Density>");
    const std::string other = fogText("<Density>9</Density>");
    struct {
        std::string content;
        double density;
    } const cases[] = {
        {inside, 4.0},
        {"<Fog>" + inside + "</Fog>", 4.0},
        {inside + "<Fog>" + other + "</Fog>", 4.0},
        {fogText("") + "<Fog>" + other + "</Fog>", 9.0},
        {fogText(""), 0.5},
        {"<Fog>" + fogText("") + "</Fog>", 0.5},
        {"", 0.5},
    };
    for (const auto& [content, density] : cases) {
        CZelEnvironment environment(nullptr);
        EXPECT_EQ(readContent(environment, content), "no exception") << content;
        EXPECT_EQ(environment.getFog()->getDensity(), density) << content;
        EXPECT_EQ(environment.getFog()->getActive(), density != 0.5) << content;
    }
}

TEST(Environment, ANewOne)
{
    CZelEnvironment first(nullptr), second(nullptr);
    EXPECT_STREQ(first.getName(), "Environment 1");
    EXPECT_FALSE(first.getId().isNull());
    EXPECT_NE(first.getId(), second.getId());
    first.setName(nullptr);
    EXPECT_STREQ(first.getName(), "");
}

TEST(Environment, BothSlotsGiveOnePart)
{
    CZelEnvironment environment(nullptr);
    const CZelEnvironment& constant = environment;
    EXPECT_EQ(constant.getClouds(), environment.getClouds());
    EXPECT_EQ(constant.getFog(), environment.getFog());
    EXPECT_EQ(constant.getBackgroundPicture(), environment.getBackgroundPicture());
    EXPECT_EQ(constant.getForeground(), environment.getForeground());
}

TEST(Environment, ItsPartsReachTheDocument)
{
    CTestDocument document;
    CZelEnvironment environment(document.ref());
    const CTestElement file("<E/>");
    EXPECT_FALSE(environment.getForeground()->initWithXML(file.element(), false));
    EXPECT_EQ(document.takeMessages(),
              std::vector<std::string>{"Exception in CZelXML::initWithXML : "
                                       "CZelXMLGet::GetElement - NULL ptr for tag Foregroung"});
}

TEST(Environment, WithoutAnOwnerTheXmlOperationsRaise)
{
    CZelEnvironment environment(nullptr);
    CTestElement target;
    EXPECT_EQ(messageOf([&] { environment.putInXML(target.element()); }),
              "TZelComPtr::operator->() - Dereferencing NULL");
    EXPECT_EQ(messageOf([&] { environment.initWithXML(target.element(), true); }),
              "TZelComPtr::operator->() - Dereferencing NULL");
}
