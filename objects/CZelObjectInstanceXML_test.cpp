#include "objects/CZelObjectInstance.h"

#include "tests/support/checkElement.h"
#include "tests/support/messageOf.h"

#include <zel/IZelAnimatedObjectInstance.h>
#include <zel/IZelBBObjectInstance.h>
#include <zel/IZelInternalComponentInstance.h>
#include <zel/IZelLight.h>
#include <zel/IZelProperty.h>
#include <zel/IZelZelObjectInstance.h>

#include <limits>

using namespace OvZel;
using namespace ZelTest;
using OrvaneXML::XIXMLElement;

namespace {

const char kOne[] = "11111111111111111111111111111111";
const char kTwo[] = "22222222222222222222222222222222";
const char kThree[] = "33333333333333333333333333333333";
const char kFour[] = "44444444444444444444444444444444";
const char kNull[] = "00000000000000000000000000000000";
const char kNoChild[] = "CZelXMLGet::CZelXMLGet - NULL ptr";
const char kNone[] = "no exception";

/// An instance in a file whose "Class" is read behind everything else and so stands apart.
class CWithoutClass {
public:
    explicit CWithoutClass(CTestDocument& document)
        : mInstance(new CZelObjectInstance(document.ref()))
    {
        const CZelUUID id(kNull);
        mInstance->setId(&id);
    }
    void addTo(CZelXMLIO& io, const CZelXMLAdd& out)
    {
        mInstance->addTo(io, out);
        out.DestroyElements("Class");
    }
    void getFrom(CZelXMLIO& io, const CZelXMLGet& in)
    {
        CZelXMLAdd(CZelXMLAdd(in.element()).AddElement("Class")).AddAttribute("en", "Unknown");
        mInstance->getFrom(io, in);
    }

private:
    TZelComPtr<CZelObjectInstance> mInstance;
};

/// The private data of an instance of one class, written and read by way of the whole instance.
class CDataOnly {
public:
    CDataOnly(CTestDocument& document, const char* text)
        : mInstance(new CZelObjectInstance(document.ref())), mClass(text)
    {
        mInstance->setClass(text);
    }
    XIXMLElement* addXML(CZelXMLIO& io, XIXMLElement* element)
    {
        const CTestElement whole;
        mInstance->addTo(io, CZelXMLAdd(whole.element()));
        const XIXMLElement* data = CZelXMLGet(whole.element()).GetElement("Instance.Data");
        return data->GetNode()->CloneInto(element)->AsElement();
    }
    bool getXML(CZelXMLIO& io, XIXMLElement* element)
    {
        const CTestElement whole("<E Id=\"" + std::string(kOne) + "\" Attach.Id=\"" + kOne +
                                 "\"><Name en=\"\"/><Class en=\"" + mClass + "\"/></E>");
        CZelXMLGet(element).GetElement("Instance.Data")->GetNode()->CloneInto(whole.element());
        mInstance->getFrom(io, CZelXMLGet(whole.element()));
        return true;
    }

private:
    TZelComPtr<CZelObjectInstance> mInstance;
    std::string mClass;
};

void checkData(const char* text, const std::vector<CRow>& rows, const CForm& form = {})
{
    SCOPED_TRACE(text);
    CForm named = form;
    named.which = text;
    checkElement(
        "Instance.Data", rows,
        [text](CTestDocument& document) { return std::make_unique<CDataOnly>(document, text); },
        named);
}

/// A required attribute.
CRow id(const std::string& name, const char* full)
{
    return required(attribute(name, full, kNull), "CZelXMLGet::GetUUID - NULL ptr for tag " + name);
}

CRow label(const std::string& name, const char* full, const char* fresh)
{
    return required(attribute(name, full, fresh),
                    "CZelXMLGet::GetAttributeLabel - NULL ptr for tag " + name);
}

CRow emptyList(const std::string& name)
{
    const CRow row = optional(raw(name, "<" + name + "/>", "<" + name + "/>"));
    return ofKind(row, name == "Lights" ? "list Light" : "list Property");
}

std::string box(double minimum, double maximum)
{
    const auto xyzOf = [](const std::string& name, double value) {
        const std::string text = std::to_string(value);
        return "<" + name + " X=\"" + text + "\" Y=\"" + text + "\" Z=\"" + text + "\"/>";
    };
    return "<Bounding.Box>" + xyzOf("Min.Point", minimum) + xyzOf("Max.Point", maximum) +
           "</Bounding.Box>";
}

std::string insideOut()
{
    return box(std::numeric_limits<double>::max(), std::numeric_limits<double>::min());
}

/// A file's instance with some texts in place of others, and what reading it said.
struct CRead {
    CTestDocument document;
    TZelComPtr<CZelObjectInstance> instance{new CZelObjectInstance(document.ref())};

    std::string read(const std::string& xml, bool getUUID = true)
    {
        const CTestElement source(xml);
        CZelXMLIO io(document.ref(), getUUID);
        return messageOf([&] { instance->getXML(io, source.element()); });
    }
    std::string written()
    {
        const CTestElement target;
        CZelXMLIO io(document.ref(), true);
        instance->addXML(io, target.element());
        return target.text().substr(target.text().find("<E>"));
    }
};

std::string with(std::string xml, const std::string& from, const std::string& to)
{
    const std::size_t place = xml.find(from);
    EXPECT_NE(place, std::string::npos) << from;
    return place == std::string::npos ? xml : xml.replace(place, from.size(), to);
}

/// What a new instance of the class writes.
std::string fresh(const char* text = "Unknown")
{
    CRead subject;
    subject.instance->setClass(text);
    return subject.written();
}

/// A new property's tree has no leaf, and an instance with it comes back only through a first save.
void fill(IZelProperty* property, const char* name)
{
    property->getBasicData()->setName(name);
    property->setDiffuseColor(CZelColor::rgb(1, 2, 3));
}

} // namespace

TEST(ObjectInstanceXml, FileForm)
{
    const std::vector<CRow> rows = {
        required(raw("Name", "<Name en=\"Chair\"/>", "<Name en=\"\"/>"), kNoChild),
        id("Id", kOne),
        id("Attach.Id", kTwo),
        xyz("Normal", {1, 0, 2}, {0, 0, 1}),
        xyz("Translation", {1, 2, 3}, {0, 0, 0}),
        xyz("Rotation", {4, 5, 6}, {0, 0, 0}),
        xyz("Scale", {7, 8, 9}, {1, 1, 1}),
        integer("Triangle.Id", 12, -1),
        xyz("Anchor.Position", {1, 3, 5}, {0, 0, 0}),
        xyz("Up.Vector", {1, 4, 5}, {0, 0, 1}),
        oneOf(label("Placement.Property", "Perpendicular", "Vertical"),
              {"Perpendicular", "Vertical"}),
        real("Initial.Angle", 1.25, 0.0),
        absentGives(raw("Bounding.Box", box(-2, 3), box(-1, 1)), insideOut()),
        integer("UIValue", 5, -1),
        flag("Coordinates.Locked", false),
        flag("Scale.Locked", false),
        optional(xyz("Current.Path.Direction", {6, 5, 4}, {0, 0, 0})),
        oneOf(attribute("Animation.Behavior", "FollowOnPathXY", "Normal"),
              {"Normal", "FollowOnPath", "FollowOnPathXY"}),
        flag("Target", false),
        alsoReads(optional(real("Transparency", 0.25, 0.0)), "<Tansparency>0.5</Tansparency>",
                  "<Transparency>0.500000</Transparency>"),
        attribute("Layer.Id", kThree, kNull),
        flag("Materials.Differents", false),
        flag("Visible", true),
        attribute("Overload.Id", kFour, kNull),
        flag("Optimised", false),
        flag("Sub.Instance", false),
        emptyList("Properties"),
        raw("Instance.Data", "<Instance.Data a=\"1\" b=\"\"><X>t<Y/></X><!--c--></Instance.Data>",
            "<Instance.Data/>"),
    };
    CForm form;
    form.readOrder = {"Instance.Data"};
    for (const CRow& row : rows)
        if (row.name != "Instance.Data")
            form.readOrder.push_back(row.name);
    form.guardedFrom = "Normal";
    checkElement(
        "Object.Instance", rows,
        [](CTestDocument& document) { return std::make_unique<CWithoutClass>(document); }, form);
}

TEST(ObjectInstanceXml, TheClassStandsBehindTheNameAndIsReadLast)
{
    EXPECT_NE(fresh().find("><Name en=\"\"/><Class en=\"Unknown\"/><Normal "), std::string::npos);
    const struct {
        const char* text;
        const char* message;
    } cases[] = {{"", kNoChild},
                 {"<Class fr=\"x\"/>", "CZelXMLGet::GetAttributeLanguage - NULL ptr"}};
    for (const auto& [text, message] : cases) {
        CRead subject;
        subject.instance->setClass("ZelObject");
        const std::string xml = with(fresh(), "<Class en=\"Unknown\"/>", text);
        EXPECT_EQ(subject.read(with(xml, "<UIValue>-1<", "<UIValue>8<")), message);
        EXPECT_EQ(subject.instance->getUIValue(), 8U) << "everything else is read";
        EXPECT_STREQ(subject.instance->getClass(), "ZelObject");
        EXPECT_NE(subject.instance->asZelObjectInstance(), nullptr);
    }
}

TEST(ObjectInstanceXml, ABrokenValueEndsTheBlockInSilence)
{
    const struct {
        const char* from;
        const char* to;
    } cases[] = {{"Placement.Property=\"Vertical\"", "Placement.Property=\"Sideways\""},
                 {"Animation.Behavior=\"Normal\"", "Animation.Behavior=\"Sideways\""},
                 {"<Min.Point ", "<Min "},
                 {"<Transparency>0.000000</Transparency>", "<Transparency/>"},
                 {"Layer.Id=\"00", "Layer.Id=\"xx"},
                 {"Overload.Id=\"00", "Overload.Id=\"xx"}};
    for (const auto& [from, to] : cases) {
        SCOPED_TRACE(to);
        CRead subject;
        const std::string xml =
            with(with(fresh(), from, to), "<Properties/>", "<Sub.Instance/><Properties/>");
        EXPECT_EQ(subject.read(xml), kNone);
        EXPECT_FALSE(subject.instance->getSubInstance());
        EXPECT_EQ(subject.instance->getBoundingBox().maximum.x, 1.0);
        EXPECT_STREQ(subject.instance->getClass(), "Unknown") << "what stands behind the block";
        EXPECT_EQ(subject.document.takeMessages(), std::vector<std::string>());
    }
}

TEST(ObjectInstanceXml, AFileWithoutTriangleLeavesTheInstanceVisible)
{
    CRead subject;
    const std::string xml = with(fresh(), "<Visible/>", "");
    EXPECT_EQ(subject.read(with(xml, "<Triangle.Id>-1</Triangle.Id>", "")), kNone);
    EXPECT_TRUE(subject.instance->getVisible());
    EXPECT_EQ(subject.instance->getTriangleId(), -1);
    EXPECT_EQ(subject.instance->getBoundingBox().minimum.x, -1.0);
    EXPECT_EQ(subject.read(xml), kNone);
    EXPECT_FALSE(subject.instance->getVisible());
}

TEST(ObjectInstanceXml, TheOldSpellingOfTransparencyWins)
{
    const std::string present = "<Transparency>0.000000</Transparency>";
    const struct {
        const char* text;
        double read;
    } cases[] = {
        {"<Tansparency>1.5</Tansparency>", 1.0},
        {"<Transparency>0.25</Transparency><Tansparency>0.5</Tansparency>", 0.5},
        {"<Tansparency>-3</Tansparency><Transparency>0.25</Transparency>", 0.0},
        {"<Transparency>7</Transparency>", 1.0},
        {"", 0.75},
    };
    for (const auto& [text, read] : cases) {
        CRead subject;
        subject.instance->setTransparency(0.75);
        EXPECT_EQ(subject.read(with(fresh(), present, text)), kNone);
        EXPECT_EQ(subject.instance->getTransparency(), read) << text;
        EXPECT_EQ(subject.written().find("Tansparency"), std::string::npos);
    }
}

TEST(ObjectInstanceXml, ReadingGoesThroughTheTransform)
{
    CRead subject;
    const double matrix[16] = {2, 0, 0, 0, 0, 2, 0, 0, 0, 0, 2, 0, 10, 20, 30, 1};
    subject.document.ref()->setMatrix(matrix);
    EXPECT_EQ(subject.read(fresh()), kNone);
    const CZelObjectInstance& instance = *subject.instance;
    EXPECT_EQ(instance.getNormal().z, 2.0);
    EXPECT_EQ(instance.getTranslation().x, 0.0) << "a translation isn't a point";
    EXPECT_EQ(instance.getScale().x, 2.0);
    EXPECT_EQ(instance.getRotation().x, 0.0);
    EXPECT_EQ(instance.getAnchorPosition().x, 10.0);
    EXPECT_EQ(instance.getUpVector().z, 2.0);
    EXPECT_EQ(instance.getBoundingBox().minimum.x, 8.0);
    EXPECT_EQ(instance.getBoundingBox().maximum.z, 32.0);
}

TEST(ObjectInstanceXml, AnUnknownClassKeepsItsData)
{
    CRead subject;
    const std::string data = "<Instance.Data q=\"1\"><Later><Than>this</Than></Later><Color "
                             "R=\"x\"/></Instance.Data>";
    const std::string xml = with(fresh("Hologram"), "<Instance.Data/>", data);
    EXPECT_EQ(subject.read(xml), kNone);
    EXPECT_STREQ(subject.instance->getClass(), "Hologram");
    EXPECT_NE(subject.written().find(data), std::string::npos);
    EXPECT_NE(subject.written().find(data), std::string::npos) << "a second time";
}

TEST(ObjectInstanceXml, ADelegateKeepsWhatItDoesNotKnow)
{
    CRead subject;
    const std::string xml =
        with(fresh("ModelObject"), "<Instance.Data ", "<Instance.Data Q=\"1\" ");
    EXPECT_EQ(subject.read(with(xml, "<Properties/></Instance.Data>",
                                "<Later/><Properties/><Properties/></Instance.Data>")),
              kNone);
    EXPECT_NE(subject.written().find("<Instance.Data Q=\"1\" Component.UUID=\"" +
                                     std::string(kNull) +
                                     "\"><Later/><Properties/></Instance.Data>"),
              std::string::npos)
        << subject.written();
}

TEST(ObjectInstanceXml, ALabelThatIsMissingFailsTheSave)
{
    const auto failure = [](auto&& change, const char* text = "") {
        CRead subject;
        subject.instance->setClass(text);
        change(*subject.instance);
        return messageOf([&] { subject.written(); });
    };
    EXPECT_EQ(failure([](CZelObjectInstance& it) { it.setPlacementProperty(2); }),
              "No label for the value (2) [Perpendicular..Vertical]");
    EXPECT_EQ(failure([](CZelObjectInstance& it) { it.setAnimationBehavior(3); }),
              "No label for the value (3) [Normal..FollowOnPathXY]");
    EXPECT_EQ(
        failure([](CZelObjectInstance& it) { it.asBBObjectInstance()->setKind(-1); }, "Billboard"),
        "No label for the value (-1) [Flat..Multiface]");
    EXPECT_EQ(failure([](CZelObjectInstance& it) { it.asBBObjectInstance()->setRenderType(2); },
                      "Billboard"),
              "No label for the value (2) [Normal..Display]");
}

TEST(ObjectInstanceXml, MaterialsComeBackWithTheirIdentifiersWhereTheyAreTaken)
{
    for (const bool getUUID : {true, false}) {
        CRead source;
        source.instance->setClass("AnimatedObject");
        fill(source.instance->getProperties()->newZelObject(-1), "own");
        fill(source.instance->asZelObjectInstance()->getProperties()->newZelObject(-1), "object");
        fill(source.instance->asAnimatedObjectInstance()->getOverloadedProperties()->newZelObject(
                 -1),
             "overload");
        source.instance->asZelObjectInstance()->getLights()->newZelObject(-1);

        CRead subject;
        EXPECT_EQ(subject.read(source.written(), getUUID), kNone);
        const auto idOf = [](auto* list) {
            EXPECT_EQ(list->getNbObjects(), 1);
            return *list->getZelObject(0)->getBasicData()->getId();
        };
        CZelObjectInstance& a = *source.instance;
        CZelObjectInstance& b = *subject.instance;
        EXPECT_EQ(idOf(a.getProperties()) == idOf(b.getProperties()), getUUID);
        EXPECT_EQ(idOf(a.asZelObjectInstance()->getProperties()),
                  idOf(b.asZelObjectInstance()->getProperties()))
            << "those of the private data always come back";
        EXPECT_EQ(idOf(a.asZelObjectInstance()->getLights()),
                  idOf(b.asZelObjectInstance()->getLights()));
        EXPECT_EQ(idOf(a.asAnimatedObjectInstance()->getOverloadedProperties()),
                  idOf(b.asAnimatedObjectInstance()->getOverloadedProperties()));
        EXPECT_STREQ(b.getProperties()->getZelObject(0)->getBasicData()->getName(), "own");
        EXPECT_EQ(*a.getId(), *b.getId()) << "its own identifier is always taken";
        EXPECT_EQ(subject.written() == source.written(), getUUID);

        EXPECT_EQ(subject.read(fresh()), kNone);
        EXPECT_EQ(b.getProperties()->getNbObjects(), 0) << "an empty list empties the list";
    }
}

TEST(ObjectInstanceXml, LightsOfTheDataAreTransformedOnlyWhileAFileIsRead)
{
    CRead source;
    source.instance->setClass("LightObject");
    source.instance->asZelObjectInstance()->getLights()->newZelObject(-1)->setPosition({1, 0, 0});
    const std::string xml = source.written();

    CRead subject;
    const double matrix[16] = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 10, 0, 0, 1};
    subject.document.ref()->setMatrix(matrix);
    EXPECT_EQ(subject.read(xml), kNone);
    const auto x = [&] {
        IZelZelObjectInstance* object = subject.instance->asZelObjectInstance();
        return object->getLights()->getZelObject(0)->getPosition().x;
    };
    EXPECT_EQ(x(), 11.0);
    subject.instance->setClass("ZelObject");
    EXPECT_EQ(x(), 1.0) << "the data are those of the file";
    double point[3] = {0, 0, 0};
    subject.document.ref()->transformPoint(point);
    EXPECT_EQ(point[0], 10.0) << "the transform is on again";
}

TEST(ObjectInstanceXml, ItsFileFormGoesThroughTheInterface)
{
    CTestDocument document;
    const TZelComPtr instance(new CZelObjectInstance(document.ref()));
    IZelBasicData* client = instance->getBasicData();
    const CTestElement target;
    XIXMLElement* written = client->putInXML(target.element());
    ASSERT_NE(written, nullptr);
    EXPECT_STREQ(written->GetKey(), "Object.Instance");
    EXPECT_NE(client->putInXML(target.element()), written) << "each is a child of its own";
    EXPECT_TRUE(client->initWithXML(target.element(), false));
    const CTestElement empty;
    EXPECT_FALSE(client->initWithXML(empty.element(), true));
    EXPECT_EQ(
        document.takeMessages(),
        std::vector<std::string>{"Exception in CZelXMLBasicData::initWithXML : "
                                 "CZelXMLGet::GetElement - NULL ptr for tag Object.Instance"});
}

TEST(InstanceDataXml, InternalComponent)
{
    checkData("ModelObject", {attribute("Component.UUID", kTwo, kNull), emptyList("Properties")});
}

namespace {

std::vector<CRow> zelObjectRows()
{
    return {attribute("Current.Overload", kOne, kNull),
            attribute("External.Definition.Id", kTwo, kNull), emptyList("Properties"),
            emptyList("Lights")};
}

std::vector<CRow> joined(std::vector<CRow> rows, const std::vector<CRow>& more)
{
    rows.insert(rows.end(), more.begin(), more.end());
    return rows;
}

} // namespace

TEST(InstanceDataXml, ZelObjectAndLightObject)
{
    checkData("ZelObject", zelObjectRows());
    checkData("LightObject", zelObjectRows());
}

TEST(InstanceDataXml, GroupInstancesSaveNothing)
{
    CRead subject;
    const std::string data = "<Instance.Data x=\"1\"><Url>a</Url></Instance.Data>";
    EXPECT_EQ(subject.read(with(fresh("GroupInstances"), "<Instance.Data/>", data)), kNone);
    EXPECT_NE(subject.written().find(data), std::string::npos);
}

TEST(InstanceDataXml, Billboard)
{
    CForm form;
    form.readOrder = {"Current.Overload",
                      "External.Definition.Id",
                      "Properties",
                      "Lights",
                      "Orient.With.Camera",
                      "Vertical.Flip",
                      "Horizontal.Flip",
                      "Render.Type",
                      "Shininess",
                      "Brightness",
                      "Roughness",
                      "Contrast",
                      "Kind",
                      "Definition.Size",
                      "Definition.Name",
                      "Current.Config",
                      "Overloaded.Properties"};
    form.guardedFrom = "Render.Type";
    checkData(
        "Billboard",
        joined(zelObjectRows(),
               {flag("Orient.With.Camera", false), flag("Vertical.Flip", false),
                flag("Horizontal.Flip", false),
                oneOf(label("Render.Type", "Normal", "Display"), {"Normal", "Display"}),
                real("Shininess", 0.25, 0.5), real("Roughness", 2, 700), real("Brightness", 3, 0),
                real("Contrast", 4, 1),
                oneOf(label("Kind", "Multiface", "Uniface"), {"Flat", "Uniface", "Multiface"}),
                real("Definition.Size", 5, 100), text("Definition.Name", "Oak", ""),
                integer("Current.Config", 6, 0),
                ofKind(raw("Overloaded.Properties", "<Overloaded.Properties/>",
                           "<Overloaded.Properties/>"),
                       "list Property")}),
        form);
}

TEST(InstanceDataXml, ABillboardRejectsTheOtherSpellingOfItsKind)
{
    CRead subject;
    const std::string xml = with(fresh("Billboard"), "Kind=\"Uniface\"", "Kind=\"Multifaces\"");
    EXPECT_EQ(subject.read(with(xml, "<Contrast>1", "<Contrast>2")), kNone);
    EXPECT_EQ(subject.instance->asBBObjectInstance()->getContrast(), 2.0);
    EXPECT_EQ(subject.instance->asBBObjectInstance()->getKind(), 1);
}

TEST(InstanceDataXml, AnimatedObject)
{
    CForm form;
    form.readOrder = {"Current.Overload", "External.Definition.Id", "Properties",
                      "Lights",           "Overloaded.Properties",  "Current.Frame",
                      "Current.Take",     "Real.Duration",          "Start.Frame"};
    form.guardedFrom = "Current.Frame";
    checkData(
        "AnimatedObject",
        joined(zelObjectRows(), {integer("Current.Frame", 2, 0), integer("Current.Take", 3, 0),
                                 integer("Real.Duration", 4, 0), integer("Start.Frame", 5, 0),
                                 emptyList("Overloaded.Properties")}),
        form);
}
