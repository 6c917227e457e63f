#include "xml/CZelXMLGet.h"

#include "core/CZelString.h"
#include "tests/support/CForeignElement.h"
#include "tests/support/CTestElement.h"
#include "tests/support/messageOf.h"
#include "xml/CZelXMLAdd.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>

using namespace OvZel;
using ZelTest::CTestElement;
using ZelTest::messageOf;

namespace {

constexpr CZelLabel kLabels[] = {{"Zero", 0}, {"One", 1}, {"Uno", 1}, {"Two", 2}, {nullptr, 0}};

/// The failure of an action on the document element.
std::string failure(const char* xml, const std::function<void(const CZelXMLGet&)>& action)
{
    const CTestElement document(xml);
    return messageOf([&] { action(CZelXMLGet(document.element())); });
}

} // namespace

TEST(ZelXMLGet, NamesWhatIsMissing)
{
    struct {
        const char* xml;
        std::function<void(const CZelXMLGet&)> action;
        const char* message;
    } const cases[] = {
        {"<E/>", [](auto& in) { in.GetElement("A"); },
         "CZelXMLGet::GetElement - NULL ptr for tag A"},
        {"<E/>", [](auto& in) { in.GetElement(nullptr); }, "CZelXMLGet::GetElement - NULL ptr"},
        {"<E/>", [](auto& in) { in.GetInteger("A"); },
         "CZelXMLGet::GetElement - NULL ptr for tag A"},
        {"<E/>", [](auto& in) { in.GetText("A"); }, "CZelXMLGet::GetElement - NULL ptr for tag A"},
        {"<E><A/></E>", [](auto& in) { in.GetInteger("A"); }, "CZelXMLGet::GetInteger - NULL ptr"},
        {"<E><A/></E>", [](auto& in) { in.GetInteger64("A"); },
         "CZelXMLGet::GetInteger64 - NULL ptr"},
        {"<E><A><B/></A></E>", [](auto& in) { in.GetDouble("A"); },
         "CZelXMLGet::GetDouble - NULL ptr"},
        {"<E><A></A></E>", [](auto& in) { in.GetFloat("A"); }, "CZelXMLGet::GetFloat - NULL ptr"},
        {"<E/>", [](auto& in) { CZelXMLGet::GetFmtData(in.element(), "x"); },
         "CZelXMLGet::GetFmtData - NULL ptr"},
        {"<E/>", [](auto&) { CZelXMLGet::GetFmtData(nullptr, "x"); },
         "CZelXMLGet::GetFmtData - NULL ptr"},
        {"<E/>", [](auto& in) { in.GetFmtAttribute("N", "x"); },
         "CZelXMLGet::GetFmtAttribute - NULL ptr for tag N"},
        {"<E/>", [](auto& in) { in.GetUUID("N"); }, "CZelXMLGet::GetUUID - NULL ptr for tag N"},
        {"<E/>", [](auto& in) { in.GetUUID(nullptr); }, "CZelXMLGet::GetUUID - NULL ptr"},
        {"<E/>", [](auto& in) { in.GetAttributeLabel("N", kLabels); },
         "CZelXMLGet::GetAttributeLabel - NULL ptr for tag N"},
        {"<E/>", [](auto& in) { in.GetAttributeLanguage("A"); },
         "CZelXMLGet::CZelXMLGet - NULL ptr"},
        {"<E><A fr=\"x\"/></E>", [](auto& in) { in.GetAttributeLanguage("A"); },
         "CZelXMLGet::GetAttributeLanguage - NULL ptr"},
        {"<E/>", [](auto&) { CZelXMLGet(nullptr); }, "CZelXMLGet::CZelXMLGet - NULL ptr"},
    };
    for (const auto& test : cases)
        EXPECT_EQ(failure(test.xml, test.action), test.message) << test.xml;
}

TEST(ZelXMLGet, ReadsElements)
{
    const CTestElement document("<E><A>1</A><B>text<C/></B><A>2</A></E>");
    const CZelXMLGet in(document.element());
    EXPECT_TRUE(in.IsElement("B")); // with text in it
    EXPECT_FALSE(in.IsElement("b"));
    EXPECT_EQ(in.FindElement("D"), nullptr);
    EXPECT_EQ(in.FindElement("A"), in.element()->GetFirstElement());
    EXPECT_EQ(in.GetElement("A"), in.FindElement("A"));
}

TEST(ZelXMLGet, ReadsNumbers)
{
    const CTestElement document("<E><I>-12</I><L>9223372036854775807</L><D> 1.25 </D>"
                                "<F>0.1</F><X>1e999</X><N>nan</N><T>text</T></E>");
    const CZelXMLGet in(document.element());
    EXPECT_EQ(in.GetInteger("I"), -12);
    EXPECT_EQ(in.GetInteger64("L"), 9223372036854775807);
    EXPECT_EQ(in.GetDouble("D"), 1.25);
    EXPECT_EQ(in.GetFloat("F"), 0.1F);
    EXPECT_TRUE(std::isinf(in.GetDouble("X")));
    EXPECT_TRUE(std::isnan(in.GetDouble("N")));
    // What is no number is 0.
    EXPECT_EQ(in.GetInteger("T"), 0);
    EXPECT_EQ(in.GetInteger64("T"), 0);
    EXPECT_EQ(in.GetDouble("T"), 0.0);
    EXPECT_EQ(in.GetFloat("T"), 0.0F);
}

TEST(ZelXMLGet, ATextNodeThatIsEmptyIsATextNode)
{
    const CTestElement document("<E><A/></E>");
    const CZelXMLGet in(document.element());
    in.GetElement("A")->AddText("");
    EXPECT_EQ(in.GetInteger("A"), 0);
}

TEST(ZelXMLGet, ReadsTexts)
{
    const CTestElement document("<E N=\"n\" M=\"\"><A>a &amp; b</A><B/><C en=\"c\" fr=\"d\"/></E>");
    const CZelXMLGet in(document.element());
    EXPECT_STREQ(in.GetText("A"), "a & b");
    EXPECT_STREQ(in.GetText("B"), "");
    EXPECT_STREQ(in.GetOptionalAttribute("N"), "n");
    EXPECT_STREQ(in.GetOptionalAttribute("M"), "");
    EXPECT_EQ(in.GetOptionalAttribute("O"), nullptr);
    EXPECT_STREQ(in.GetAttributeLanguage("C"), "c");
}

TEST(ZelXMLGet, ScansWithAFormat)
{
    const CTestElement document("<E N=\"5 6\">0000ABCD</E>");
    const CZelXMLGet in(document.element());
    unsigned handle = 0;
    EXPECT_EQ(CZelXMLGet::GetFmtData(in.element(), "%08X", &handle), 1);
    EXPECT_EQ(handle, 0xABCDU);
    int first = 0, second = 0;
    EXPECT_EQ(in.GetFmtAttribute("N", "%d %d", &first, &second), 2);
    EXPECT_EQ(second, 6);
}

TEST(ZelXMLGet, ReadsIdentifiersInEitherCase)
{
    const CTestElement document("<E A=\"0123456789abcdefABCDEF0123456789\" B=\"01\" "
                                "C=\"01234567-89ABCDEFABCDEF0123456789\"/>");
    const CZelXMLGet in(document.element());
    EXPECT_EQ(in.GetUUID("A"), CZelUUID("0123456789ABCDEFABCDEF0123456789"));
    for (const OrvaneXML::CXMLTag bad : {OrvaneXML::CXMLTag("B"), OrvaneXML::CXMLTag("C")})
        EXPECT_EQ(messageOf([&] { in.GetUUID(bad); }), "CZelUUID::Hex2Int: Invalid hex value");
}

TEST(ZelXMLGet, ReadsLabelsExactly)
{
    const CTestElement document("<E A=\"Two\" B=\"Uno\" C=\"two\" D=\"\"/>");
    const CZelXMLGet in(document.element());
    EXPECT_EQ(in.GetAttributeLabel("A", kLabels), 2);
    EXPECT_EQ(in.GetAttributeLabel("B", kLabels), 1);
    EXPECT_EQ(messageOf([&] { in.GetAttributeLabel("C", kLabels); }),
              "Invalid label (two) [Zero..Two]");
    EXPECT_EQ(messageOf([&] { in.GetAttributeLabel("D", kLabels); }),
              "Invalid label () [Zero..Two]");
    const CZelLabel none[] = {{nullptr, 0}};
    EXPECT_EQ(messageOf([&] { in.GetAttributeLabel("A", none); }), "Invalid label (Two) [..]");
}

TEST(ZelXMLGet, AMessageIsCutAt2047Characters)
{
    const CTestElement document("<E A=\"" + std::string(5000, 'x') + "\"/>");
    const CZelXMLGet in(document.element());
    EXPECT_EQ(messageOf([&] { in.GetAttributeLabel("A", kLabels); }),
              "Invalid label (" + std::string(2047 - 15, 'x'));
}

TEST(ZelXMLGet, ReadsTheTextsOfLanguages)
{
    const CTestElement document("<E><A fr=\"f\" en=\"e\" x=\"one\" eng=\"e2\"/><B/></E>");
    const CZelXMLGet in(document.element());
    CZelString string(nullptr);
    string.setText(0x6465, "old");

    in.GetLanguages("C", string); // absent: nothing changes
    EXPECT_STREQ(string.getText(0x6465), "old");

    in.GetLanguages("A", string);
    ASSERT_EQ(string.getNbTexts(), 3U);
    EXPECT_EQ(string.getLanguageKey(0), 0x6672U);
    EXPECT_STREQ(string.getText(0x656E), "e2"); // the first two letters count
    EXPECT_STREQ(string.getText(0x7800), "one");

    in.GetLanguages("B", string);
    EXPECT_EQ(string.getNbTexts(), 0U);
}

TEST(ZelXMLGet, LanguagesComeBack)
{
    CTestElement document;
    CZelString string(nullptr);
    string.setText(0x6672, "f");
    string.setText(0x656E, "");
    CZelXMLAdd(document.element()).AddLanguages("A", string);
    CZelString again(nullptr);
    CZelXMLGet(document.element()).GetLanguages("A", again);
    ASSERT_EQ(again.getNbTexts(), 2U);
    EXPECT_STREQ(again.getText(0x6672), "f");
    EXPECT_STREQ(again.getText(0x656E), "");
}

TEST(ZelXMLGet, ReadsAnElementOfAClientToo)
{
    const CTestElement document(
        "<E X=\"1.5\" Y=\"2\" Z=\"3\" U=\"0123456789ABCDEF0123456789ABCDEF\"><A>7</A></E>");
    ZelTest::CForeignElement proxy(*document.element());
    const CZelXMLGet in(&proxy);
    const CZelPoint point = in.GetCoord3D();
    EXPECT_EQ(point.x, 1.5);
    EXPECT_EQ(point.z, 3.0);
    EXPECT_EQ(in.GetInteger("A"), 7);
    EXPECT_FALSE(in.IsElement("B"));
    EXPECT_EQ(in.GetOptionalAttribute("V"), nullptr);
    EXPECT_EQ(in.GetUUID("U"), CZelUUID("0123456789ABCDEF0123456789ABCDEF"));
    std::string names;
    in.ForEachAttribute([&names](const char* name, const char*) { names += name; });
    EXPECT_EQ(names, "XYZU");
}
