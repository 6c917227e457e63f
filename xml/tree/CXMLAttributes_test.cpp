#include "xml/tree/CXMLElement.h"

#include "tests/support/xmlTree.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>

namespace OrvaneXML {

using namespace ZelTest;

namespace {

/// An element as the parser leaves it, and the same with its attributes asked for as objects.
struct SForms {
    explicit SForms(const std::string& text) : packed(readTree(text)), objects(readTree(text))
    {
        Of(*objects).GetFirstAttribute();
    }

    static CXMLElement& Of(XCXMLTree& tree)
    {
        return static_cast<CXMLElement&>(*tree.GetRoot()->GetFirstElement());
    }

    CTreePtr packed, objects;
};

const SXMLName* nameIn(const CXMLElement& element, const std::string& name)
{
    return element.Store().names.Intern(name);
}

std::string elementWith(int nb)
{
    std::string text = "<a";
    for (int i = 0; i < nb; ++i)
        text += " n" + std::to_string(i) + "=\"" + std::to_string(i) + "\"";
    return text + "/>";
}

} // namespace

TEST(XmlAttributes, BothFormsDoTheSame)
{
    const struct {
        const char* before;
        std::function<void(CXMLElement&)> action;
        const char* after;
    } cases[] = {
        {"<a/>", [](auto& a) { a.SetAttribute(nameIn(a, "x"), "1"); }, "<a x=\"1\"/>"},
        {"<a x='1'/>", [](auto& a) { a.SetAttribute(nameIn(a, "x"), "2"); }, "<a x=\"2\"/>"},
        {"<a x='1'/>", [](auto& a) { a.SetAttribute(nameIn(a, "x"), ""); }, "<a x=\"\"/>"},
        {"<a x='1' y='2'/>", [](auto& a) { a.SetAttribute(nameIn(a, "z"), "3"); },
         "<a x=\"1\" y=\"2\" z=\"3\"/>"},
        {"<a x='1' x='2'/>", [](auto& a) { a.SetAttribute(nameIn(a, "x"), "3"); },
         "<a x=\"3\" x=\"2\"/>"},
        {"<a x='1'/>", [](auto& a) { a.AddAttribute(a.MakeKey("y"), "2"); },
         "<a x=\"1\" y=\"2\"/>"},
        {"<a x='1'/>", [](auto& a) { a.AddAttribute(a.MakeKey("x"), "2"); }, "<a x=\"2\"/>"},
        {"<a x='1' y='2' x='3'/>", [](auto& a) { EXPECT_TRUE(a.RemoveAttribute(a.MakeKey("x"))); },
         "<a y=\"2\"/>"},
        {"<a x='1'/>", [](auto& a) { EXPECT_TRUE(a.RemoveAttribute(a.MakeKey("x"))); }, "<a/>"},
        {"<a x='1'/>", [](auto& a) { EXPECT_FALSE(a.RemoveAttribute(a.MakeKey("y"))); },
         "<a x=\"1\"/>"},
        {"<a/>", [](auto& a) { EXPECT_FALSE(a.RemoveAttribute(a.MakeKey("y"))); }, "<a/>"},
        {"<a x='1' y='2'/>", [](auto& a) { a.GetFirstAttribute()->GetNext()->SetValue("3"); },
         "<a x=\"1\" y=\"3\"/>"},
        {"<a x='1' y='2'/>", [](auto& a) { a.FindAttribute(a.MakeKey("y"))->SetValue("3"); },
         "<a x=\"1\" y=\"3\"/>"},
        {"<a x='1' y='2'/>",
         [](auto& a) {
             EXPECT_STREQ(a.Attributes().ValueOf(nameIn(a, "y")), "2");
             EXPECT_EQ(a.Attributes().ValueOf(nameIn(a, "z")), nullptr);
             EXPECT_EQ(a.FindAttribute(a.MakeKey("z")), nullptr);
             EXPECT_EQ(a.Attributes().Count(), 2u);
         },
         "<a x=\"1\" y=\"2\"/>"},
        {"<a x='1' y='&lt;'/>", [](auto& a) { a.GetNode()->CloneInto(&a); },
         "<a x=\"1\" y=\"&lt;\">\n\t<a x=\"1\" y=\"&lt;\"/>\n</a>"},
    };
    for (const auto& [before, action, after] : cases) {
        const SForms forms(before);
        for (XCXMLTree* tree : {forms.packed.get(), forms.objects.get()}) {
            action(SForms::Of(*tree));
            EXPECT_EQ(written(*tree), std::string(after) + "\n") << before;
        }
    }
}

TEST(XmlAttributes, AnObjectStaysTheSame)
{
    const CTreePtr tree = readTree("<a x='1' y='2'/>");
    CXMLElement& a = SForms::Of(*tree);
    XIXMLAttribute* y = a.FindAttribute(a.MakeKey("y"));
    a.SetAttribute(nameIn(a, "z"), "3");
    a.SetAttribute(nameIn(a, "y"), "4");
    a.RemoveAttribute(a.MakeKey("x"));
    EXPECT_EQ(a.GetFirstAttribute(), y);
    EXPECT_STREQ(y->GetValue(), "4");
    EXPECT_STREQ(y->GetNext()->GetValue(), "3");
}

TEST(XmlAttributes, ThereMayBeMany)
{
    for (const int nb : {15, 16, 17, 40, 1'023, 1'024, 1'025, 5'000}) {
        const std::string text = elementWith(nb);
        const CTreePtr read = readTree(text);
        EXPECT_EQ(written(*read), text + "\n");
        XCXMLTree made;
        XIXMLElement& root = *made.GetRoot();
        auto& a = static_cast<CXMLElement&>(*root.AddElement(root.MakeKey("a")));
        for (int i = 0; i < nb; ++i)
            a.SetAttribute(nameIn(a, "n" + std::to_string(i)), std::to_string(i));
        EXPECT_EQ(written(made), text + "\n");
        int seen = 0;
        for (XIXMLAttribute* each = a.GetFirstAttribute(); each; each = each->GetNext())
            EXPECT_STREQ(each->GetValue(), std::to_string(seen++).c_str());
        EXPECT_EQ(seen, nb);
        a.GetNode()->Destroy();
        EXPECT_EQ(made.GetRoot()->GetFirstNode(), nullptr);
    }
}

TEST(XmlAttributes, ABadNameIsCountedWhileItIsThere)
{
    XCXMLTree tree;
    XIXMLElement& root = *tree.GetRoot();
    auto& a = static_cast<CXMLElement&>(*root.AddElement(root.MakeKey("a")));
    const std::size_t& nbBad = a.Store().nbBad;
    for (const bool asObjects : {false, true}) {
        a.SetAttribute(nameIn(a, "b c"), "1");
        if (asObjects)
            a.GetFirstAttribute();
        EXPECT_EQ(nbBad, 1u);
        XIXMLData* copy = a.GetNode()->CloneInto(&root);
        EXPECT_EQ(nbBad, 2u);
        copy->Destroy();
        EXPECT_EQ(nbBad, 1u);
        a.RemoveAttribute(a.MakeKey("b c"));
        EXPECT_EQ(nbBad, 0u);
    }
}

} // namespace OrvaneXML
