#include "objects/CZelZelObjectDefinition.h"

#include "tests/support/CTestDocument.h"
#include "tests/support/CTestElement.h"
#include "tests/support/checkElement.h"
#include "tests/support/messageOf.h"

#include <zel/IZel3DPlant.h>

#include <gtest/gtest.h>

#include <vector>

using namespace OvZel;
using namespace ZelTest;
using OrvaneXML::XIXMLElement;

namespace {

using CDefinitionPtr = TZelComPtr<CZelZelObjectDefinition>;

constexpr CZelUUID kOwnId("0123456789ABCDEF0123456789ABCDEF");

/// The definition alone, as it stands in the file, whatever its class.
struct CDefinitionForm {
    explicit CDefinitionForm(IZelObjectLinkRef* owner)
        : definition(new CZelZelObjectDefinition(owner))
    {
        definition->setId(&kOwnId);
    }
    void addXML(CZelXMLIO& io, XIXMLElement* element) { definition->addDefinition(io, element); }
    void getXML(CZelXMLIO& io, XIXMLElement* element) { definition->getDefinition(io, element); }

    CDefinitionPtr definition;
};

const std::string kIdentityLines =
    "<Line Index=\"0\">1.000000, 0.000000, 0.000000, 0.000000</Line>"
    "<Line Index=\"1\">0.000000, 1.000000, 0.000000, 0.000000</Line>"
    "<Line Index=\"2\">0.000000, 0.000000, 1.000000, 0.000000</Line>"
    "<Line Index=\"3\">0.000000, 0.000000, 0.000000, 1.000000</Line>";
const std::string kOtherLines = "<Line Index=\"0\">1.000000, 5.000000, 9.000000, 13.000000</Line>"
                                "<Line Index=\"1\">2.000000, 6.000000, 10.000000, 14.000000</Line>"
                                "<Line Index=\"2\">3.000000, 7.000000, 11.000000, 15.000000</Line>"
                                "<Line Index=\"3\">4.000000, 8.000000, 12.000000, 16.000000</Line>";

CRow texts(const std::string& name, const std::string& full)
{
    return optional(
        raw(name, "<" + name + " en=\"" + full + "\" fr=\"le " + full + "\"/>", "<" + name + "/>"));
}

CRow label(const std::string& name, const std::string& full, const std::string& fresh)
{
    return required(attribute(name, full, fresh),
                    "CZelXMLGet::GetAttributeLabel - NULL ptr for tag " + name);
}

/// An item of the block that the first missing one ends, with those behind it.
CRow blocked(CRow row, std::vector<std::string> behind)
{
    return absentAlsoDrops(optional(std::move(row)), std::move(behind));
}

const std::vector<std::string> kReadOrder = {
    "Object.Data",    "UUID",         "Name",          "Anchor",
    "Placement",      "Up",           "Initial.Angle", "Model.Rotation",
    "Model.Position", "UIValue",      "Model.Origin",  "Model.Rotation.Matrixs",
    "Comment",        "Description1", "Description2",  "Properties",
    "Setups",         "LightGroupID", "Class"};
const std::vector<std::string> kAllButClass(kReadOrder.begin(), kReadOrder.end() - 1);

/// The names from the one on, up to the end of the block.
std::vector<std::string> blockFrom(std::size_t place)
{
    return {kReadOrder.begin() + static_cast<std::ptrdiff_t>(place), kReadOrder.begin() + 12};
}

const std::vector<CRow> kRows = {
    absentAlsoDrops(
        optional(raw("Class", "<Class en=\"ZelObject\"/>", "<Class en=\"ModelObject\"/>")),
        kAllButClass),
    attribute("UUID", "FFEEDDCCBBAA99887766554433221100", "0123456789ABCDEF0123456789ABCDEF"),
    texts("Name", "Chair"),
    xyz("Anchor", {1, 2, 3}, {0, 0, 0}),
    oneOf(label("Placement", "Perpendicular", "Vertical"), {"Perpendicular", "Vertical"}),
    xyz("Up", {4, 5, 6}, {0, 0, 1}),
    blocked(real("Initial.Angle", 7.5, 0), blockFrom(7)),
    ofKind(optional(raw("Properties", "<Properties/>", "<Properties/>")), "list Property"),
    required(attribute("LightGroupID", "AAAABBBBCCCCDDDD1111222233334444",
                       "00000000000000000000000000000000"),
             "CZelXMLGet::GetUUID - NULL ptr for tag LightGroupID"),
    blocked(xyz("Model.Rotation", {8, 9, 10}, {0, 0, 0}), blockFrom(8)),
    optional(raw("Model.Rotation.Matrixs",
                 "<Model.Rotation.Matrixs>" + kOtherLines + "</Model.Rotation.Matrixs>",
                 "<Model.Rotation.Matrixs>" + kIdentityLines + "</Model.Rotation.Matrixs>")),
    blocked(xyz("Model.Position", {11, 12, 13}, {0, 0, 0}), blockFrom(9)),
    texts("Description1", "One"),
    texts("Description2", "Two"),
    texts("Comment", "Note"),
    blocked(integer("UIValue", 21, -1), blockFrom(10)),
    blocked(oneOf(attribute("Model.Origin", "Camera.Target", "Uninitialized"),
                  {"Uninitialized", "CenterXYBottom", "CenterXYTop", "CenterXY", "Camera.Target"}),
            blockFrom(11)),
    optional(raw("Setups",
                 "<Setups><Setup UUID=\"11112222333344445555666677778888\"><Name en=\"A\"/></Setup>"
                 "<Setup UUID=\"22223333444455556666777788889999\"><Name/></Setup></Setups>",
                 "<Setups/>")),
    raw("Object.Data",
        "<Object.Data Own=\"1\"><Instance.Data><I/></Instance.Data><X>t</X></Object.Data>",
        "<Object.Data><Instance.Data/></Object.Data>"),
};

/// Parts of an element, for files that a table cannot hold.
const std::string kHead = "<Class en=\"ZelObject\"/><Anchor X=\"1\" Y=\"2\" Z=\"3\"/>"
                          "<Up X=\"1\" Y=\"0\" Z=\"0\"/>";
const std::string kAttributes =
    " Placement=\"Perpendicular\" LightGroupID=\"00000000000000000000000000000000\"";

std::string definitionText(const std::string& more, const std::string& attributes = kAttributes)
{
    return "<E><Object.Definition" + attributes + ">" + more + "</Object.Definition></E>";
}

class DefinitionXml : public testing::Test {
protected:
    using CMessages = std::vector<std::string>;

    void read(const std::string& xml)
    {
        const CTestElement source(xml);
        CZelXMLIO io(mDocument.ref(), true);
        mDefinition->getDefinition(io, source.element());
    }
    void save(const CTestElement& target)
    {
        CZelXMLIO io(mDocument.ref(), false);
        mDefinition->addDefinition(io, target.element());
    }
    std::string saved()
    {
        const CTestElement target;
        save(target);
        return target.text();
    }
    static bool holds(const std::string& text, const std::string& part)
    {
        return text.find(part) != std::string::npos;
    }

    CTestDocument mDocument;
    CDefinitionPtr mDefinition{new CZelZelObjectDefinition(mDocument.ref())};
};

} // namespace

TEST(DefinitionXmlForm, FileForm)
{
    CForm form;
    form.readOrder = kReadOrder;
    checkElement(
        "Object.Definition", kRows,
        [](CTestDocument& document) { return std::make_unique<CDefinitionForm>(document.ref()); },
        form);
}

TEST(DefinitionXmlForm, SetupFileForm)
{
    const std::vector<CRow> rows = {
        required(attribute("UUID", "FFEEDDCCBBAA99887766554433221100",
                           "0123456789ABCDEF0123456789ABCDEF"),
                 "CZelXMLGet::GetUUID - NULL ptr for tag UUID"),
        texts("Name", "Chair"),
    };
    const auto make = [](CTestDocument& document) {
        auto setup = std::make_unique<CObjectSetup>(document.ref());
        setup->setUUID(kOwnId);
        return setup;
    };
    for (const bool getUUID : {true, false}) {
        CForm form;
        form.getUUID = getUUID; // the identity of a set-up is always that of the file
        checkElement("Setup", rows, make, form);
    }
}

TEST_F(DefinitionXml, ItsIdentifierIsTakenOnlyWhenAskedFor)
{
    const CTestElement source(definitionText(
        kHead + "<Object.Data/>", kAttributes + " UUID=\"FFEEDDCCBBAA99887766554433221100\""));
    mDefinition->setId(&kOwnId);
    CZelXMLIO without(mDocument.ref(), false);
    mDefinition->getDefinition(without, source.element());
    EXPECT_EQ(*mDefinition->getId(), kOwnId);
    CZelXMLIO with(mDocument.ref(), true);
    mDefinition->getDefinition(with, source.element());
    EXPECT_EQ(*mDefinition->getId(), CZelUUID("FFEEDDCCBBAA99887766554433221100"));
}

TEST_F(DefinitionXml, TheEmptyClassWritesAnEmptyElementThatChangesNothing)
{
    mDefinition->setClass("");
    mDefinition->setInitialAngle(3.0);
    const std::string text = saved();
    EXPECT_TRUE(holds(text, "<E><Object.Definition/></E>")) << text;
    mDefinition->setClass("Billboard");
    read(text);
    EXPECT_STREQ(mDefinition->getClass(), "Billboard");
    EXPECT_EQ(mDefinition->getInitialAngle(), 3.0);
}

TEST_F(DefinitionXml, WithoutItsElementNothingChanges)
{
    mDefinition->setInitialAngle(3.0);
    read("<E/>");
    EXPECT_EQ(mDefinition->getInitialAngle(), 3.0);
    EXPECT_EQ(mDocument.takeMessages(), CMessages{});
}

TEST_F(DefinitionXml, AnOlderFileStopsBehindTheRotation)
{
    read(definitionText(kHead + "<Initial.Angle>5</Initial.Angle>"
                                "<Model.Rotation X=\"1\" Y=\"2\" Z=\"3\"/><UIValue>9</UIValue>"
                                "<Object.Data/>",
                        kAttributes + " Model.Origin=\"CenterXY\""));
    EXPECT_EQ(mDefinition->getInitialAngle(), 5.0);
    EXPECT_EQ(mDefinition->getModelRotation().z, 3.0);
    EXPECT_EQ(mDefinition->getModelPosition().z, 0.0);
    EXPECT_EQ(mDefinition->getUIValue(), 0xFFFFFFFFu);
    EXPECT_EQ(mDefinition->getModelOrigin(), 0);
    EXPECT_EQ(mDefinition->getModelRotationMatrix()[0], 1.0);
    EXPECT_EQ(mDefinition->getModelRotationMatrix()[4], 0.0);
    EXPECT_STREQ(mDefinition->getClass(), "ZelObject") << "the reading went on behind the block";
}

TEST_F(DefinitionXml, ABadOriginOnlyEndsTheBlock)
{
    read(definitionText(kHead +
                            "<Initial.Angle>5</Initial.Angle>"
                            "<Model.Rotation X=\"1\" Y=\"2\" Z=\"3\"/>"
                            "<Model.Position X=\"4\" Y=\"5\" Z=\"6\"/><UIValue>9</UIValue>"
                            "<Model.Rotation.Matrixs>" +
                            kOtherLines + "</Model.Rotation.Matrixs><Object.Data/>",
                        kAttributes + " Model.Origin=\"Nowhere\""));
    EXPECT_EQ(mDefinition->getUIValue(), 9u);
    EXPECT_EQ(mDefinition->getModelOrigin(), 0);
    EXPECT_EQ(mDefinition->getModelRotationMatrix()[1], 0.0);
    EXPECT_STREQ(mDefinition->getClass(), "ZelObject");
}

TEST_F(DefinitionXml, ABadPlacementFails)
{
    EXPECT_EQ(
        messageOf([&] { read(definitionText(kHead + "<Object.Data/>", " Placement=\"Lying\"")); }),
        "Invalid label (Lying) [Perpendicular..Vertical]");
    EXPECT_EQ(mDefinition->getAnchor().x, 1.0) << "what was read before stays";
    EXPECT_STREQ(mDefinition->getClass(), "ModelObject");
}

TEST_F(DefinitionXml, AClassWithoutItsTextFailsAtTheEnd)
{
    const std::string text =
        definitionText("<Class/><Anchor X=\"1\"/><Up/><Comment en=\"Read\"/><Object.Data/>");
    EXPECT_EQ(messageOf([&] { read(text); }), "CZelXMLGet::GetAttributeLanguage - NULL ptr");
    EXPECT_STREQ(mDefinition->getComment()->getCurrentText(), "Read");
    EXPECT_STREQ(mDefinition->getClass(), "ModelObject");
}

TEST_F(DefinitionXml, ValuesWithoutALabelCannotBeWritten)
{
    mDefinition->setPlacement(2);
    EXPECT_EQ(messageOf([&] { saved(); }), "No label for the value (2) [Perpendicular..Vertical]");
    mDefinition->setPlacement(0);
    mDefinition->setModelOrigin(5);
    EXPECT_EQ(messageOf([&] { saved(); }),
              "No label for the value (5) [Uninitialized..Camera.Target]");
}

TEST_F(DefinitionXml, PlacementsAndOriginsHaveTheirLabels)
{
    const char* placements[] = {"Perpendicular", "Vertical"};
    for (int i = 0; i < 2; ++i) {
        mDefinition->setPlacement(i);
        EXPECT_TRUE(holds(saved(), std::string("Placement=\"") + placements[i] + "\""));
    }
    const char* origins[] = {"Uninitialized", "CenterXYBottom", "CenterXYTop", "CenterXY",
                             "Camera.Target"};
    for (int i = 0; i < 5; ++i) {
        mDefinition->setModelOrigin(i);
        EXPECT_TRUE(holds(saved(), std::string("Model.Origin=\"") + origins[i] + "\""));
    }
}

TEST_F(DefinitionXml, DataOfAnUnknownClassComeBackAsTheyWere)
{
    const std::string data =
        "<Object.Data A=\"1\" b=\"&lt;2\"><!--note--><Deep><Er X=\"1\"/></Deep>"
        "<Text>a &amp; b</Text><Deep/></Object.Data>";
    read(definitionText("<Class en=\"Spaceship\"/><Anchor/><Up/>" + data));
    EXPECT_STREQ(mDefinition->getClass(), "Spaceship");
    EXPECT_EQ(mDefinition->as3DPlant(), nullptr);
    EXPECT_TRUE(holds(saved(), data)) << saved();
}

TEST_F(DefinitionXml, ASecondSaveReplacesTheFirst)
{
    const CTestElement target("<E><Object.Definition old=\"1\"/><Other/><Object.Definition/></E>");
    save(target);
    mDefinition->setInitialAngle(2.0);
    save(target);
    XIXMLElement* first = CZelXMLGet(target.element()).GetElement("Object.Definition");
    EXPECT_EQ(first->GetNextSame(), nullptr);
    EXPECT_EQ(CZelXMLGet(first).GetDouble("Initial.Angle"), 2.0);
    EXPECT_EQ(CZelXMLGet(first).GetElement("Setups")->GetNextSame(), nullptr);
    EXPECT_TRUE(CZelXMLGet(target.element()).IsElement("Other"));
}

TEST_F(DefinitionXml, AListThatIsThereIsEmptiedFirst)
{
    mDefinition->getSetups()->append();
    mDefinition->getProperties()->append();
    read(definitionText(kHead + "<Object.Data/>"));
    EXPECT_EQ(mDefinition->getSetups()->size(), 1);
    EXPECT_EQ(mDefinition->getProperties()->size(), 1);
    read(definitionText(kHead + "<Setups/><Properties/><Object.Data/>"));
    EXPECT_EQ(mDefinition->getSetups()->size(), 0);
    EXPECT_EQ(mDefinition->getProperties()->size(), 0);
}

TEST_F(DefinitionXml, ASetupThatFailsStays)
{
    EXPECT_EQ(messageOf([&] {
                  read(definitionText(
                      kHead + "<Setups><Setup UUID=\"11112222333344445555666677778888\"/><Setup/>"
                              "</Setups><Object.Data/>"));
              }),
              "CZelXMLGet::GetUUID - NULL ptr for tag UUID");
    ASSERT_EQ(mDefinition->getSetups()->size(), 2);
    EXPECT_EQ(mDefinition->getSetups()->at(0)->getUUID(),
              CZelUUID("11112222333344445555666677778888"));
}

TEST_F(DefinitionXml, TheReadTransformMovesPointsAlone)
{
    const double moved[16] = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 10, 20, 30, 1};
    mDocument.ref()->setMatrix(moved);
    read(definitionText(kHead + "<Initial.Angle>5</Initial.Angle>"
                                "<Model.Rotation X=\"1\" Y=\"2\" Z=\"3\"/>"
                                "<Model.Position X=\"4\" Y=\"5\" Z=\"6\"/><Object.Data/>"));
    EXPECT_EQ(mDefinition->getAnchor().x, 11.0);
    EXPECT_EQ(mDefinition->getUp().x, 1.0);
    EXPECT_EQ(mDefinition->getModelRotation().y, 2.0);
    EXPECT_EQ(mDefinition->getModelPosition().z, 36.0);
    EXPECT_TRUE(holds(saved(), "<Anchor X=\"11.000000\" Y=\"22.000000\" Z=\"33.000000\"/>"));
}

TEST_F(DefinitionXml, TheSameClassIsMadeAnewFromTheFile)
{
    mDefinition->setClass("3DPlant");
    mDefinition->as3DPlant()->setPlantType(3);
    read(definitionText("<Class en=\"3DPlant\"/><Anchor/><Up/>"
                        "<Object.Data Plant.Type=\"Cactus\"><Plant.Setups/></Object.Data>"));
    EXPECT_EQ(mDefinition->as3DPlant()->getPlantType(), 6);
}

TEST_F(DefinitionXml, ASaveTakesInTheStateOfTheInterface)
{
    mDefinition->setClass("3DPlant");
    mDefinition->as3DPlant()->setPlantType(7);
    EXPECT_TRUE(holds(saved(), "<Object.Data Plant.Type=\"WaterPlant\"><Instance.Data/>"
                               "<Plant.Setups/></Object.Data>"))
        << saved();
}

TEST_F(DefinitionXml, AComponentAloneIsWrittenWithItsMesh)
{
    mDefinition->setId(&kOwnId);
    mDefinition->setGeometryLevel(3);
    const CTestElement target;
    XIXMLElement* wrapper = mDefinition->putInXML(target.element());
    ASSERT_NE(wrapper, nullptr);
    EXPECT_STREQ(wrapper->GetKey(), "InternalComponentDefinition");
    *mDefinition->getPoints()->newZelObject(-1) = {1, 2, 3};
    const std::string text = target.text(); // the mesh is that of the moment of writing
    EXPECT_TRUE(holds(text,
                      "<InternalComponentDefinition UUID=\"0123456789ABCDEF0123456789ABCDEF\">"
                      "<Geometry.Level>3</Geometry.Level><Points><![CDATA[1"))
        << text;
    EXPECT_TRUE(holds(text, "]]></Points><Polygons><![CDATA[0")) << text;
    EXPECT_TRUE(holds(text, "]]></Polygons><Object.Definition UUID=")) << text;

    mDefinition.reset();
    EXPECT_EQ(target.text(), text) << "the tree keeps the mesh";
    EXPECT_EQ(mDocument.takeMessages(), CMessages{});
}

TEST_F(DefinitionXml, AComponentAloneWithTheNullIdentifierHasNoMesh)
{
    const CZelUUID null;
    mDefinition->setId(&null);
    const CTestElement target;
    mDefinition->putInXML(target.element());
    target.text();
    EXPECT_EQ(mDocument.takeMessages(), (CMessages{"CPointsProvider::Write2 - NULL UUID",
                                                   "CPolygonsProvider::Write2 - NULL UUID"}));
}

TEST_F(DefinitionXml, AnotherClassAloneIsTheDefinition)
{
    mDefinition->setClass("Billboard");
    const CTestElement target;
    XIXMLElement* written = mDefinition->putInXML(target.element());
    ASSERT_NE(written, nullptr);
    EXPECT_STREQ(written->GetKey(), "Object.Definition");
    EXPECT_EQ(mDefinition->putInXML(target.element())->GetNextSame(), nullptr);
}

TEST_F(DefinitionXml, AComponentAloneIsReadFromItsWrapper)
{
    const CTestElement source(
        "<E><InternalComponentDefinition "
        "UUID=\"FFEEDDCCBBAA99887766554433221100\">"
        "<Geometry.Level>4</Geometry.Level><Object.Definition" +
        kAttributes + ">" + kHead +
        "<Object.Data/></Object.Definition></InternalComponentDefinition></E>");
    mDefinition->setId(&kOwnId);
    mDefinition->getPoints()->newZelObject(-1);
    EXPECT_TRUE(mDefinition->initWithXML(source.element(), false));
    EXPECT_EQ(mDefinition->getGeometryLevel(), 4);
    EXPECT_EQ(*mDefinition->getId(), kOwnId);
    EXPECT_STREQ(mDefinition->getClass(), "ZelObject");
    EXPECT_EQ(mDefinition->getPoints()->size(), 1) << "the mesh is left alone";

    mDefinition->setClass("ModelObject");
    EXPECT_TRUE(mDefinition->initWithXML(source.element(), true));
    EXPECT_EQ(*mDefinition->getId(), CZelUUID("FFEEDDCCBBAA99887766554433221100"));
}

TEST_F(DefinitionXml, AComponentAloneNeedsItsWrapper)
{
    struct {
        const char* xml;
        const char* failure;
    } cases[] = {
        {"<E><Object.Definition/></E>", "CZelZelObjectDefinition::initWithXML : "
                                        "cannot find internal component definition node"},
        {"<E><InternalComponentDefinition/></E>", "CZelXMLGet::GetUUID - NULL ptr for tag UUID"},
        {"<E><InternalComponentDefinition UUID=\"FFEEDDCCBBAA99887766554433221100\"/></E>",
         "CZelXMLGet::GetElement - NULL ptr for tag Geometry.Level"},
    };
    for (const auto& [xml, failure] : cases) {
        const CTestElement source(xml);
        EXPECT_FALSE(mDefinition->initWithXML(source.element(), true));
        EXPECT_EQ(
            mDocument.takeMessages(),
            CMessages{"Exception in CZelXMLBasicData::initWithXML : " + std::string(failure)});
    }
    mDefinition->setClass("ZelObject");
    const CTestElement source(cases[0].xml);
    EXPECT_TRUE(mDefinition->initWithXML(source.element(), true)) << "another class has no wrapper";
}

TEST_F(DefinitionXml, ANullElementIsAFailure)
{
    EXPECT_EQ(mDefinition->putInXML(nullptr), nullptr);
    EXPECT_FALSE(mDefinition->initWithXML(nullptr, true));
    EXPECT_EQ(mDocument.takeMessages(),
              (CMessages{"Exception in CZelXMLBasicData::putInXML : Unknown exception",
                         "Exception in CZelXMLBasicData::initWithXML : Unknown exception"}));
}
