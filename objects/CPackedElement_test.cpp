#include "objects/CPackedElement.h"

#include "tests/support/CTestElement.h"
#include "tests/support/repeated.h"

#include <gtest/gtest.h>

using namespace OvZel;
using ZelTest::CTestElement;

TEST(PackedElement, ComesBackNodeForNode)
{
    const char* const texts[] = {
        "<E/>",
        "<E a=\"1\" b=\"\" a=\"2\"/>",
        "<E>text</E>",
        "<E a=\"&lt;\">one<B/>two<!--three--><?four five?></E>",
        "<E><A><B><C/></B></A><A/><A>t</A></E>",
        "<E><A/><B x=\"\"/></E>",
        "<E><?go?><3D.Thing/></E>",
        "<E Url=\"a\" url=\"b\" URL=\"c\"><Url/><Urls/><Time Kind=\"d\"><Year>1</Year></Time></E>",
        "<E><Year/><Month/><Instance.Data Component.UUID=\"\"/><Time/><Time/></E>",
        "<E><K k=\"k\">K</K><z z=\"z\"/></E>",
    };
    for (const char* text : texts) {
        const CTestElement source(text);
        CPackedElement packed;
        EXPECT_TRUE(packed.isEmpty());
        ASSERT_TRUE(packed.pack(*source.element())) << text;
        const CTestElement target("<T><!--first--></T>");
        const OrvaneXML::XIXMLElement* copy = packed.unpackInto(*target.element());
        EXPECT_STREQ(copy->GetKey(), "E");
        const std::string plain = source.text();
        const std::string start = plain.substr(0, plain.find("<E"));
        EXPECT_EQ(target.text(), start + "<T><!--first-->" + text + "</T>");
    }
}

TEST(PackedElement, KeepsATextThatIsEmpty)
{
    const CTestElement source("<E><A/></E>");
    source.element()->GetFirstElement()->AddText("");
    CPackedElement packed;
    ASSERT_TRUE(packed.pack(*source.element()));
    const CTestElement target;
    EXPECT_NE(packed.unpackInto(*target.element())->GetFirstElement()->GetFirstText(), nullptr);
}

TEST(PackedElement, RefusesASection)
{
    const CTestElement source("<E><A/><B/></E>");
    CPackedElement packed;
    ASSERT_TRUE(packed.pack(*source.element()));
    source.element()->GetFirstElement()->SetCData(new ZelTest::CBytes("bytes"));
    EXPECT_FALSE(packed.pack(*source.element()));
    const CTestElement target;
    packed.unpackInto(*target.element());
    EXPECT_NE(target.text().find("<E><E><A/><B/></E></E>"), std::string::npos);
}

TEST(PackedElement, TakesAsManyLevelsAsAFileMayHave)
{
    constexpr int kDepth = 9'999;
    const CTestElement source(ZelTest::repeated("<A>", kDepth) + "<B/>" +
                              ZelTest::repeated("</A>", kDepth));
    CPackedElement packed;
    ASSERT_TRUE(packed.pack(*source.element()));
    const CTestElement target;
    const OrvaneXML::XIXMLElement* element = packed.unpackInto(*target.element());
    for (int i = 0; i < kDepth; ++i) {
        ASSERT_STREQ(element->GetKey(), "A");
        element = element->GetFirstElement();
        ASSERT_NE(element, nullptr) << "below level " << i;
    }
    EXPECT_STREQ(element->GetKey(), "B");
}

TEST(PackedElement, TakesVeryManyAttributesAndChildren)
{
    const std::string texts[] = {
        "<E" + ZelTest::repeated(" a=\"b\"", 100'000) + "/>",
        "<E" + ZelTest::pieces(10'000, [](int i) { return " a" + std::to_string(i) + "=\"b\""; }) +
            "/>",
        "<E>" + ZelTest::repeated("<A/>", 100'000) + "</E>"};
    for (const std::string& text : texts) {
        const CTestElement source(text);
        CPackedElement packed;
        ASSERT_TRUE(packed.pack(*source.element()));
        const CTestElement target;
        packed.unpackInto(*target.element());
        EXPECT_TRUE(target.text().ends_with("<E>" + text + "</E>")) << text.substr(0, 20);
    }
}
