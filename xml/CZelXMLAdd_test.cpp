#include "xml/CZelXMLAdd.h"

#include "core/CPlace.h"
#include "core/CTable.h"
#include "core/CTime.h"
#include "core/CZelString.h"
#include "core/CZelUUIDX.h"
#include "core/TObjectMgr.h"
#include "tests/support/CForeignElement.h"
#include "tests/support/CTestElement.h"
#include "tests/support/messageOf.h"

#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <string>

using namespace OvZel;
using OrvaneXML::XCXMLKey;
using OrvaneXML::XIXMLElement;
using ZelTest::CTestElement;
using ZelTest::messageOf;

namespace {

using CIdList = TObjectMgr<CZelUUIDX, CZelUUID>;

constexpr CZelLabel kLabels[] = {{"Zero", 0}, {"One", 1}, {"Uno", 1}, {"Two", 2}, {nullptr, 0}};
constexpr CZelLabel kNoLabels[] = {{nullptr, 0}};

/// An element that gives no children.
class CBarrenElement : public ZelTest::CForeignElement {
public:
    using CForeignElement::CForeignElement;

    XIXMLElement* AddElement(XCXMLKey) override { return nullptr; }
};

/// What the document element "E" looks like after the action.
std::string added(const std::function<void(const CZelXMLAdd&)>& action, const char* before = "<E/>")
{
    CTestElement document(before);
    action(CZelXMLAdd(document.element()));
    return document.text();
}

} // namespace

TEST(ZelXMLAdd, WritesEveryPlainValue)
{
    struct {
        std::function<void(const CZelXMLAdd&)> action;
        std::string text;
    } const cases[] = {
        {[](auto& out) { out.AddElement("A"); }, "<E><A/></E>"},
        {[](auto& out) { out.AddBoolean("A", true); }, "<E><A/></E>"},
        {[](auto& out) { EXPECT_EQ(out.AddBoolean("A", false), nullptr); }, "<E/>"},
        {[](auto& out) { out.AddInteger("A", -2147483647 - 1); }, "<E><A>-2147483648</A></E>"},
        {[](auto& out) { out.AddInteger64("A", -9223372036854775807 - 1); },
         "<E><A>-9223372036854775808</A></E>"},
        {[](auto& out) { out.AddDouble("A", 1.5); }, "<E><A>1.500000</A></E>"},
        {[](auto& out) { out.AddDouble("A", 0.0000005); }, "<E><A>0.000000</A></E>"},
        {[](auto& out) { out.AddDouble("A", 1e22); },
         "<E><A>10000000000000000000000.000000</A></E>"},
        {[](auto& out) { out.AddDouble("A", std::numeric_limits<double>::infinity()); },
         "<E><A>inf</A></E>"},
        {[](auto& out) { out.AddFloat("A", 0.1F); }, "<E><A>0.100000</A></E>"},
        {[](auto& out) { out.AddFloat("A", 16777216.5F); }, "<E><A>16777216.000000</A></E>"},
        {[](auto& out) { out.AddText("A", "a<b"); }, "<E><A>a&lt;b</A></E>"},
        {[](auto& out) { out.AddText("A", ""); }, "<E><A/></E>"},
        {[](auto& out) { out.AddText("A", nullptr); }, "<E><A/></E>"},
        {[](auto& out) { out.AddFmtData("A", "%08X %s", 0xABCU, "x"); },
         "<E><A>00000ABC x</A></E>"},
        {[](auto& out) { out.AddAttribute("N", "text"); }, "<E N=\"text\"/>"},
        {[](auto& out) { out.AddFmtAttribute("N", "%d", 7); }, "<E N=\"7\"/>"},
        {[](auto& out) { out.AddAttributeLabel("N", kLabels, 1); }, "<E N=\"One\"/>"},
        {[](auto& out) { out.AddUUID("N", CZelUUID("0123456789abcdef0123456789abcdef")); },
         "<E N=\"0123456789ABCDEF0123456789ABCDEF\"/>"},
    };
    for (const auto& test : cases)
        EXPECT_EQ(added(test.action), test.text);
}

TEST(ZelXMLAdd, ChildrenKeepTheOrderOfTheCalls)
{
    EXPECT_EQ(added([](auto& out) {
                  out.AddInteger("B", 1);
                  out.AddInteger("A", 2);
                  out.AddInteger("B", 3);
              }),
              "<E><B>1</B><A>2</A><B>3</B></E>");
}

TEST(ZelXMLAdd, ReuseReplacesEveryChildOfTheName)
{
    EXPECT_EQ(added([](auto& out) { out.ReuseElement("A"); }, "<E><A>1</A><B/><A>2</A><C/></E>"),
              "<E><B/><C/><A/></E>");
    EXPECT_EQ(added([](auto& out) { out.ReuseElement("A"); }, "<E><B/></E>"), "<E><B/><A/></E>");
    EXPECT_EQ(added([](auto& out) { out.DestroyElements("A"); }, "<E><A/><B/><A/><A/></E>"),
              "<E><B/></E>");
}

TEST(ZelXMLAdd, AnAttributeThatIsThereGetsTheNewValue)
{
    const char* const before = "<E N=\"old\" M=\"m\"/>";
    EXPECT_EQ(added([](auto& out) { out.AddAttribute("N", "new"); }, before),
              "<E N=\"new\" M=\"m\"/>");
    EXPECT_EQ(added([](auto& out) { out.AddFmtAttribute("N", "%d", 1); }, before),
              "<E N=\"1\" M=\"m\"/>");
    EXPECT_EQ(added([](auto& out) { out.AddAttributeLabel("N", kLabels, 0); }, before),
              "<E N=\"Zero\" M=\"m\"/>");
    EXPECT_EQ(added([](auto& out) { out.AddUUID("N", CZelUUID()); }, before),
              "<E N=\"00000000000000000000000000000000\" M=\"m\"/>");
}

TEST(ZelXMLAdd, AFormattedValueHasAtMost2047Characters)
{
    const std::string fits(2047, 'x');
    const std::string tooLong(2048, 'x');
    EXPECT_EQ(added([&](auto& out) { out.AddFmtData("A", "%s", fits.c_str()); }),
              "<E><A>" + fits + "</A></E>");
    EXPECT_EQ(added([&](auto& out) { out.AddFmtAttribute("N", "%s", fits.c_str()); }),
              "<E N=\"" + fits + "\"/>");

    CTestElement document;
    const CZelXMLAdd out(document.element());
    const char* text = tooLong.c_str();
    EXPECT_EQ(messageOf([&] { out.AddFmtData("A", "%s", text); }),
              "CZelXMLAdd::AddFmtData - Assertion failed for tag A");
    EXPECT_EQ(messageOf([&] { out.AddFmtData(nullptr, "%s", text); }),
              "CZelXMLAdd::AddFmtData - Assertion failed");
    EXPECT_EQ(messageOf([&] { out.AddFmtAttribute("N", "%s", text); }),
              "CZelXMLAdd::AddFmtAttribute - Assertion failed for tag N");
    EXPECT_EQ(messageOf([&] { out.AddFmtAttribute(nullptr, "%s", text); }),
              "CZelXMLAdd::AddFmtAttribute - Assertion failed");
    EXPECT_EQ(messageOf([&] { out.AddFmtData("A", "%g", 1.0); }),
              "CZelXMLAdd::AddFmtData - Assertion failed for tag A");
    EXPECT_EQ(document.text(), "<E/>");
}

TEST(ZelXMLAdd, ATextValueHasNoLimit)
{
    const std::string text(100'000, 'x');
    EXPECT_EQ(added([&](auto& out) { out.AddText("A", text.c_str()); }),
              "<E><A>" + text + "</A></E>");
    EXPECT_EQ(added([&](auto& out) { out.AddAttribute("N", text.c_str()); }),
              "<E N=\"" + text + "\"/>");
}

TEST(ZelXMLAdd, ANumberWithoutLabelNamesTheRange)
{
    CTestElement document;
    const CZelXMLAdd out(document.element());
    EXPECT_EQ(messageOf([&] { out.AddAttributeLabel("N", kLabels, -3); }),
              "No label for the value (-3) [Zero..Two]");
    EXPECT_EQ(messageOf([&] { out.AddAttributeLabel("N", kNoLabels, 3); }),
              "No label for the value (3) [..]");
}

TEST(ZelXMLAdd, WritesEveryValueThatHasParts)
{
    const double triangle[9] = {1, 2, 3, 4, 5, 6, 7, 8, 9};
    double matrix[16];
    for (int i = 0; i < 16; ++i)
        matrix[i] = i;
    struct {
        std::function<void(const CZelXMLAdd&)> action;
        std::string text;
    } const cases[] = {
        {[](auto& out) {
             out.AddColor("A", CZelColor{{9, 255, 2, 3}});
         },
         "<E><A R=\"255\" G=\"2\" B=\"3\"/></E>"},
        {[](auto& out) { out.AddCoord2D("Vector2D", 1, -2); },
         "<E><Vector2D X=\"1.000000\" Y=\"-2.000000\"/></E>"},
        {[](auto& out) {
             out.AddCoord3D("A", CZelPoint{1, 2, 3});
         },
         "<E><A X=\"1.000000\" Y=\"2.000000\" Z=\"3.000000\"/></E>"},
        {[&](auto& out) { out.AddTriangle(triangle); },
         "<E><Triangle><Pt.0 X=\"1.000000\" Y=\"2.000000\" Z=\"3.000000\"/>"
         "<Pt.1 X=\"4.000000\" Y=\"5.000000\" Z=\"6.000000\"/>"
         "<Pt.2 X=\"7.000000\" Y=\"8.000000\" Z=\"9.000000\"/></Triangle></E>"},
        {[&](auto& out) { out.AddZelMatrix("A", matrix); },
         "<E><A><Line Index=\"0\">0.000000, 4.000000, 8.000000, 12.000000</Line>"
         "<Line Index=\"1\">1.000000, 5.000000, 9.000000, 13.000000</Line>"
         "<Line Index=\"2\">2.000000, 6.000000, 10.000000, 14.000000</Line>"
         "<Line Index=\"3\">3.000000, 7.000000, 11.000000, 15.000000</Line></A></E>"},
    };
    for (const auto& test : cases)
        EXPECT_EQ(added(test.action), test.text);
}

TEST(ZelXMLAdd, WritesDatesAndPlaces)
{
    CTime time(2);
    time.setDay(3);
    time.setHour(4);
    time.setMinute(5);
    time.setYear(-6);
    EXPECT_EQ(added([&](auto& out) { out.AddDate("A", time); }),
              "<E><A><Month>2</Month><Day>3</Day><Hour>4</Hour><Minute>5</Minute>"
              "<Year>-6</Year></A></E>");
    CPlace place;
    place.setLongitude(1);
    place.setLatitude(-2);
    place.setTimeZone(60);
    EXPECT_EQ(added([&](auto& out) { out.AddPlace(place); }),
              "<E><Place><Longitude>1</Longitude><Latitude>-2</Latitude>"
              "<TimeZone>60</TimeZone></Place></E>");
    place.setDaylight(true);
    EXPECT_EQ(added([&](auto& out) { out.AddPlace(place); }),
              "<E><Place><Longitude>1</Longitude><Latitude>-2</Latitude>"
              "<TimeZone>60</TimeZone><Daylight/></Place></E>");
}

TEST(ZelXMLAdd, WritesTables)
{
    const TZelComPtr<CTable> table(new CTable(nullptr));
    EXPECT_EQ(added([&](auto& out) { out.AddTable("A", *table); }), "<E><A Length=\"0\"/></E>");
    table->setLength(2);
    table->setValue(1, 0.5F);
    EXPECT_EQ(added([&](auto& out) { out.AddTable("A", *table); }),
              "<E><A Length=\"2\"><Float>0.000000</Float><Float>0.500000</Float></A></E>");
}

TEST(ZelXMLAdd, WritesTheTextsOfLanguages)
{
    CZelString string(nullptr);
    EXPECT_EQ(added([&](auto& out) { out.AddLanguages("A", string); }), "<E><A/></E>");
    string.setText(0x6672, "f");
    string.setText(0x656E, "e");
    string.setText(0x2F65, "no letter in front");
    string.setText(0x6531, "no letter behind");
    string.setText(0x01656E, "more than two");
    string.setText(0x65, "only one");
    string.setText(0x5A61, "");
    EXPECT_EQ(added([&](auto& out) { out.AddLanguages("A", string); }),
              "<E><A fr=\"f\" en=\"e\" Za=\"\"/></E>");
}

TEST(ZelXMLAdd, WritesListsOfIdentifiers)
{
    const TZelComPtr<CIdList> list(new CIdList(nullptr));
    const auto add = [&](auto& out) { out.AddIdList("L", "I", *list); };
    EXPECT_EQ(added(add, "<E><L><I/></L><B/><L/></E>"), "<E><B/></E>");
    list->newZelObject(-1)->bytes[15] = 1;
    list->newZelObject(-1)->bytes[15] = 2;
    EXPECT_EQ(added(add, "<E><L><I/></L><B/><L/></E>"),
              "<E><B/><L><I UUID=\"00000000000000000000000000000001\"/>"
              "<I UUID=\"00000000000000000000000000000002\"/></L></E>");
}

TEST(ZelXMLAdd, AnElementThatCannotBeMadeIsNamed)
{
    EXPECT_EQ(messageOf([] { CZelXMLAdd(nullptr); }), "CZelXMLAdd::CZelXMLAdd - NULL ptr");

    const char* const constructor = "CZelXMLAdd::CZelXMLAdd - NULL ptr";
    const char* const element = "CZelXMLAdd::AddElement - NULL ptr for tag A";
    const double numbers[16] = {};
    const TZelComPtr<CTable> table(new CTable(nullptr));
    const TZelComPtr<CIdList> list(new CIdList(nullptr));
    list->newZelObject(-1);
    struct {
        std::function<void(const CZelXMLAdd&)> action;
        const char* message;
    } const cases[] = {
        {[](auto& out) { out.AddElement("A"); }, element},
        {[](auto& out) { out.AddElement(nullptr); }, "CZelXMLAdd::AddElement - NULL ptr"},
        {[](auto& out) { out.ReuseElement("A"); }, element},
        {[](auto& out) { out.AddFmtData("A", "x"); }, element},
        {[](auto& out) { out.AddColor("A", CZelColor()); }, constructor},
        {[](auto& out) { out.AddCoord3D("A", CZelPoint()); }, constructor},
        {[&](auto& out) { out.AddTriangle(numbers); }, constructor},
        {[&](auto& out) { out.AddZelMatrix("A", numbers); }, constructor},
        {[](auto& out) { out.AddDate("A", CTime(1)); }, constructor},
        {[](auto& out) { out.AddPlace(CPlace()); }, constructor},
        {[&](auto& out) { out.AddTable("A", *table); }, constructor},
        {[](auto& out) { out.AddLanguages("A", CZelString(nullptr)); }, constructor},
        {[&](auto& out) { out.AddIdList("A", "I", *list); }, element},
    };
    const CTestElement document;
    CBarrenElement barren(*document.element());
    for (const auto& test : cases)
        EXPECT_EQ(messageOf([&] { test.action(CZelXMLAdd(&barren)); }), test.message);
}

TEST(ZelXMLAdd, WritesIntoAnElementOfAClientToo)
{
    const CTestElement own("<E N=\"old\"/>"), foreign("<E N=\"old\"/>");
    ZelTest::CForeignElement proxy(*foreign.element());
    for (const CZelXMLAdd& out : {CZelXMLAdd(own.element()), CZelXMLAdd(&proxy)}) {
        out.AddAttribute("N", "new");
        out.AddAttribute("M", nullptr);
        out.AddInteger("I", 5);
        out.AddCoord3D("P", {1, 2, 3});
        out.AddColor("C", CZelColor::rgb(1, 2, 3));
        out.DestroyElements("I");
    }
    EXPECT_EQ(foreign.text(), own.text());
}
