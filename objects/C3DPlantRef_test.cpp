#include "objects/C3DPlantRef.h"

#include "objects/C3DPlantGroupInstances.h"
#include "objects/CPlantSetUp.h"
#include "tests/support/accessors.h"
#include "tests/support/checkElement.h"
#include "tests/support/messageOf.h"

#include <zel/IZelGroupInstances.h>
#include <zel/IZelZelObjectInstance.h>

using namespace OvZel;
using namespace ZelTest;
using OrvaneXML::XIXMLElement;

namespace {

const char* const kClasses[] = {"3DPlant", "3DPlantGroupInstances"};

std::string date(const char* tag, int month)
{
    return "<" + std::string(tag) + "><Month>" + std::to_string(month) +
           "</Month><Day>2</Day><Hour>3</Hour><Minute>4</Minute><Year>1995</Year></" + tag + ">";
}

TZelComPtr<CZelObjectInstance> plant(const char* text, const std::string& data)
{
    TZelComPtr instance(new CZelObjectInstance(nullptr));
    const CTestElement source(data);
    instance->data().copyFrom(*source.element());
    instance->setClass(text);
    return instance;
}

std::string savedData(CZelObjectInstance& instance)
{
    instance.prepareForWrite();
    const CTestElement target;
    instance.data().copyInto(*target.element());
    return target.text().substr(target.text().find("<E>"));
}

const CZelUUID kId("0123456789ABCDEF0123456789ABCDEF");

void makeSetUpPlain(CPlantSetUp& setUp)
{
    setUp.setId(kId);
    for (IZelTime* time : {setUp.getStartTime(), setUp.getEndTime()}) {
        time->setYear(2001);
        time->setMonth(1);
        time->setDay(1);
        time->setHour(0);
        time->setMinute(0);
    }
}

std::string plainDate(const std::string& tag)
{
    return "<" + tag +
           "><Month>1</Month><Day>1</Day><Hour>0</Hour><Minute>0</Minute><Year>2001"
           "</Year></" +
           tag + ">";
}

} // namespace

TEST(PlantRef, ANewOneIsNotAttachedAndHasNoColour)
{
    for (const char* text : kClasses) {
        const CTime before;
        const auto instance = plant(text, "<Instance.Data/>");
        IZel3DPlantRef* ref = instance->as3DPlantRef();
        ASSERT_NE(ref, nullptr);
        EXPECT_FALSE(ref->getHeliodonAttached());
        EXPECT_EQ(ref->getColor(), -1);
        EXPECT_GE(ref->getTime()->getYear(), before.getYear());
        EXPECT_EQ(std::as_const(*ref).getTime(), ref->getTime());
        expectAccessors<IZel3DPlantRef>(*ref, {ACCESS(IZel3DPlantRef, HeliodonAttached, true),
                                               ACCESS(IZel3DPlantRef, Color, 77)});
    }
}

TEST(PlantRefXml, FileForm)
{
    const std::string full = "<Heliodon.Attached/>" + date("Time", 6);
    for (const char* text : kClasses) {
        const auto instance =
            plant(text, "<Instance.Data Color=\"LightBlue\">" + full + "</Instance.Data>");
        EXPECT_TRUE(instance->as3DPlantRef()->getHeliodonAttached());
        EXPECT_EQ(instance->as3DPlantRef()->getColor(), 5);
        EXPECT_EQ(instance->as3DPlantRef()->getTime()->getMonth(), 6);
        EXPECT_EQ(instance->as3DPlantRef()->getTime()->getYear(), 1995);
        const std::string saved = savedData(*instance);
        EXPECT_NE(saved.find(full + "</Instance.Data>"), std::string::npos) << saved;
        EXPECT_NE(saved.find(" Color=\"LightBlue\">"), std::string::npos) << saved;
        EXPECT_EQ(savedData(*instance), saved) << "a second save changes nothing";
        instance->as3DPlantRef()->setHeliodonAttached(false);
        EXPECT_EQ(savedData(*instance).find("Heliodon"), std::string::npos);
    }
}

TEST(PlantRefXml, TheGroupSavesNoLists)
{
    const auto group =
        plant("3DPlantGroupInstances", "<Instance.Data><Url>a</Url></Instance.Data>");
    EXPECT_EQ(savedData(*group).find("<E><Instance.Data Color=\"Undefined\"><Url>a</Url><Time>"),
              0U);
    EXPECT_STREQ(group->asGroupInstances()->getUrl(), "a");
    const auto single = plant("3DPlant", "<Instance.Data/>");
    const std::string zero(32, '0');
    EXPECT_EQ(savedData(*single).find("<E><Instance.Data Current.Overload=\"" + zero +
                                      "\" External.Definition.Id=\"" + zero +
                                      "\" Color=\"Undefined\"><Properties/><Lights/><Time>"),
              0U);
}

TEST(PlantRefXml, TheFirstMissingItemEndsTheReading)
{
    const struct {
        const char* data;
        bool attached;
        int color;
        bool hasMonth;
        bool hasYear;
    } cases[] = {
        {"<Instance.Data Color=\"Red\"><Heliodon.Attached/></Instance.Data>", true, -1, false,
         false},
        {"<Instance.Data Color=\"Red\"><Time><Month>6</Month></Time></Instance.Data>", false, -1,
         true, false},
        {"<Instance.Data Color=\"Mauve\"><Time><Month>6</Month><Day>1</Day><Hour>1</Hour><Minute>1"
         "</Minute><Year>1995</Year></Time></Instance.Data>",
         false, -1, true, true},
        {"<Instance.Data Color=\"Undefined\"><Time><Month>6</Month><Day>1</Day><Hour>1</Hour>"
         "<Minute>1</Minute></Time></Instance.Data>",
         false, -1, true, false},
        {"<Instance.Data Color=\"Brown\"><Time><Month>6</Month><Day>1</Day><Hour>1</Hour>"
         "<Minute>1</Minute><Year>1995</Year></Time></Instance.Data>",
         false, 8, true, true},
    };
    for (const char* text : kClasses)
        for (const auto& each : cases) {
            SCOPED_TRACE(each.data);
            const auto instance = plant(text, each.data);
            const IZel3DPlantRef& ref = *instance->as3DPlantRef();
            EXPECT_EQ(ref.getHeliodonAttached(), each.attached);
            EXPECT_EQ(ref.getColor(), each.color);
            if (each.hasMonth) {
                EXPECT_EQ(ref.getTime()->getMonth(), 6) << "its parts are set one by one";
            }
            EXPECT_EQ(ref.getTime()->getYear() == 1995, each.hasYear);
        }
}

TEST(PlantRefXml, AColourWithoutLabelFailsTheSave)
{
    for (const char* text : kClasses) {
        const auto instance = plant(text, "<Instance.Data/>");
        instance->as3DPlantRef()->setColor(9);
        instance->as3DPlantRef()->setHeliodonAttached(true);
        EXPECT_EQ(messageOf([&] { instance->prepareForWrite(); }),
                  "No label for the value (9) [Undefined..Brown]");
        instance->setClass(text);
        EXPECT_TRUE(instance->as3DPlantRef()->getHeliodonAttached()) << "saved before the failure";
        instance->as3DPlantRef()->setColor(-1);
        EXPECT_NE(savedData(*instance).find("Color=\"Undefined\""), std::string::npos);
    }
}

TEST(PlantSetUp, ANewOne)
{
    CPlantSetUp setUp;
    EXPECT_FALSE(setUp.getId().isNull());
    EXPECT_FALSE(setUp.getId() == CPlantSetUp().getId());
    EXPECT_EQ(setUp.getColor(), -1);
    EXPECT_NE(setUp.getStartTime(), setUp.getEndTime());
    EXPECT_EQ(std::as_const(setUp).getStartTime(), setUp.getStartTime());
    EXPECT_EQ(std::as_const(setUp).getEndTime(), setUp.getEndTime());
    using I = IZel3DPlant::IPlantSetUp;
    expectAccessors<I>(setUp, {ACCESS(I, Color, 12), ACCESS(I, Id, kId)});
}

TEST(PlantSetUpXml, FileForm)
{
    const CRow start = required(raw("StartTime", date("StartTime", 3), plainDate("StartTime")),
                                "CZelXMLGet::CZelXMLGet - NULL ptr");
    const CRow end = required(raw("EndTime", date("EndTime", 9), plainDate("EndTime")),
                              "CZelXMLGet::CZelXMLGet - NULL ptr");
    const CRow color = required(oneOf(attribute("Color", "DarkBlue", "Undefined"),
                                      {"Undefined", "White", "Red", "Orange", "Rose", "Purple",
                                       "LightBlue", "DarkBlue", "Yellow", "Brown"}),
                                "CZelXMLGet::GetAttributeLabel - NULL ptr for tag Color");
    const CRow id = required(
        attribute("Id", "FEDCBA9876543210FEDCBA9876543210", "0123456789ABCDEF0123456789ABCDEF"),
        "CZelXMLGet::GetUUID - NULL ptr for tag Id");
    checkElement("Plant.Setup", {start, end, color, id}, [](CTestDocument&) {
        auto setUp = std::make_unique<CPlantSetUp>();
        makeSetUpPlain(*setUp);
        return setUp;
    });
}

TEST(PlantSetUpXml, EveryColourHasItsLabel)
{
    const char* const labels[] = {"Undefined", "White",     "Red",      "Orange", "Rose",
                                  "Purple",    "LightBlue", "DarkBlue", "Yellow", "Brown"};
    CTestDocument document;
    CZelXMLIO io(document.ref(), true);
    for (int color = -1; color <= 8; ++color) {
        CPlantSetUp setUp;
        setUp.setColor(color);
        const CTestElement target;
        setUp.addTo(io, CZelXMLAdd(target.element()));
        EXPECT_STREQ(CZelXMLGet(target.element()).GetOptionalAttribute("Color"), labels[color + 1]);
        CPlantSetUp other;
        other.getFrom(io, CZelXMLGet(target.element()));
        EXPECT_EQ(other.getColor(), color);
    }
    CPlantSetUp setUp;
    const CTestElement source("<E Color=\"Mauve\">" + date("StartTime", 1) + date("EndTime", 1) +
                              "</E>");
    EXPECT_EQ(messageOf([&] { setUp.getFrom(io, CZelXMLGet(source.element())); }),
              "Invalid label (Mauve) [Undefined..Brown]");
}
