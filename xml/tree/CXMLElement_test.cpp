#include "xml/tree/CXMLElement.h"

#include "tests/support/vtable.h"
#include "tests/support/xmlTree.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>

namespace OrvaneXML {

using namespace ZelTest;

namespace {

class XmlElement : public testing::Test {
protected:
    XmlElement() : top(tree.GetRoot()->AddElement(key("top"))) {}

    XCXMLKey key(const char* name) { return tree.GetRoot()->MakeKey(name); }
    XIXMLElement* add(const char* name) { return top->AddElement(key(name)); }
    /// The document without line ends and tabs.
    std::string flat() const
    {
        std::string text = written(tree);
        text.erase(
            std::remove_if(text.begin(), text.end(), [](char c) { return c == '\n' || c == '\t'; }),
            text.end());
        return text;
    }

    XCXMLTree tree;
    XIXMLElement* top;
};

} // namespace

TEST_F(XmlElement, NodesAreCompact)
{
    EXPECT_EQ(sizeof(CXMLElement), 64u);
    EXPECT_EQ(sizeof(CXMLAttribute), 32u);
}

TEST_F(XmlElement, KeysOfATreeAreOneRecordEach)
{
    const XCXMLKey en = key("en");
    EXPECT_TRUE(en == "en");
    EXPECT_TRUE(en != "fr");
    EXPECT_STREQ(en, "en");
    EXPECT_EQ(static_cast<const char*>(en), static_cast<const char*>(top->MakeKey("en")));
    EXPECT_TRUE(XCXMLKey() == XCXMLKey());
    EXPECT_FALSE(XCXMLKey() == "");
}

TEST_F(XmlElement, AnUnknownNameIsNotFound)
{
    EXPECT_EQ(top->FindElement(top->MakeKey("never")), nullptr);
    EXPECT_EQ(top->FindAttribute(top->MakeKey("never")), nullptr);
    EXPECT_EQ(top->FindElement(XCXMLKey()), nullptr);
}

TEST_F(XmlElement, KeysOfAnotherTreeWorkByTheirText)
{
    XCXMLTree other;
    const XCXMLKey foreign = other.GetRoot()->MakeKey("a");
    EXPECT_EQ(top->FindElement(foreign), nullptr);
    XIXMLElement* a = top->AddElement(foreign);
    EXPECT_EQ(top->FindElement(foreign), a);
    EXPECT_EQ(top->FindElement(key("a")), a);
    EXPECT_TRUE(a->GetKey() == foreign);
    EXPECT_NE(static_cast<const char*>(a->GetKey()), static_cast<const char*>(foreign));
    a->AddAttribute(foreign, "1");
    EXPECT_STREQ(a->FindAttribute(key("a"))->GetValue(), "1");
}

TEST_F(XmlElement, ManyNamesStayApart)
{
    for (int i = 0; i < 5'000; ++i)
        top->AddElement(key(("n" + std::to_string(i)).c_str()));
    for (int i = 0; i < 5'000; i += 97) {
        const std::string name = "n" + std::to_string(i);
        ASSERT_TRUE(top->FindElement(key(name.c_str()))->GetKey() == name.c_str());
    }
}

TEST_F(XmlElement, WalksSiblings)
{
    XIXMLElement* a1 = add("a");
    top->AddText("t");
    XIXMLElement* b = add("b");
    top->AddComment("c");
    XIXMLElement* a2 = add("a");
    EXPECT_EQ(top->GetFirstElement(), a1);
    EXPECT_EQ(a1->GetNextElement(), b);
    EXPECT_EQ(b->GetNextElement(), a2);
    EXPECT_EQ(a2->GetNextElement(), nullptr);
    EXPECT_EQ(a1->GetNextSame(), a2);
    EXPECT_EQ(a2->GetNextSame(), nullptr);
    EXPECT_EQ(b->GetNextSame(), nullptr);
    EXPECT_EQ(top->GetFirstNode(), a1->GetNode());
    EXPECT_STREQ(a1->GetNode()->GetNextNode()->GetText(), "t");
    EXPECT_EQ(a2->GetNode()->GetParent(), top);
    EXPECT_EQ(tree.GetRoot()->GetNode()->GetParent(), nullptr);
}

TEST_F(XmlElement, DestroyOfTheFirstOfItsNameLeavesTheSecond)
{
    XIXMLElement* first = add("a");
    XIXMLElement* second = add("a");
    first->Destroy();
    EXPECT_EQ(top->FindElement(key("a")), second);
    EXPECT_EQ(flat(), "<top><a/></top>");
    second->Destroy();
    EXPECT_EQ(flat(), "<top/>");
    add("b");
    EXPECT_EQ(flat(), "<top><b/></top>");
}

TEST_F(XmlElement, DestroyOfEachPlaceKeepsTheList)
{
    for (int gone = 0; gone < 3; ++gone) {
        std::array<XIXMLElement*, 3> items{add("a"), add("b"), add("c")};
        items[static_cast<std::size_t>(gone)]->Destroy();
        XIXMLElement* last = add("d");
        const char* expected[] = {"<top><b/><c/><d/></top>", "<top><a/><c/><d/></top>",
                                  "<top><a/><b/><d/></top>"};
        EXPECT_EQ(flat(), expected[gone]);
        top->InsertChild(last->GetNode(), top->GetFirstNode());
        while (XIXMLData* node = top->GetFirstNode())
            node->Destroy();
    }
}

TEST_F(XmlElement, DestroyOfTheRootOnlyEmptiesIt)
{
    add("a");
    tree.GetRoot()->Destroy();
    EXPECT_EQ(tree.GetRoot()->GetFirstNode(), nullptr);
    tree.GetRoot()->AddElement(key("new"));
    EXPECT_EQ(flat(), "<new/>");
}

TEST_F(XmlElement, InsertChildMovesToEveryPlace)
{
    const char* expected[3][4] = {
        {"<a/><b/><c/>", "<a/><b/><c/>", "<b/><a/><c/>", "<b/><c/><a/>"},
        {"<b/><a/><c/>", "<a/><b/><c/>", "<a/><b/><c/>", "<a/><c/><b/>"},
        {"<c/><a/><b/>", "<a/><c/><b/>", "<a/><b/><c/>", "<a/><b/><c/>"},
    };
    for (std::size_t moved = 0; moved < 3; ++moved)
        for (std::size_t place = 0; place < 4; ++place) {
            std::array<XIXMLElement*, 3> items{add("a"), add("b"), add("c")};
            top->InsertChild(items[moved]->GetNode(),
                             place < 3 ? items[place]->GetNode() : nullptr);
            EXPECT_EQ(flat(), std::string("<top>") + expected[moved][place] + "</top>");
            while (XIXMLData* node = top->GetFirstNode())
                node->Destroy();
        }
}

TEST_F(XmlElement, InsertChildMovesBetweenParents)
{
    XIXMLElement* a = add("a");
    XIXMLElement* b = add("b");
    XIXMLElement* c = b->AddElement(key("c"));
    a->InsertChild(c->GetNode(), nullptr);
    EXPECT_EQ(flat(), "<top><a><c/></a><b/></top>");
    EXPECT_EQ(c->GetNode()->GetParent(), a);
}

TEST_F(XmlElement, InsertChildRefusesWhatCannotBe)
{
    XIXMLElement* a = add("a");
    XIXMLElement* b = a->AddElement(key("b"));
    XCXMLTree other;
    XIXMLElement* foreign = other.GetRoot()->AddElement(key("x"));
    EXPECT_THROW(b->InsertChild(a->GetNode(), nullptr), std::runtime_error);
    EXPECT_THROW(a->InsertChild(a->GetNode(), nullptr), std::runtime_error);
    EXPECT_THROW(a->InsertChild(tree.GetRoot()->GetNode(), nullptr), std::runtime_error);
    EXPECT_THROW(a->InsertChild(foreign->GetNode(), nullptr), std::runtime_error);
    EXPECT_THROW(a->InsertChild(nullptr, nullptr), std::runtime_error);
    EXPECT_THROW(top->InsertChild(a->GetNode(), b->GetNode()), std::runtime_error);
    EXPECT_EQ(flat(), "<top><a><b/></a></top>");
}

TEST_F(XmlElement, AttributesKeepTheirOrderAndTheirPlace)
{
    top->AddAttribute(key("x"), "1");
    top->AddAttribute(key("y"), "2");
    XIXMLAttribute* x = top->AddAttribute(key("x"), "3");
    EXPECT_EQ(x, top->GetFirstAttribute());
    EXPECT_EQ(flat(), "<top x=\"3\" y=\"2\"/>");
    EXPECT_TRUE(x->GetNext()->GetKey() == "y");
    EXPECT_EQ(x->Print("%d %s", 5, "z"), 3);
    int number = 0;
    EXPECT_EQ(x->Scan("%d", &number), 1);
    EXPECT_EQ(number, 5);
    x->SetValue(nullptr);
    EXPECT_STREQ(x->GetValue(), "");
    EXPECT_TRUE(top->RemoveAttribute(key("x")));
    EXPECT_FALSE(top->RemoveAttribute(key("x")));
    EXPECT_EQ(flat(), "<top y=\"2\"/>");
}

TEST_F(XmlElement, RemovingAnAttributeRemovesItsTwins)
{
    const CTreePtr twins = readTree("<a x='1' y='2' x='3'/>");
    XIXMLElement* a = twins->GetRoot()->GetFirstElement();
    EXPECT_TRUE(a->RemoveAttribute(a->MakeKey("x")));
    EXPECT_EQ(a->FindAttribute(a->MakeKey("x")), nullptr);
    EXPECT_EQ(written(*twins), "<a y=\"2\"/>\n");
}

TEST_F(XmlElement, TextsArePrintedScannedAndSet)
{
    EXPECT_EQ(top->GetFirstText(), nullptr);
    XIXMLData* text = top->AddText("12 ab");
    EXPECT_EQ(top->GetFirstText(), text);
    int number = 0;
    char word[16];
    EXPECT_EQ(text->Scan("%d %15s", &number, word), 2);
    EXPECT_EQ(number, 12);
    EXPECT_STREQ(word, "ab");
    EXPECT_EQ(text->Print("%lf", 0.5), 8);
    EXPECT_STREQ(top->GetNode()->GetText(), "0.500000");
    const std::string longText(5'000, 'x');
    EXPECT_EQ(text->Print("%s!", longText.c_str()), 5'001);
    EXPECT_EQ(text->GetText(), longText + "!");
    text->SetText(text->GetText() + 4'999); // a part of itself
    EXPECT_STREQ(text->GetText(), "x!");
    top->GetNode()->SetText("other");
    EXPECT_EQ(flat(), "<top>other</top>");
    EXPECT_THROW(text->Print("%g", 1.0), std::runtime_error);
    EXPECT_EQ(flat(), "<top>other</top>");
}

TEST_F(XmlElement, TheCommonestTextsAreThoseOfAllTrees)
{
    const std::string noId(32, '0');
    XCXMLTree other;
    XIXMLElement* root = other.GetRoot();
    for (const std::string& text : {std::string("0.000000"), std::string("1.000000"), noId}) {
        XIXMLAttribute* here = top->AddAttribute(key("x"), text.c_str());
        XIXMLElement* there = root->AddElement(root->MakeKey("a"));
        there->GetNode()->SetText(text.c_str());
        EXPECT_EQ(here->GetValue(), text);
        EXPECT_EQ(here->GetValue(), there->GetNode()->GetText());
        here->SetValue(here->GetValue() + 1); // a part of itself
        EXPECT_EQ(here->GetValue(), text.substr(1));
        here->SetValue("2.000000");
        here->SetValue(text.c_str());
        EXPECT_EQ(here->GetValue(), there->GetNode()->GetText());
        EXPECT_EQ(flat(), "<top x=\"" + text + "\"/>");
        there->GetNode()->Destroy();
        top->RemoveAttribute(key("x"));
    }
    for (const char* other8 : {"2.000000", "0.000001", "1.0000000", "0.00000"}) {
        top->AddAttribute(key("x"), other8);
        EXPECT_EQ(flat(), std::string("<top x=\"") + other8 + "\"/>");
    }
}

TEST_F(XmlElement, SetTextOnAnElementWithoutTextAddsOne)
{
    top->GetNode()->SetText("new");
    EXPECT_EQ(flat(), "<top>new</top>");
    EXPECT_STREQ(add("a")->GetNode()->GetText(), "");
}

TEST_F(XmlElement, ViewsTellTheKindOfANode)
{
    XIXMLData* nodes[] = {add("a")->GetNode(), top->AddText("t"), top->AddComment("c"),
                          top->AddInstruction("i", " \tcontent")};
    top->SetCData(new CBytes("x"));
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(nodes[i]->AsElement() != nullptr, i == 0);
        EXPECT_EQ(nodes[i]->AsComment() != nullptr, i == 2);
        EXPECT_EQ(nodes[i]->AsInstruction() != nullptr, i == 3);
    }
    XIXMLInstruction* instruction = nodes[3]->AsInstruction();
    EXPECT_STREQ(instruction->GetTarget(), "i");
    EXPECT_STREQ(instruction->GetContent(), "content");
    instruction->SetContent("new");
    EXPECT_STREQ(nodes[3]->GetText(), "new");
    nodes[2]->AsComment()->SetText("d");
    EXPECT_STREQ(nodes[2]->AsComment()->GetText(), "d");
    XIXMLData* section = nodes[3]->GetNextNode();
    EXPECT_STREQ(section->GetText(), "");
    EXPECT_THROW(section->SetText("x"), std::runtime_error);
    EXPECT_EQ(flat(), "<top><a/>t<!--d--><?i new?><![CDATA[x]]></top>");
}

TEST_F(XmlElement, RenamesInPlace)
{
    XIXMLElement* a = add("a");
    a->AddAttribute(key("x"), "1");
    a->SetKey(key("b"));
    EXPECT_EQ(flat(), "<top><b x=\"1\"/></top>");
    EXPECT_EQ(top->FindElement(key("a")), nullptr);
}

TEST_F(XmlElement, TheRootTakesOnlyWhatADocumentCanHold)
{
    XIXMLElement* root = tree.GetRoot();
    EXPECT_THROW(root->AddText("t"), std::runtime_error);
    EXPECT_THROW(root->GetNode()->SetText("t"), std::runtime_error);
    EXPECT_THROW(root->SetCData(new CBytes("x")), std::runtime_error);
    EXPECT_EQ(CBytes::nbAlive, 0);
    EXPECT_THROW(root->AddAttribute(key("x"), ""), std::runtime_error);
    EXPECT_THROW(root->SetKey(key("x")), std::runtime_error);
    EXPECT_THROW(root->InsertChild(top->AddText("t"), nullptr), std::runtime_error);
    EXPECT_THROW(root->GetNode()->CloneInto(top), std::runtime_error);
}

TEST_F(XmlElement, AProviderBelongsToItsNode)
{
    top->SetCData(new CBytes("one"));
    top->SetCData(new CBytes("two"));
    EXPECT_EQ(CBytes::nbAlive, 1);
    EXPECT_EQ(flat(), "<top><![CDATA[two]]></top>");
    top->SetCData(nullptr);
    EXPECT_EQ(CBytes::nbAlive, 0);
    EXPECT_EQ(flat(), "<top/>");
    add("a")->SetCData(new CBytes("three"));
    top->Destroy();
    EXPECT_EQ(CBytes::nbAlive, 0);
    {
        XCXMLTree other;
        other.GetRoot()->AddElement(key("a"))->SetCData(new CBytes("x"));
    }
    EXPECT_EQ(CBytes::nbAlive, 0);
}

TEST_F(XmlElement, CloneIsDeepAndIndependent)
{
    const std::string text = "<a x=\"1\">t<b/><!--c--><?i j?><![CDATA[d]]></a>";
    const CTreePtr source = readTree(text);
    XIXMLElement* a = source->GetRoot()->GetFirstElement();
    XIXMLData* copy = a->GetNode()->CloneInto(top);
    EXPECT_EQ(copy->GetParent(), top);
    a->Destroy();
    EXPECT_EQ(flat(), "<top>" + text + "</top>");
    copy->CloneInto(copy->AsElement()); // below itself
    EXPECT_EQ(flat(), "<top>" + text.substr(0, text.size() - 4) + text + "</a></top>");
}

TEST_F(XmlElement, CloneLeavesOutASectionThatCannotBeCloned)
{
    struct CNoClone final : XIXMLData::IXMLCData {
        bool Write(XIXMLWriteStream*, void*, XIXMLData*) override { return true; }
        IXMLCData* Clone() override { return nullptr; }
    };
    XIXMLElement* a = add("a");
    a->SetCData(new CNoClone);
    EXPECT_EQ(a->GetFirstNode()->CloneInto(top), nullptr);
    a->GetNode()->CloneInto(top);
    EXPECT_EQ(flat(), "<top><a><![CDATA[]]></a><a/></top>");
}

TEST_F(XmlElement, ACloneThatFailsLeavesNothing)
{
    struct CThrowing final : XIXMLData::IXMLCData {
        bool Write(XIXMLWriteStream*, void*, XIXMLData*) override { return true; }
        IXMLCData* Clone() override { throw std::runtime_error("no"); }
    };
    XIXMLElement* a = add("a");
    a->AddElement(key("b"))->SetCData(new CBytes("x"));
    a->AddElement(key("c"))->SetCData(new CThrowing);
    const std::string before = flat();
    EXPECT_THROW(a->GetNode()->CloneInto(top), std::runtime_error);
    EXPECT_EQ(flat(), before);
    EXPECT_EQ(CBytes::nbAlive, 1);
}

TEST_F(XmlElement, SlotsStandInTheirOrder)
{
    using TKey = const char*; // a key travels as its one pointer
    void* e = top;
    EXPECT_EQ(callSlot<XIXMLData*>(e, 0), top->GetNode());
    EXPECT_EQ(callSlot<XIXMLData*>(e, 1), top->GetNode());
    const TKey a = callSlot<TKey>(e, 2, "a");
    EXPECT_STREQ(a, "a");
    auto* text = callSlot<XIXMLData*>(e, 7, "text");
    auto* first = callSlot<XIXMLElement*>(e, 8, a);
    callSlot<void>(e, 3, first->GetNode(), text);
    EXPECT_EQ(callSlot<XIXMLData*>(e, 13), first->GetNode());
    auto* attribute = callSlot<XIXMLAttribute*>(e, 4, a, "value");
    callSlot<XIXMLData*>(e, 5, "target", "content");
    callSlot<void>(e, 6, new CBytes("bytes"));
    EXPECT_STREQ(callSlot<TKey>(e, 9), "top");
    callSlot<void>(e, 10, callSlot<TKey>(e, 2, "renamed"));
    EXPECT_EQ(callSlot<XIXMLData*>(e, 11), text);
    EXPECT_EQ(callSlot<XIXMLData*>(e, 12), text);
    EXPECT_EQ(callSlot<XIXMLElement*>(e, 14), first);
    auto* second = callSlot<XIXMLElement*>(e, 8, callSlot<TKey>(e, 2, "b"));
    EXPECT_EQ(callSlot<XIXMLElement*>(first, 15), second);
    EXPECT_EQ(callSlot<XIXMLElement*>(e, 16, a), first);
    EXPECT_EQ(callSlot<XIXMLElement*>(first, 17), nullptr);
    EXPECT_EQ(callSlot<XIXMLAttribute*>(e, 18), attribute);
    EXPECT_EQ(callSlot<XIXMLAttribute*>(e, 19, a), attribute);
    callSlot<XIXMLData*>(e, 20, "comment");
    EXPECT_EQ(flat(), "<renamed a=\"value\"><a/>text<?target content?><![CDATA[bytes]]><b/>"
                      "<!--comment--></renamed>");
    EXPECT_TRUE(callSlot<bool>(e, 21, a));

    void* node = text;
    EXPECT_EQ(callSlot<XIXMLData*>(first->GetNode(), 0), text);
    EXPECT_STREQ(callSlot<const char*>(node, 1), "text");
    EXPECT_EQ(callSlot<XIXMLInstruction*>(node, 2), nullptr);
    EXPECT_EQ(callSlot<XIXMLElement*>(node, 5), top);
    EXPECT_STREQ(callSlot<XIXMLData*>(node, 6, second)->GetText(), "text");
    callSlot<void>(node, 7, "42");
    EXPECT_EQ(callSlot<XIXMLComment*>(node, 8), nullptr);
    EXPECT_EQ(callSlot<XIXMLElement*>(second->GetNode(), 9), second);
    void** table = *static_cast<void***>(node);
    int number = 0;
    EXPECT_EQ(reinterpret_cast<int (*)(void*, const char*, ...)>(table[3])(node, "%d", &number), 1);
    EXPECT_EQ(number, 42);
    EXPECT_EQ(reinterpret_cast<int (*)(void*, const char*, ...)>(table[4])(node, "%d", 7), 1);
    EXPECT_STREQ(text->GetText(), "7");
    callSlot<void>(node, 10);
    EXPECT_EQ(top->GetFirstText(), nullptr);
}

TEST_F(XmlElement, AttributeSlotsStandInTheirOrder)
{
    XIXMLAttribute* x = top->AddAttribute(key("x"), "5");
    XIXMLAttribute* y = top->AddAttribute(key("y"), "6");
    void** table = *reinterpret_cast<void***>(x);
    EXPECT_EQ(callSlot<XIXMLAttribute*>(x, 0), y);
    EXPECT_STREQ(callSlot<const char*>(x, 1), "x");
    EXPECT_STREQ(callSlot<const char*>(x, 2), "5");
    int number = 0;
    EXPECT_EQ(reinterpret_cast<int (*)(void*, const char*, ...)>(table[3])(x, "%d", &number), 1);
    EXPECT_EQ(number, 5);
    EXPECT_EQ(reinterpret_cast<int (*)(void*, const char*, ...)>(table[4])(x, "%d", 77), 2);
    EXPECT_STREQ(x->GetValue(), "77");
    callSlot<void>(x, 5, "8");
    EXPECT_STREQ(x->GetValue(), "8");
}

TEST(XmlLoneText, HasANodeOnceSomebodyAsks)
{
    std::string text = "<a>";
    for (int i = 0; i < 6000; ++i)
        text += "<b>12.500000</b>";
    const CTreePtr tree = readTree(text + "</a>");
    XIXMLElement* top = tree->GetRoot()->GetFirstElement();
    const std::size_t bytes = tree->GetPoolBytes();
    for (XIXMLElement* b = top->GetFirstElement(); b; b = b->GetNextElement())
        EXPECT_STREQ(b->GetNode()->GetText(), "12.500000");
    EXPECT_EQ(tree->GetPoolBytes(), bytes);
    for (XIXMLElement* b = top->GetFirstElement(); b; b = b->GetNextElement()) {
        const char* before = b->GetNode()->GetText();
        XIXMLData* node = b->GetFirstText();
        EXPECT_EQ(node->GetText(), before);
        EXPECT_EQ(node->GetParent(), b);
        EXPECT_EQ(b->GetFirstNode(), node);
    }
    EXPECT_GT(tree->GetPoolBytes(), bytes);
}

TEST(XmlLoneText, TakesPartInEveryChange)
{
    struct {
        void (*change)(XIXMLElement*);
        const char* written;
    } cases[] = {
        {[](XIXMLElement* b) { b->GetNode()->SetText("y"); }, "<a><b>y</b></a>"},
        {[](XIXMLElement* b) { b->GetNode()->SetText(b->GetNode()->GetText() + 1); },
         "<a><b>z</b></a>"},
        {[](XIXMLElement* b) { b->GetNode()->SetText(""); }, "<a><b/></a>"},
        {[](XIXMLElement* b) { b->GetNode()->Print("%d", 7); }, "<a><b>7</b></a>"},
        {[](XIXMLElement* b) { b->GetFirstText()->Destroy(); }, "<a><b/></a>"},
        {[](XIXMLElement* b) { b->AddText("!"); }, "<a><b>xz!</b></a>"},
        {[](XIXMLElement* b) { b->AddComment("c"); }, "<a><b>xz<!--c--></b></a>"},
        {[](XIXMLElement* b) { b->InsertChild(b->AddComment("c"), b->GetFirstText()); },
         "<a><b><!--c-->xz</b></a>"},
        {[](XIXMLElement* b) { b->SetCData(new CBytes("1")); }, "<a><b>xz<![CDATA[1]]></b></a>"},
        {[](XIXMLElement* b) { b->GetNode()->CloneInto(b); }, "<a><b>xz<b>xz</b></b></a>"},
        {[](XIXMLElement* b) { b->Destroy(); }, "<a/>"},
    };
    for (const auto& item : cases) {
        const CTreePtr tree = readTree("<a><b>xz</b></a>");
        item.change(tree->GetRoot()->GetFirstElement()->GetFirstElement());
        std::string lines = written(*tree);
        lines.erase(std::remove_if(lines.begin(), lines.end(),
                                   [](char c) { return c == '\n' || c == '\t'; }),
                    lines.end());
        EXPECT_EQ(lines, item.written);
    }
}

} // namespace OrvaneXML
