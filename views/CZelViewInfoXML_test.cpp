#include "tests/support/checkElement.h"
#include "tests/support/messageOf.h"
#include "tests/support/textOf.h"
#include "tests/support/viewParts.h"

using namespace OvZel;
using namespace ZelTest;

namespace {

constexpr char kA[] = "AA000000000000000000000000000001";
constexpr char kB[] = "BB000000000000000000000000000002";
constexpr char kNull[] = "00000000000000000000000000000000";

TZelComPtr<CZelViewInfo> newInfo(CTestDocument& document)
{
    TZelComPtr info(new CZelViewInfo(document.ref()));
    info->setId(&kFreshInfoId);
    return info;
}

/// A part of the view information, as it is in a new one and as it is after the change.
template <class Part, class Change>
CRow partRow(const char* tag, Part* (CZelViewInfo::*getPart)(), Change change)
{
    CTestDocument document;
    const auto info = newInfo(document);
    Part* part = (info.get()->*getPart)();
    const std::string fresh = partText(document, tag, *part);
    change(*part);
    return raw(tag, partText(document, tag, *part), fresh);
}

CRow idList(const std::string& tag, const std::string& item)
{
    const std::string start = "<" + item + " UUID=\"";
    return optional(raw(tag, elementText(tag, start + kA + "\"/>" + start + kB + "\"/>"), ""));
}

std::vector<CRow> rowsOfInfo()
{
    return {
        attribute("UUID", textOf(kFullInfoId), textOf(kFreshInfoId)),
        flag("Locked", false),
        optional(integer("UI.Value", 7, 0)),
        partRow("Foregroung", &CZelViewInfo::getForeground, [](auto& p) { p.setURL("a.png"); }),
        idList("Lights.Groups", "Light"),
        required(raw("Heliodon.Name", R"(<Heliodon.Name en="S&lt;n"/>)",
                     R"(<Heliodon.Name en="Heliodon"/>)"),
                 "CZelXMLGet::CZelXMLGet - NULL ptr"),
        partRow("Depth.Of.Field", &CZelViewInfo::getDepthOfField, [](auto& p) { p.setType(2); }),
        optional(partRow("Clipping.Box", &CZelViewInfo::getClippingBox,
                         [](auto& p) { p.setAngle(2.0); })),
        optional(partRow("Laser", &CZelViewInfo::getLaser, [](auto& p) { p.setDistance(2.0); })),
        optional(partRow("Camera.Light", &CZelViewInfo::getCameraLight,
                         [](auto& p) { p.setPower(2.0); })),
        optional(partRow("Radiosity.Light", &CZelViewInfo::getRadiosityLight,
                         [](auto& p) { p.setPower(3.0); })),
        attribute("Environment", kNull, kNull), // another one is looked up in the document
        optional(partRow("Filters", &CZelViewInfo::getFilters,
                         [](auto& p) { p.getGrainFilter()->setActive(true); })),
        idList("Neon.Shaders", "Neon.Shader"),
        optional(partRow("Background.Picture", &CZelViewInfo::getBackgroundPicture,
                         [](auto& p) { p.setURL("b.png"); })),
        idList("Layers", "Layer"),
        optional(partRow("Tone.Settings", &CZelViewInfo::getToneSettings,
                         [](auto& p) { p.setDarkTones(2.0); })),
        attribute("Ground", kB, kNull),
    };
}

/// A view information with what is required, and the rest behind it.
std::string infoFile(const std::string& attributes, const std::string& rest)
{
    CTestDocument document;
    const auto info = newInfo(document);
    return "<E><View.Info" + attributes + ">" +
           partText(document, "Foregroung", *info->getForeground()) + R"(<Heliodon.Name en="H"/>)" +
           partText(document, "Depth.Of.Field", *info->getDepthOfField()) + rest +
           "</View.Info></E>";
}

std::string failureOf(CTestDocument& document, CZelViewInfo& info, const std::string& file,
                      bool getUUID = true)
{
    const CTestElement element(file);
    CZelXMLIO io(document.ref(), getUUID);
    return messageOf([&] { info.getXML(io, element.element()); });
}

void add(TZelObjectMgr<CZelUUID>* ids, const char* id)
{
    *ids->newZelObject(-1) = CZelUUID(id);
}

} // namespace

TEST(ViewInfoXml, FileForm)
{
    checkElement("View.Info", rowsOfInfo(), newInfo);
}

TEST(ViewInfoXml, WithoutIdentifiersFromTheFileItsOwnAndTheGroundStay)
{
    CTestDocument document;
    const auto info = newInfo(document);
    const std::string file = infoFile(
        std::string(" UUID=\"") + kA + "\" Environment=\"" + kB + "\" Ground=\"" + kB + "\"", "");
    EXPECT_EQ(failureOf(document, *info, file, false), "no exception");
    EXPECT_EQ(*info->getId(), kFreshInfoId);
    EXPECT_TRUE(info->getGround().isNull());
    EXPECT_EQ(info->getEnvironment(), CZelUUID(kB));

    EXPECT_EQ(failureOf(document, *info, file, true), "no exception");
    EXPECT_EQ(*info->getId(), CZelUUID(kA));
    EXPECT_EQ(info->getGround(), CZelUUID(kB));
}

TEST(ViewInfoXml, AbsentListsEmptyTheFirstTwoAndLeaveTheLayers)
{
    CTestDocument document;
    const auto info = newInfo(document);
    add(info->getLightsGroups(), kA);
    add(info->getNeonShaders(), kA);
    add(info->getLayers(), kA);
    EXPECT_EQ(failureOf(document, *info, infoFile("", "")), "no exception");
    EXPECT_EQ(info->getLightsGroups()->getNbObjects(), 0);
    EXPECT_EQ(info->getNeonShaders()->getNbObjects(), 0);
    EXPECT_EQ(info->getLayers()->getNbObjects(), 1);

    EXPECT_EQ(failureOf(document, *info, infoFile("", "<Layers/>")), "no exception");
    EXPECT_EQ(info->getLayers()->getNbObjects(), 0);
}

TEST(ViewInfoXml, EmptyListsAreLeftOut)
{
    CTestDocument document;
    const auto info = newInfo(document);
    const std::string text = partText(document, "View.Info", *info);
    for (const char* tag : {"Lights.Groups", "Neon.Shaders", "Layers"})
        EXPECT_EQ(text.find(tag), std::string::npos) << tag;
}

TEST(ViewInfoXml, TheOlderFormOfAListHasItsIdentifiersAsAttributes)
{
    CTestDocument document;
    const auto info = newInfo(document);
    const std::string list = std::string("<Lights.Groups UUID=\"") + kA + "\"><Light UUID=\"" + kB +
                             "\"/></Lights.Groups>";
    EXPECT_EQ(failureOf(document, *info, infoFile("", list)), "no exception");
    ASSERT_EQ(info->getLightsGroups()->getNbObjects(), 1);
    EXPECT_EQ(*info->getLightsGroups()->getZelObject(0), CZelUUID(kA));
}

TEST(ViewInfoXml, FailuresAreThoseOfTheItems)
{
    const std::string missing = "CZelXMLGet::GetElement - NULL ptr for tag ";
    struct {
        std::string file, message;
    } cases[] = {
        {"<E/>", missing + "View.Info"},
        {"<E><View.Info><Foreground/></View.Info></E>", missing + "Foregroung"},
        {infoFile("", "<Lights.Groups><Light/></Lights.Groups>"),
         "CZelXMLGet::GetUUID - NULL ptr for tag UUID"},
        {infoFile("", "<Layers><Layer/></Layers>"), "CZelXMLGet::GetUUID - NULL ptr for tag UUID"},
        {infoFile(" Environment=\"X\"", ""), "CZelUUID::Hex2Int: Invalid hex value"},
        {infoFile("", "<Laser/>"), "CZelXMLGet::CZelXMLGet - NULL ptr"},
    };
    for (const auto& [file, message] : cases) {
        CTestDocument document;
        EXPECT_EQ(failureOf(document, *newInfo(document), file), message);
    }
}

TEST(ViewInfoXml, BackgroundAndAtmosphereAreNotInTheFile)
{
    CTestDocument document;
    const auto info = newInfo(document);
    info->getBackground()->setURL("nowhere.png");
    info->getAtmosphere()->setUsed(true);
    const std::string text = partText(document, "View.Info", *info);
    for (const char* part : {"<Background>", "<Background ", "<Atmosphere", "nowhere.png"})
        EXPECT_EQ(text.find(part), std::string::npos) << part;
}

TEST(ViewInfoXml, ALargeNumberForTheUserInterfaceComesBack)
{
    CTestDocument document;
    const auto info = newInfo(document);
    info->setUIValue(0xFFFFFFFF);
    CTestElement element;
    ASSERT_NE(info->putInXML(element.element()), nullptr);
    EXPECT_NE(element.text().find("<UI.Value>-1</UI.Value>"), std::string::npos);
    const auto other = newInfo(document);
    EXPECT_TRUE(other->initWithXML(element.element(), true));
    EXPECT_EQ(other->getUIValue(), 0xFFFFFFFF);
}

TEST(ViewInfoXml, ALightOfAnotherKindGoesOutUnderThatName)
{
    CTestDocument document;
    const auto info = newInfo(document);
    info->getCameraLight()->setKind(1);
    info->getCameraLight()->setPower(4.0);
    info->getRadiosityLight()->setPower(5.0);
    CTestElement element;
    ASSERT_NE(info->putInXML(element.element()), nullptr);
    EXPECT_EQ(element.text().find("Camera.Light"), std::string::npos);

    // The first element of a name is read, and the kinds stay.
    const auto other = newInfo(document);
    EXPECT_TRUE(other->initWithXML(element.element(), true));
    EXPECT_EQ(other->getCameraLight()->getKind(), 0);
    EXPECT_EQ(other->getCameraLight()->getPower(), 1.0);
    EXPECT_EQ(other->getRadiosityLight()->getKind(), 1);
    EXPECT_EQ(other->getRadiosityLight()->getPower(), 4.0);
}
