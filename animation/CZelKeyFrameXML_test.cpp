#include "animation/CZelKeyFrame.h"
#include "tests/support/CTimeZone.h"
#include "tests/support/checkElement.h"
#include "tests/support/messageOf.h"

#include <cstring>

using namespace OvZel;
using namespace ZelTest;

namespace {

const std::string kNullId(32, '0');

/// The items of a key frame of one kind, which differ in the three values alone.
std::vector<CRow> keyFrameRows(const std::string& label, const std::vector<CRow>& values)
{
    std::vector<CRow> rows = {
        integer("Time", 7, 0),
        flag("Visible", true),
        oneOf(required(attribute("Type", label, label),
                       "CZelXMLGet::GetAttributeLabel - NULL ptr for tag Type"),
              {label}),
    };
    rows.insert(rows.end(), values.begin(), values.end());
    rows.push_back(absentAlsoDrops(
        oneOf(attribute("Interpolation.Type", "Bezier", "Linear"),
              {"Linear", "Square", "OneMinusSquare", "Sinus", "Bezier", "DateInterpolation"}),
        {"AreLocked"}));
    rows.push_back(flag("AreLocked", true));
    return rows;
}

void checkKind(std::int32_t type, const std::string& label, const std::vector<CRow>& values)
{
    SCOPED_TRACE(label);
    checkElement("KeyFrame", keyFrameRows(label, values),
                 [&](CTestDocument& document) {
                     auto frame = std::make_unique<CZelKeyFrame>(document.ref());
                     frame->setValueType(type);
                     return frame;
                 },
                 {.which = label});
}

CRow idRow(const std::string& name, const std::string& full)
{
    return required(attribute(name, full, kNullId),
                    "CZelXMLGet::GetUUID - NULL ptr for tag " + name);
}

std::string keyFrameFile(const std::string& type, const std::string& values,
                         const std::string& attributes = "")
{
    return "<E><KeyFrame Type=\"" + type + "\" " + attributes + "><Time>1</Time>" + values +
           "<AreLocked/></KeyFrame></E>";
}

std::string threeTimes(const std::string& text)
{
    return "<Value>" + text + "</Value><CPBefore>" + text + "</CPBefore><CPAfter>" + text +
           "</CPAfter>";
}

std::string read(CTestDocument& document, CZelKeyFrame& frame, const std::string& file,
                 const CZelVersion* version = nullptr)
{
    const CTestElement source(file);
    CZelXMLIO io(document.ref(), true);
    io.setFileVersion(version);
    return messageOf([&] { frame.getXML(io, source.element()); });
}

std::string textOf(CTestDocument& document, CZelKeyFrame& frame)
{
    const CTestElement target;
    CZelXMLIO io(document.ref(), true);
    frame.addXML(io, target.element());
    return target.text();
}

bool hasOnly(const IZelKeyFrame::uValue& value, const void* bytes, std::size_t size)
{
    unsigned char expected[24] = {};
    std::memcpy(expected, bytes, size);
    return std::memcmp(&value, expected, sizeof expected) == 0;
}

} // namespace

TEST(KeyFrameXml, FileFormOfEachKind)
{
    checkKind(0, "Coord3D",
              {xyz("Value", {1, 2, 3}, {0, 0, 0}), xyz("CPBefore", {4, 5, 6}, {0, 0, 0}),
               xyz("CPAfter", {7, 8, 9}, {0, 0, 0})});
    checkKind(1, "Color",
              {color("Value", {1, 2, 3}, {0, 0, 0}), color("CPBefore", {4, 5, 6}, {0, 0, 0}),
               color("CPAfter", {253, 254, 255}, {0, 0, 0})});
    checkKind(2, "Double",
              {real("Value", 1.5, 0), real("CPBefore", -2.5, 0), real("CPAfter", 3.5, 0)});
    checkKind(3, "Boolean",
              {flag("Value", false), flag("CPBefore", false), flag("CPAfter", false)});
    checkKind(4, "Integer",
              {integer("Value", -1, 0), integer("CPBefore", 2, 0), integer("CPAfter", 3, 0)});
    checkKind(5, "Date",
              {integer("Value", 5'000'000'000, 0), integer("CPBefore", -5'000'000'001, 0),
               integer("CPAfter", 3, 0)});
    checkKind(6, "UUID",
              {idRow("Value", "000102030405060708090A0B0C0D0E0F"),
               idRow("CPBefore", "101112131415161718191A1B1C1D1E1F"),
               idRow("CPAfter", "202122232425262728292A2B2C2D2E2F")});
    checkKind(7, "Enum",
              {integer("Value", 1, 0), integer("CPBefore", 2, 0), integer("CPAfter", 3, 0)});
}

TEST(KeyFrameXml, ANewOneWritesItsThreeZeros)
{
    CTestDocument document;
    CZelKeyFrame frame(document.ref());
    EXPECT_NE(textOf(document, frame).find(threeTimes("0")), std::string::npos);
}

TEST(KeyFrameXml, AFalseYesOrNoIsNotWritten)
{
    CTestDocument document;
    CZelKeyFrame frame(document.ref());
    frame.setValueType(3);
    const std::string text = textOf(document, frame);
    for (const char* tag : {"Value", "CPBefore", "CPAfter"})
        EXPECT_EQ(text.find(tag), std::string::npos) << text;
    IZelKeyFrame::uValue value;
    value.boolean = 2; // anything but 0 is true
    frame.setCPBefore(value);
    EXPECT_NE(textOf(document, frame).find("<CPBefore/>"), std::string::npos);
}

TEST(KeyFrameXml, ARealNumberHasThePrecisionOfAFloatAfterALoad)
{
    CTestDocument document;
    CZelKeyFrame frame(document.ref());
    ASSERT_EQ(read(document, frame, keyFrameFile("Double", threeTimes("0.1"))), "no exception");
    for (const auto* value : {&frame.getValue(), &frame.getCPBefore(), &frame.getCPAfter()}) {
        EXPECT_EQ(value->real, static_cast<double>(0.1F));
        EXPECT_NEAR(value->real, 0.100000001490116, 1e-15);
        EXPECT_NE(value->real, 0.1);
    }
    IZelKeyFrame::uValue precise;
    precise.real = 0.1;
    frame.setValue(precise);
    EXPECT_EQ(frame.getValue().real, 0.1); // a client's value stays as it is
}

TEST(KeyFrameXml, OldColoursHaveChildren)
{
    CTestDocument document;
    CZelKeyFrame frame(document.ref());
    const std::string rgb = "<Red>1</Red><Green>2</Green><Blue>3</Blue>";
    ASSERT_EQ(read(document, frame, keyFrameFile("Color", threeTimes(rgb))), "no exception");
    const unsigned char bytes[] = {1, 2, 3};
    EXPECT_TRUE(hasOnly(frame.getValue(), bytes, 3));
    EXPECT_TRUE(hasOnly(frame.getCPAfter(), bytes, 3));
}

TEST(KeyFrameXml, AValueIsClearedBeforeItIsRead)
{
    CTestDocument document;
    CZelKeyFrame frame(document.ref());
    IZelKeyFrame::uValue old;
    for (double& each : old.vector)
        each = 1.1;
    const auto fill = [&] {
        frame.setValue(old);
        frame.setCPBefore(old);
        frame.setCPAfter(old);
    };
    fill();
    ASSERT_EQ(read(document, frame, keyFrameFile("Integer", threeTimes("7"))), "no exception");
    const std::int32_t seven = 7;
    for (const auto* value : {&frame.getValue(), &frame.getCPBefore(), &frame.getCPAfter()})
        EXPECT_TRUE(hasOnly(*value, &seven, sizeof seven));

    fill();
    EXPECT_EQ(read(document, frame, keyFrameFile("Integer", "<Value>7</Value>")),
              "CZelXMLGet::GetElement - NULL ptr for tag CPBefore");
    EXPECT_TRUE(hasOnly(frame.getValue(), &seven, sizeof seven));
    EXPECT_TRUE(hasOnly(frame.getCPBefore(), &seven, 0));
    EXPECT_EQ(frame.getCPAfter().vector[2], 1.1);
}

TEST(KeyFrameXml, AVectorIsTransformedAsOneNotAsAPoint)
{
    const double matrix[16] = {0, -2, 0, 0, 2, 0, 0, 0, 0, 0, 2, 0, 10, 20, 30, 1};
    CTestDocument document;
    document.ref()->setMatrix(matrix);
    double vector[3] = {1, 2, 3}, point[3] = {1, 2, 3};
    document.ref()->transformVector(vector);
    document.ref()->transformPoint(point);
    ASSERT_NE(vector[2], point[2]);
    CZelKeyFrame frame(document.ref());
    const std::string xyz = " X=\"1\" Y=\"2\" Z=\"3\"/>";
    ASSERT_EQ(read(document, frame,
                   keyFrameFile("Coord3D", "<Value" + xyz + "<CPBefore" + xyz + "<CPAfter/>")),
              "no exception");
    EXPECT_TRUE(hasOnly(frame.getValue(), vector, sizeof vector));
    EXPECT_TRUE(hasOnly(frame.getCPBefore(), vector, sizeof vector));
}

TEST(KeyFrameXml, ABadInterpolationEndsTheReadingInSilence)
{
    for (const char* attributes : {"", "Interpolation.Type=\"Cubic\""}) {
        CTestDocument document;
        CZelKeyFrame frame(document.ref());
        frame.setInterpolationType(3);
        frame.setAreLocked(false);
        EXPECT_EQ(read(document, frame, keyFrameFile("Enum", threeTimes("5"), attributes)),
                  "no exception");
        EXPECT_EQ(frame.getValue().integer, 5);
        EXPECT_EQ(frame.getInterpolationType(), 3);
        EXPECT_FALSE(frame.getAreLocked()); // is there, but was not read
    }
}

TEST(KeyFrameXml, EveryInterpolationHasItsName)
{
    const char* const labels[] = {"Linear", "Square", "OneMinusSquare",
                                  "Sinus",  "Bezier", "DateInterpolation"};
    CTestDocument document;
    for (std::int32_t type = 0; type < 6; ++type) {
        CZelKeyFrame frame(document.ref());
        frame.setInterpolationType(type);
        const std::string attribute = "Interpolation.Type=\"" + std::string(labels[type]) + "\"";
        EXPECT_NE(textOf(document, frame).find(attribute), std::string::npos) << attribute;
        frame.setInterpolationType(-1);
        EXPECT_EQ(read(document, frame, keyFrameFile("Integer", threeTimes("0"), attribute)),
                  "no exception");
        EXPECT_EQ(frame.getInterpolationType(), type);
    }
}

TEST(KeyFrameXml, BadNumbersAndLabelsFail)
{
    CTestDocument document;
    for (const std::int32_t type : {-1, 8}) {
        CZelKeyFrame frame(document.ref());
        frame.setValueType(type);
        EXPECT_EQ(messageOf([&] { textOf(document, frame); }),
                  "CZelXMLIO::AddKeyFrame : Unknow value type");
    }
    CZelKeyFrame frame(document.ref());
    frame.setInterpolationType(6);
    EXPECT_EQ(messageOf([&] { textOf(document, frame); }),
              "No label for the value (6) [Linear..DateInterpolation]");
    EXPECT_EQ(read(document, frame, keyFrameFile("Float", threeTimes("0"))),
              "Invalid label (Float) [Double..Enum]");
}

TEST(KeyFrameXml, DatesOfOlderLibrariesAreLocal)
{
    const std::int64_t summer = 1120219200; // 1 July 2005, 12:00 universal time
    struct {
        CZelVersion version;
        bool isLocal;
    } const cases[] = {
        {{4, 9, 9}, true},  {{5, 0, 9}, true},  {{5, 1, 0}, true},
        {{5, 1, 1}, false}, {{5, 2, 0}, false}, {{6, 0, 0}, false},
    };
    struct {
        const char* zone;
        std::int64_t offset;
    } const zones[] = {{kParis, 3600}, {"EST5EDT,M4.1.0,M10.5.0", -5 * 3600}, {"UTC0", 0}};
    for (const auto& [zone, offset] : zones) {
        const CTimeZone set(zone);
        for (const auto& [version, isLocal] : cases) {
            CTestDocument document;
            CZelKeyFrame frame(document.ref());
            const std::string file = keyFrameFile("Date", threeTimes(std::to_string(summer)));
            ASSERT_EQ(read(document, frame, file, &version), "no exception");
            const std::int64_t expected = isLocal ? summer + offset : summer;
            EXPECT_EQ(frame.getValue().date, expected) << zone << " " << version.minor;
            EXPECT_EQ(frame.getCPBefore().date, expected);
            EXPECT_EQ(frame.getCPAfter().date, expected);
        }
    }
}

TEST(KeyFrameXml, DatesInMemoryAreUniversal)
{
    const CTimeZone set(kParis);
    CTestDocument document;
    CZelKeyFrame frame(document.ref());
    ASSERT_EQ(read(document, frame, keyFrameFile("Date", threeTimes("5000000000"))),
              "no exception");
    EXPECT_EQ(frame.getValue().date, 5'000'000'000);
}
