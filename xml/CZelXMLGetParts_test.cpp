#include "xml/CZelXMLGet.h"

#include "core/CPlace.h"
#include "core/CTable.h"
#include "core/CTime.h"
#include "core/CZelUUIDX.h"
#include "core/TObjectMgr.h"
#include "tests/support/CTestBlockHost.h"
#include "tests/support/CTestElement.h"
#include "tests/support/messageOf.h"
#include "tests/support/textOf.h"
#include "xml/CZelXMLAdd.h"

#include <gtest/gtest.h>

#include <vector>

using namespace OvZel;
using ZelTest::CTestBlockHost;
using ZelTest::CTestElement;
using ZelTest::messageOf;
using ZelTest::textOf;

namespace {

using CIdList = TObjectMgr<CZelUUIDX, CZelUUID>;

constexpr const char* kNoChild = "CZelXMLGet::CZelXMLGet - NULL ptr";

std::vector<double> numbers(const CZelPoint& p)
{
    return {p.x, p.y, p.z};
}

std::vector<int> bytes(const CZelColor& color)
{
    return {color.bytes[0], color.bytes[1], color.bytes[2], color.bytes[3]};
}

/// Month, day, hour, minute, year.
std::vector<int> parts(const CTime& time)
{
    return {time.getMonth(), time.getDay(), time.getHour(), time.getMinute(), time.getYear()};
}

CTime someTime()
{
    CTime time(10);
    time.setDay(11);
    time.setHour(12);
    time.setMinute(13);
    time.setYear(1414);
    return time;
}

std::vector<float> values(const CTable& table)
{
    std::vector<float> all;
    for (std::int32_t i = 0; i < table.getLength(); ++i)
        all.push_back(table.getValue(i));
    return all;
}

std::vector<std::string> texts(CIdList& list)
{
    std::vector<std::string> all;
    for (std::int32_t i = 0; i < list.getNbObjects(); ++i)
        all.push_back(textOf(*list.getZelObject(i)));
    return all;
}

} // namespace

TEST(ZelXMLGetParts, PlainVectorsNeedEachCoordinate)
{
    const CTestElement document("<E X=\"1\" Y=\"2\" Z=\"3\"/>");
    const CZelXMLGet in(document.element());
    EXPECT_EQ(in.GetCoord2D(), (std::array<double, 2>{1, 2}));
    EXPECT_EQ(numbers(in.GetCoord3D()), (std::vector<double>{1, 2, 3}));

    const CTestElement flat("<E X=\"1\" Y=\"2\"/>");
    EXPECT_EQ(messageOf([&] { CZelXMLGet(flat.element()).GetCoord3D(); }),
              "CZelXMLGet::GetFmtAttribute - NULL ptr for tag Z");
    const CTestElement thin("<E X=\"1\"/>");
    EXPECT_EQ(messageOf([&] { CZelXMLGet(thin.element()).GetCoord2D(); }),
              "CZelXMLGet::GetFmtAttribute - NULL ptr for tag Y");
}

TEST(ZelXMLGetParts, VectorsPassThroughTheReadTransform)
{
    CTestBlockHost host;
    const double matrix[16] = {0, 1, 0, 0, -1, 0, 0, 0, 0, 0, 2, 0, 10, 20, 30, 1};
    host.blockMgrRef().setMatrix(matrix);
    const IZelMgrRef* ref = &host.blockMgrRef();
    const CTestElement document("<E><A X=\"1\" Y=\"2\" Z=\"3\"/></E>");
    const CZelXMLGet in(document.element());
    EXPECT_EQ(numbers(in.GetPoint("A", ref)), (std::vector<double>{8, 21, 36}));
    EXPECT_EQ(numbers(in.GetVector("A", ref)), (std::vector<double>{-2, 1, 6}));
    EXPECT_EQ(numbers(in.GetDirection("A", ref)), (std::vector<double>{-2, 1, 6}));
    EXPECT_EQ(numbers(CZelXMLGet(in.GetElement("A")).GetCoord3D()), (std::vector<double>{1, 2, 3}));
}

TEST(ZelXMLGetParts, AMissingCoordinateKeepsTheStart)
{
    CTestBlockHost host;
    const IZelMgrRef* ref = &host.blockMgrRef();
    const CTestElement document("<E><A Y=\"2\"/><B X=\"1\" Z=\"text\"/></E>");
    const CZelXMLGet in(document.element());
    EXPECT_EQ(numbers(in.GetPoint("A", ref)), (std::vector<double>{0, 2, 0}));
    EXPECT_EQ(numbers(in.GetVector("A", ref)), (std::vector<double>{0, 2, 0}));
    EXPECT_EQ(numbers(in.GetDirection("A", ref)), (std::vector<double>{0, 2, 1}));
    // An attribute that is there but holds no number is 0.
    EXPECT_EQ(numbers(in.GetDirection("B", ref)), (std::vector<double>{1, 0, 0}));

    EXPECT_EQ(messageOf([&] { in.GetPoint("C", ref); }), kNoChild);
    EXPECT_EQ(messageOf([&] { in.GetVector("C", ref); }), kNoChild);
    EXPECT_EQ(messageOf([&] { in.GetDirection("C", ref); }), kNoChild);
}

TEST(ZelXMLGetParts, TrianglesKeepTheirCorners)
{
    CTestBlockHost host;
    const double triangle[9] = {1, 2, 3, 4, 5, 6, 7, 8, 9};
    CTestElement document;
    CZelXMLAdd(document.element()).AddTriangle(triangle);
    const CZelXMLGet in(document.element());
    const auto same = in.GetTriangle(&host.blockMgrRef());
    EXPECT_TRUE(std::equal(same.begin(), same.end(), triangle));

    const double matrix[16] = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 100, 0, 0, 1};
    host.blockMgrRef().setMatrix(matrix);
    const auto moved = in.GetTriangle(&host.blockMgrRef());
    EXPECT_EQ(moved, (std::array<double, 9>{101, 2, 3, 104, 5, 6, 107, 8, 9}));

    for (const char* xml : {"<E/>", "<E><Triangle><Pt.0/><Pt.1/></Triangle></E>",
                            "<E><Triangle><Pt.1/><Pt.2/></Triangle></E>"}) {
        const CTestElement bad(xml);
        EXPECT_EQ(messageOf([&] { CZelXMLGet(bad.element()).GetTriangle(&host.blockMgrRef()); }),
                  kNoChild);
    }
}

TEST(ZelXMLGetParts, ColorsHaveTwoForms)
{
    struct {
        const char* xml;
        std::vector<int> color;
    } const cases[] = {
        {"<E><A R=\"1\" G=\"2\" B=\"255\"/></E>", {0, 1, 2, 255}},
        {"<E><A><Red>1</Red><Green>2</Green><Blue>255</Blue></A></E>", {0, 1, 2, 255}},
        {"<E><A R=\"256\" G=\"-1\" B=\"515\"/></E>", {0, 0, 255, 3}},
        {"<E><A R=\"x\" G=\"\" B=\"9\"/></E>", {0, 0, 0, 9}},
        {"<E><A R=\"1\" G=\"2\" B=\"3\"><Red>4</Red></A></E>", {0, 1, 2, 3}},
    };
    for (const auto& test : cases) {
        const CTestElement document(test.xml);
        EXPECT_EQ(bytes(CZelXMLGet(document.element()).GetColor("A")), test.color) << test.xml;
    }
}

TEST(ZelXMLGetParts, AColorWithAMissingPartFails)
{
    struct {
        const char* xml;
        const char* message;
    } const cases[] = {
        {"<E/>", kNoChild},
        {"<E><A R=\"1\" B=\"1\"/></E>", "CZelXMLGet::GetFmtAttribute - NULL ptr for tag G"},
        {"<E><A/></E>", "CZelXMLGet::GetElement - NULL ptr for tag Red"},
        {"<E><A><Red>1</Red></A></E>", "CZelXMLGet::GetElement - NULL ptr for tag Green"},
        {"<E><A><Red>1</Red><Green/></A></E>", "CZelXMLGet::GetInteger - NULL ptr"},
    };
    for (const auto& test : cases) {
        const CTestElement document(test.xml);
        EXPECT_EQ(messageOf([&] { CZelXMLGet(document.element()).GetColor("A"); }), test.message);
    }
}

TEST(ZelXMLGetParts, AWrittenColorComesBack)
{
    CTestElement document;
    CZelXMLAdd(document.element()).AddColor("A", CZelColor{{77, 1, 2, 3}});
    EXPECT_EQ(bytes(CZelXMLGet(document.element()).GetColor("A")), (std::vector<int>{0, 1, 2, 3}));
}

TEST(ZelXMLGetParts, AMatrixComesBackToSixDecimals)
{
    double matrix[16];
    for (int i = 0; i < 16; ++i)
        matrix[i] = i + 1.0 / 3.0;
    CTestElement document;
    CZelXMLAdd(document.element()).AddZelMatrix("A", matrix);
    const auto again = CZelXMLGet(document.element()).GetZelMatrix("A");
    for (std::size_t i = 0; i < 16; ++i)
        EXPECT_EQ(again[i], static_cast<double>(i) + 0.333333) << i;
}

TEST(ZelXMLGetParts, MatrixLinesCountByTheirOrder)
{
    const CTestElement document("<E><A><Line Index=\"3\">1,2,3,4</Line><X/><Line>5, 6, 7, 8</Line>"
                                "<Line>9, 10, 11, 12</Line><Line>13, 14, 15, 16</Line>"
                                "<Line>bad</Line></A></E>");
    EXPECT_EQ(CZelXMLGet(document.element()).GetZelMatrix("A"),
              (std::array<double, 16>{1, 5, 9, 13, 2, 6, 10, 14, 3, 7, 11, 15, 4, 8, 12, 16}));
}

TEST(ZelXMLGetParts, ABadMatrixFails)
{
    const char* const noLine = "CZelXMLGet::GetZelMatrix - NULL ptr";
    const char* const badLine = "CZelXMLGet::GetZelMatrix - Assertion failed for tag A";
    struct {
        const char* xml;
        const char* message;
    } const cases[] = {
        {"<E/>", "CZelXMLGet::GetElement - NULL ptr for tag A"},
        {"<E><A/></E>", noLine},
        {"<E><A><Line>1, 2, 3, 4</Line><Line>1, 2, 3, 4</Line><Line>1, 2, 3, 4</Line></A></E>",
         noLine},
        {"<E><A><Line/></A></E>", noLine},
        {"<E><A><Line>1, 2, 3</Line></A></E>", badLine},
        {"<E><A><Line>1 2 3 4</Line></A></E>", badLine},
        {"<E><A><Line>text</Line></A></E>", badLine},
    };
    for (const auto& test : cases) {
        const CTestElement document(test.xml);
        EXPECT_EQ(messageOf([&] { CZelXMLGet(document.element()).GetZelMatrix("A"); }),
                  test.message)
            << test.xml;
    }
}

TEST(ZelXMLGetParts, DatesAreClippedPartByPart)
{
    struct {
        const char* children;
        std::vector<int> time;
        const char* message;
    } const cases[] = {
        {"<Month>1</Month><Day>2</Day><Hour>3</Hour><Minute>4</Minute><Year>-5</Year>",
         {1, 2, 3, 4, -5},
         "no exception"},
        {"<Day>31</Day><Month>2</Month><Hour>24</Hour><Minute>60</Minute>",
         {2, 29, 23, 59, 1414},
         "no exception"},
        {"<Month>13</Month><Day>0</Day><Hour>-1</Hour><Minute>-1</Minute>",
         {12, 1, 0, 0, 1414},
         "no exception"},
        {"<Month>1</Month><Day>2</Day><Minute>4</Minute><Year>5</Year>",
         {1, 2, 12, 13, 1414},
         "CZelXMLGet::GetElement - NULL ptr for tag Hour"},
        {"<Month>1</Month><Day>2</Day><Hour>3</Hour><Year>5</Year>",
         {1, 2, 3, 13, 1414},
         "CZelXMLGet::GetElement - NULL ptr for tag Minute"},
        {"<Day>2</Day>", {10, 11, 12, 13, 1414}, "CZelXMLGet::GetElement - NULL ptr for tag Month"},
        {"<Month>1</Month>",
         {1, 11, 12, 13, 1414},
         "CZelXMLGet::GetElement - NULL ptr for tag Day"},
        {"<Month>1</Month><Day>2</Day><Hour>3</Hour><Minute>4</Minute><Year/>",
         {1, 2, 3, 4, 1414},
         "CZelXMLGet::GetInteger - NULL ptr"},
    };
    for (const auto& test : cases) {
        const CTestElement document(std::string("<E><T>") + test.children + "</T></E>");
        CTime time = someTime();
        EXPECT_EQ(messageOf([&] { CZelXMLGet(document.element()).GetDate("T", time); }),
                  test.message);
        EXPECT_EQ(parts(time), test.time) << test.children;
    }
    const CTestElement document;
    CTime time = someTime();
    EXPECT_EQ(messageOf([&] { CZelXMLGet(document.element()).GetDate("T", time); }), kNoChild);
}

TEST(ZelXMLGetParts, OldTimeZonesAreHours)
{
    struct {
        int zone, longitude, result;
    } const cases[] = {
        {60, 0, 60},
        {60, 5000, 60},
        {2, 120, 120},
        {2, 1200, 2},
        {12, 900, 720},
        {13, 900, 13},
        {12, 901, 12},
        {-12, -900, -720},
        {-13, -900, -13},
        {-12, -901, -12},
        {0, 0, 0},
        {-2147483647 - 1, 0, -2147483647 - 1},
        {2, -2147483647 - 1, 2},
    };
    for (const auto& test : cases) {
        const CTestElement document("<E><Place><Longitude>" + std::to_string(test.longitude) +
                                    "</Longitude><Latitude>-7</Latitude><TimeZone>" +
                                    std::to_string(test.zone) +
                                    "</TimeZone><Daylight/></Place></E>");
        CPlace place;
        CZelXMLGet(document.element()).GetPlace(place);
        EXPECT_EQ(place.getLongitude(), test.longitude);
        EXPECT_EQ(place.getLatitude(), -7);
        EXPECT_EQ(place.getTimeZone(), test.result) << test.zone << " at " << test.longitude;
        EXPECT_TRUE(place.getDaylight());
    }
}

TEST(ZelXMLGetParts, PlacesNeedTheirNumbers)
{
    struct {
        const char* xml;
        const char* message;
    } const cases[] = {
        {"<E/>", kNoChild},
        {"<E><Place><Latitude>1</Latitude><TimeZone>1</TimeZone></Place></E>",
         "CZelXMLGet::GetElement - NULL ptr for tag Longitude"},
        {"<E><Place><Longitude>1</Longitude><TimeZone>1</TimeZone></Place></E>",
         "CZelXMLGet::GetElement - NULL ptr for tag Latitude"},
        {"<E><Place><Longitude>1</Longitude><Latitude>1</Latitude></Place></E>",
         "CZelXMLGet::GetElement - NULL ptr for tag TimeZone"},
    };
    for (const auto& test : cases) {
        const CTestElement document(test.xml);
        CPlace place;
        place.setDaylight(true);
        EXPECT_EQ(messageOf([&] { CZelXMLGet(document.element()).GetPlace(place); }), test.message);
        EXPECT_TRUE(place.getDaylight());
    }
}

TEST(ZelXMLGetParts, TablesTakeTheLengthOfTheFile)
{
    struct {
        const char* xml;
        std::vector<float> values;
        const char* message;
    } const cases[] = {
        {"<E><T Length=\"0\"/></E>", {}, "no exception"},
        {"<E><T Length=\"-1\"><Float>1</Float></T></E>", {}, "no exception"},
        {"<E><T Length=\"text\"/></E>", {}, "no exception"},
        {"<E><T Length=\"2\"><Float>1.5</Float><X/><Float>text</Float><Float>3</Float></T></E>",
         {1.5F, 0.0F},
         "no exception"},
        {"<E><T Length=\"1\"><Float>0.1</Float></T></E>", {0.1F}, "no exception"},
        {"<E><T Length=\"2147483647\"><Float>1</Float></T></E>",
         {1.0F},
         "CZelXMLGet::GetTable 1 - NULL ptr"},
        {"<E><T Length=\"2\"><Float>1</Float><Float/></T></E>",
         {1.0F, 0.0F},
         "CZelXMLGet::GetTable 2 - NULL ptr"},
        {"<E><T/></E>", {9.0F}, "CZelXMLGet::GetFmtAttribute - NULL ptr for tag Length"},
        {"<E/>", {9.0F}, "CZelXMLGet::GetElement - NULL ptr for tag T"},
    };
    for (const auto& test : cases) {
        const CTestElement document(test.xml);
        const TZelComPtr<CTable> table(new CTable(nullptr));
        table->setLength(1);
        table->setValue(0, 9.0F);
        EXPECT_EQ(messageOf([&] { CZelXMLGet(document.element()).GetTable("T", *table); }),
                  test.message);
        EXPECT_EQ(values(*table), test.values) << test.xml;
    }
}

TEST(ZelXMLGetParts, IdentifierListsHaveTwoForms)
{
    const std::string a(32, 'A'), b(32, 'B'), c(32, 'C');
    struct {
        std::string xml;
        std::vector<std::string> ids;
        const char* message;
    } const cases[] = {
        {"<E/>", {}, "no exception"},
        {"<E><L/></E>", {}, "no exception"},
        {"<E><L><I UUID='" + a + "'/><X UUID='" + b + "'/><I UUID='" + c + "'/></L></E>",
         {a, c},
         "no exception"},
        {"<E><L><I UUID='" + a + "'/><I/><I UUID='" + c + "'/></L></E>",
         {a},
         "CZelXMLGet::GetUUID - NULL ptr for tag UUID"},
        {"<E><L><I UUID='" + a + "'/><I UUID='x'/></L></E>",
         {a},
         "CZelUUID::Hex2Int: Invalid hex value"},
        // The oldest form: attributes, from "UUID" on.
        {"<E><L First='x' UUID='" + a + "' UUID='" + b + "' Other='" + c + "'><I UUID='" + c +
             "'/></L></E>",
         {a, b, c},
         "no exception"},
        {"<E><L Other='" + c + "'><I UUID='" + a + "'/></L></E>", {a}, "no exception"},
        {"<E><L UUID='" + a + "' Other='x'/></E>", {a}, "CZelUUID::Hex2Int: Invalid hex value"},
    };
    for (const auto& test : cases) {
        const CTestElement document(test.xml);
        const TZelComPtr<CIdList> list(new CIdList(nullptr));
        list->newZelObject(-1);
        list->newZelObject(-1);
        EXPECT_EQ(messageOf([&] { CZelXMLGet(document.element()).GetIdList("L", "I", *list); }),
                  test.message);
        EXPECT_EQ(texts(*list), test.ids) << test.xml;
    }
}

namespace {

/// A list that is out of memory.
class CFullList : public CIdList {
public:
    CFullList() : CIdList(nullptr) {}
    CZelUUID* newZelObject(std::int32_t) override { return nullptr; }
};

} // namespace

TEST(ZelXMLGetParts, AListThatCannotGrowIsAFailure)
{
    const CTestElement document("<E><L><I UUID='00000000000000000000000000000000'/></L></E>");
    const TZelComPtr<CFullList> list(new CFullList);
    EXPECT_EQ(messageOf([&] { CZelXMLGet(document.element()).GetIdList("L", "I", *list); }),
              "CZelXMLGet::GetIdList - NULL ptr");
}
