#include "animation/CZelInterpolatedValue.h"

#include "animation/CZelAnimatedElement.h"
#include "tests/support/accessors.h"
#include "tests/support/checkElement.h"
#include "tests/support/messageOf.h"
#include "tests/support/repeated.h"

using namespace OvZel;
using namespace ZelTest;

namespace {

const std::string kNullId(32, '0');
const std::string kId = "000102030405060708090A0B0C0D0E0F";

std::string keyFrame(int time, int value)
{
    return R"(<KeyFrame Type="Integer" Interpolation.Type="Linear"><Time>)" + std::to_string(time) +
           "</Time><Visible/><Value>" + std::to_string(value) +
           "</Value><CPBefore>0</CPBefore><CPAfter>0</CPAfter><AreLocked/></KeyFrame>";
}

std::string valueFile(const std::string& attributes, const std::string& content)
{
    return "<E><Interpolated.Value " + attributes + ">" + content + "</Interpolated.Value></E>";
}

template <class Object>
std::string read(CTestDocument& document, Object& object, const std::string& file)
{
    const CTestElement source(file);
    CZelXMLIO io(document.ref(), true);
    return messageOf([&] { object.getXML(io, source.element()); });
}

template <class Object>
std::string write(CTestDocument& document, Object& object)
{
    const CTestElement target;
    CZelXMLIO io(document.ref(), true);
    object.addXML(io, target.element());
    return target.text();
}

auto newValue()
{
    return [](CTestDocument& document) {
        auto value = std::make_unique<CZelInterpolatedValue>(document.ref());
        value->setChannel(1); // a new one cannot be written
        return value;
    };
}

} // namespace

TEST(InterpolatedValue, ANewOne)
{
    CZelInterpolatedValue value(nullptr);
    EXPECT_EQ(value.getChannel(), 0);
    EXPECT_EQ(value.getKeyFrames()->getNbObjects(), 0);
    EXPECT_EQ(value.getDefaultValue()->getValueType(), 4);
    EXPECT_FALSE(value.getLoop());
    EXPECT_EQ(value.getNbLoops(), 0);
    EXPECT_TRUE(value.getPathId().isNull());
    const CZelInterpolatedValue& constant = value;
    EXPECT_EQ(constant.getKeyFrames(), value.getKeyFrames());
    EXPECT_EQ(constant.getDefaultValue(), value.getDefaultValue());
}

TEST(InterpolatedValue, StoresWhatComes)
{
    using I = IZelInterpolatedValue;
    CZelInterpolatedValue value(nullptr);
    expectAccessors<I>(value, {ACCESS(I, Channel, -7), ACCESS(I, Loop, true),
                               ACCESS(I, NbLoops, -3), ACCESS(I, PathId, CZelUUID(kId.c_str()))});
}

TEST(InterpolatedValue, TheDefaultKeyFrameHasTheOwnerOfTheValue)
{
    CTestDocument document;
    CZelInterpolatedValue value(document.ref());
    EXPECT_EQ(value.getDefaultValue()->getOwnerLink(), value.getOwnerLink());
    EXPECT_EQ(value.getDefaultValue()->getMgrRef(), document.ref());
    value.getKeyFrames()->newZelObject(-1);
    EXPECT_EQ(value.getKeyFrames()->at(0)->getMgrRef(), document.ref());
}

TEST(InterpolatedValueXml, FileForm)
{
    const std::vector<CRow> rows = {
        required(ofKind(attribute("Type", "Roll", "Camera.Position"), "words Channels"),
                 "CZelXMLGet::GetAttributeLabel - NULL ptr for tag Type"),
        flag("Loop", false),
        optional(integer("Nb.Loops", 3, 0)),
        absentAlsoDrops(attribute("Path.Id", kId, kNullId), {"Nb.Loops"}),
        optional(raw("Default.Value", elementText("Default.Value", keyFrame(1, 2)),
                     elementText("Default.Value", keyFrame(0, 0)))),
        optional(raw("KeyFrames", elementText("KeyFrames", keyFrame(3, 4) + keyFrame(5, 6)),
                     "<KeyFrames/>")),
    };
    CForm form;
    form.readOrder = {"Type", "Loop", "Path.Id", "Nb.Loops", "Default.Value", "KeyFrames"};
    checkElement("Interpolated.Value", rows, newValue(), form);
}

TEST(InterpolatedValueXml, WithoutAPathTheNumberOfLoopsIsNotRead)
{
    CTestDocument document;
    CZelInterpolatedValue value(document.ref());
    EXPECT_EQ(read(document, value, valueFile("Type=\"Focal\"", "<Nb.Loops>5</Nb.Loops>")),
              "no exception");
    EXPECT_EQ(value.getNbLoops(), 0);
    EXPECT_EQ(
        read(document, value, valueFile("Type=\"Focal\" Path.Id=\"0G\"", "<Nb.Loops>5</Nb.Loops>")),
        "no exception");
    EXPECT_EQ(value.getNbLoops(), 0);
}

TEST(InterpolatedValueXml, AnEmptyDefaultValueLeavesTheKeyFrameAlone)
{
    CTestDocument document;
    CZelInterpolatedValue value(document.ref());
    value.getDefaultValue()->setTime(9);
    EXPECT_EQ(read(document, value, valueFile("Type=\"Focal\"", "<Default.Value/>")),
              "no exception");
    EXPECT_EQ(value.getDefaultValue()->getTime(), 9);
}

TEST(InterpolatedValueXml, AMissingListEmptiesTheOldOne)
{
    CTestDocument document;
    CZelInterpolatedValue value(document.ref());
    value.getKeyFrames()->newZelObject(-1);
    EXPECT_EQ(read(document, value, valueFile("Type=\"Focal\"", "")), "no exception");
    EXPECT_EQ(value.getKeyFrames()->getNbObjects(), 0);
}

TEST(InterpolatedValueXml, AChannelWithoutANameFails)
{
    CTestDocument document;
    for (const std::int32_t channel : {0, -1, 280}) {
        CZelInterpolatedValue value(document.ref());
        value.setChannel(channel);
        EXPECT_EQ(messageOf([&] { write(document, value); }),
                  "No label for the value (" + std::to_string(channel) +
                      ") [Camera.Position..Property.MonteCarlo.RefractionShininess]");
    }
    CZelInterpolatedValue value(document.ref());
    EXPECT_EQ(read(document, value, valueFile("Type=\"Nothing\"", "")),
              "Invalid label (Nothing) "
              "[Camera.Position..Property.MonteCarlo.RefractionShininess]");
}

TEST(InterpolatedValueXml, ManyKeyFramesComeBack)
{
    constexpr int kMany = 50'000;
    CTestDocument document;
    CZelInterpolatedValue value(document.ref());
    const std::string frames = pieces(kMany, [](int i) { return keyFrame(i, 2 * i); });
    ASSERT_EQ(read(document, value, valueFile("Type=\"Roll\"", elementText("KeyFrames", frames))),
              "no exception");
    ASSERT_EQ(value.getKeyFrames()->getNbObjects(), kMany);
    EXPECT_EQ(value.getKeyFrames()->getZelObject(kMany - 1)->getValue().integer, 2 * kMany - 2);
    EXPECT_NE(write(document, value).find(elementText("KeyFrames", frames)), std::string::npos);
}

TEST(AnimatedElement, ANewOne)
{
    using I = IZelAnimatedElement;
    CZelAnimatedElement element(nullptr);
    EXPECT_EQ(element.getElementType(), 0);
    EXPECT_TRUE(element.getId().isNull());
    EXPECT_EQ(element.getInterpolatedValues()->getNbObjects(), 0);
    const I& constant = element;
    EXPECT_EQ(constant.getInterpolatedValues(), element.getInterpolatedValues());
    expectAccessors<I>(element, {ACCESS(I, ElementType, 9), ACCESS(I, Id, CZelUUID(kId.c_str()))});
}

TEST(AnimatedElementXml, FileForm)
{
    const std::string value =
        R"(<Interpolated.Value Type="Roll" Path.Id=")" + kNullId + "\"><Nb.Loops>0</Nb.Loops>" +
        elementText("Default.Value", keyFrame(0, 0)) + "<KeyFrames/></Interpolated.Value>";
    const std::vector<CRow> rows = {
        required(oneOf(attribute("Type", "Mapping.Node", "Sequence"),
                       {"Sequence", "Light", "Heliodon", "Object", "Property", "Mapping.Node"}),
                 "CZelXMLGet::GetAttributeLabel - NULL ptr for tag Type"),
        required(attribute("UUID", kId, kNullId), "CZelXMLGet::GetUUID - NULL ptr for tag UUID"),
        optional(raw("Interpolated.Values", elementText("Interpolated.Values", value),
                     "<Interpolated.Values/>")),
    };
    for (const bool getUUID : {true, false}) { // the identifier names another object
        CForm form;
        form.getUUID = getUUID;
        checkElement(
            "Animated.Element", rows,
            [](CTestDocument& document) {
                auto element = std::make_unique<CZelAnimatedElement>(document.ref());
                element->setElementType(1);
                return element;
            },
            form);
    }
}

TEST(AnimatedElementXml, EveryKindHasItsName)
{
    const char* const labels[] = {"",       "Sequence", "Light",       "Heliodon",
                                  "Object", "Property", "Mapping.Node"};
    CTestDocument document;
    for (std::int32_t type = 1; type <= 6; ++type) {
        CZelAnimatedElement element(document.ref());
        element.setElementType(type);
        const std::string start =
            "<Animated.Element Type=\"" + std::string(labels[type]) + "\" UUID=\"" + kId + "\"";
        element.setId(CZelUUID(kId.c_str()));
        EXPECT_NE(write(document, element).find(start), std::string::npos);
        CZelAnimatedElement other(document.ref());
        EXPECT_EQ(read(document, other, "<E>" + start + "/></E>"), "no exception");
        EXPECT_EQ(other.getElementType(), type);
    }
    CZelAnimatedElement fresh(document.ref());
    EXPECT_EQ(messageOf([&] { write(document, fresh); }),
              "No label for the value (0) [Sequence..Mapping.Node]");
    EXPECT_EQ(read(document, fresh, "<E><Animated.Element Type=\"Sun\"/></E>"),
              "Invalid label (Sun) [Sequence..Mapping.Node]");
}
