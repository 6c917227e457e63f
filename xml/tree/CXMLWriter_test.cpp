#include "xml/tree/CXMLWriter.h"

#include "tests/support/messageOf.h"
#include "tests/support/xmlTree.h"

#include <gtest/gtest.h>

namespace OrvaneXML {

using namespace ZelTest;

namespace {

class XmlWriter : public testing::Test {
protected:
    XmlWriter() : top(tree.GetRoot()->AddElement(tree.GetRoot()->MakeKey("top"))) {}

    XIXMLElement* add(const char* name) { return top->AddElement(top->MakeKey(name)); }
    bool isRefused() const
    {
        CXMLTextTarget sink;
        const bool refused = messageOf([&] { tree.Write(&sink); }) != "no exception";
        EXPECT_TRUE(!refused || sink.text.empty());
        return refused;
    }

    XCXMLTree tree;
    XIXMLElement* top;
};

} // namespace

TEST_F(XmlWriter, EveryByteOfATextAndAValueComesBack)
{
    std::string all;
    for (int c = 1; c < 256; ++c)
        all += static_cast<char>(c);
    top->AddText(all.c_str());
    top->AddAttribute(top->MakeKey("x"), all.c_str());
    const CTreePtr again = readTree(written(tree));
    XIXMLElement* read = again->GetRoot()->GetFirstElement();
    EXPECT_EQ(read->GetFirstText()->GetText(), all);
    EXPECT_EQ(read->GetFirstAttribute()->GetValue(), all);
    EXPECT_EQ(written(*again), written(tree));
}

TEST_F(XmlWriter, Escapes)
{
    struct {
        const char *text, *inText, *inValue;
    } cases[] = {
        {"&<>\"'", "&amp;&lt;&gt;&quot;'", "&amp;&lt;&gt;&quot;'"},
        {"\t\n\r", "\t\n&#13;", "&#9;&#10;&#13;"},
        {"\x01\x1F\x7F", "&#1;&#31;&#127;", "&#1;&#31;&#127;"},
        {" x ", " x ", " x "},
        {"", "", ""},
    };
    for (const auto& item : cases) {
        top->GetNode()->SetText(item.text);
        top->AddAttribute(top->MakeKey("x"), item.text);
        const std::string body = item.inText;
        EXPECT_EQ(written(tree), std::string("<top x=\"") + item.inValue +
                                     (body.empty() ? "\"/>\n" : "\">" + body + "</top>\n"));
    }
}

TEST_F(XmlWriter, AnEmptyTreeIsAnEmptyFile)
{
    top->Destroy();
    EXPECT_EQ(written(tree), "");
}

TEST_F(XmlWriter, WhiteSpaceBetweenElementsIsKept)
{
    add("a");
    top->AddText(" \t");
    add("b")->AddAttribute(top->MakeKey("x"), "1");
    top->AddText("");
    top->AddText("\n");
    top->AddText(" ");
    const std::string once = written(tree);
    EXPECT_EQ(once, "<top><a/>&#32;\t<b x=\"1\"/>&#10; </top>\n");
    EXPECT_EQ(written(*readTree(once)), once);
}

TEST_F(XmlWriter, ATextThatIsEmptyAddsNothing)
{
    add("a")->AddText("");
    top->AddText("");
    EXPECT_EQ(written(tree), "<top>\n\t<a/>\n</top>\n");
}

TEST_F(XmlWriter, ACommentThatEndsInADashGetsABlank)
{
    top->AddComment("a--");
    EXPECT_EQ(written(tree), "<top><!--a-- --></top>\n");
    EXPECT_EQ(written(*readTree(written(tree))), written(tree));
}

TEST_F(XmlWriter, NamesThatXmlCannotHoldAreRefusedWhileTheyAreThere)
{
    for (const char* name :
         {"", "a b", "a\tb", "a\nb", "a\rb", "a\"", "a'", "a=b", "a/b", "<a", "a>", "a\x01"}) {
        XIXMLElement* element = add(name);
        EXPECT_TRUE(isRefused()) << name;
        element->SetKey(top->MakeKey("good"));
        EXPECT_FALSE(isRefused()) << name;
        element->AddAttribute(top->MakeKey(name), "1");
        EXPECT_TRUE(isRefused()) << name;
        element->RemoveAttribute(top->MakeKey(name));
        EXPECT_FALSE(isRefused()) << name;
        element->AddAttribute(top->MakeKey(name), "1");
        element->SetKey(top->MakeKey(name));
        element->GetNode()->CloneInto(top);
        element->Destroy();
        EXPECT_TRUE(isRefused()) << name;
        top->GetFirstElement()->Destroy();
        EXPECT_FALSE(isRefused()) << name;
        XIXMLData* instruction = top->AddInstruction(name, "");
        EXPECT_TRUE(isRefused()) << name;
        instruction->Destroy();
        EXPECT_FALSE(isRefused()) << name;
    }
    for (const char* name : {"1", "3D.Paths", "a&b", "-", "\xC3\xA9", "a?", "a!"}) {
        XIXMLElement* element = add(name);
        element->AddAttribute(top->MakeKey(name), "1");
        const std::string once = written(tree);
        EXPECT_EQ(written(*readTree(once)), once) << name;
        element->Destroy();
    }
}

TEST_F(XmlWriter, ElementsThatWouldReadBackAsMarkupAreRefused)
{
    for (const char* name : {"!a", "?a"}) {
        XIXMLElement* element = add(name);
        EXPECT_TRUE(isRefused()) << name;
        element->Destroy();
        top->AddAttribute(top->MakeKey(name), "1");
        EXPECT_FALSE(isRefused()) << name;
        EXPECT_EQ(written(*readTree(written(tree))), written(tree));
    }
}

TEST_F(XmlWriter, CommentsAndInstructionsAreRefusedWhileTheyAreBad)
{
    XIXMLData* comment = top->AddComment("a-->b");
    EXPECT_TRUE(isRefused());
    comment->AsComment()->SetText("a--b");
    EXPECT_FALSE(isRefused());
    comment->SetText("-->");
    EXPECT_TRUE(isRefused());
    comment->CloneInto(top);
    comment->Destroy();
    EXPECT_TRUE(isRefused());
    top->GetFirstNode()->Destroy();
    EXPECT_FALSE(isRefused());
    XIXMLData* instruction = top->AddInstruction("a", "b?>c");
    EXPECT_TRUE(isRefused());
    instruction->AsInstruction()->SetContent("b? >c");
    EXPECT_FALSE(isRefused());
    instruction->Print("%s", "?>");
    EXPECT_TRUE(isRefused());
    top->Destroy();
    EXPECT_FALSE(isRefused());
}

TEST_F(XmlWriter, AnIncompleteSectionIsClosedAndReported)
{
    add("a")->SetCData(new CBytes("half", false));
    add("b")->SetCData(new CBytes("", true));
    CXMLTextTarget sink;
    EXPECT_FALSE(tree.Write(&sink));
    EXPECT_EQ(sink.text, "<top>\n\t<a><![CDATA[half]]></a>\n\t<b><![CDATA[]]></b>\n</top>\n");
    top->GetFirstElement()->SetCData(new CBytes("whole"));
    EXPECT_TRUE(tree.Write(&sink));
}

TEST_F(XmlWriter, AProviderSeesItsNode)
{
    struct CNode final : XIXMLData::IXMLCData {
        bool Write(XIXMLWriteStream* stream, void* reserved, XIXMLData* node) override
        {
            EXPECT_EQ(reserved, nullptr);
            const std::string name = node->GetParent()->GetKey().operator const char*();
            EXPECT_EQ(stream->Write(name.data(), static_cast<std::uint32_t>(name.size())),
                      name.size());
            return true;
        }
        IXMLCData* Clone() override { return nullptr; }
    };
    top->SetCData(new CNode);
    EXPECT_EQ(written(tree), "<top><![CDATA[top]]></top>\n");
}

TEST_F(XmlWriter, WhatAProviderThrowsStopsTheWrite)
{
    struct CThrowing final : XIXMLData::IXMLCData {
        bool Write(XIXMLWriteStream*, void*, XIXMLData*) override
        {
            throw std::runtime_error("cancelled");
        }
        IXMLCData* Clone() override { return nullptr; }
    };
    add("a")->SetCData(new CThrowing);
    add("b");
    CXMLTextTarget sink;
    EXPECT_EQ(messageOf([&] { tree.Write(&sink); }), "cancelled");
    EXPECT_EQ(sink.text.find("<b/>"), std::string::npos);
}

TEST_F(XmlWriter, ShortWritesAreContinuedAndNoneIsAFailure)
{
    struct CShort final : XIXMLWriteStream {
        std::uint32_t Write(const void* buffer, std::uint32_t size) override
        {
            size = std::min(size, most);
            text.append(static_cast<const char*>(buffer), size);
            return size;
        }
        std::string text;
        std::uint32_t most = 1000;
    } sink;
    top->AddText(std::string(200'000, 'x').c_str());
    add("a")->SetCData(new CBytes(std::string(100'000, 'y')));
    EXPECT_TRUE(tree.Write(&sink));
    EXPECT_TRUE(sink.text == written(tree));
    sink.most = 0;
    EXPECT_THROW(tree.Write(&sink), std::runtime_error);
}

} // namespace OrvaneXML
