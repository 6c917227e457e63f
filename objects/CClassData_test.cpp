#include "objects/CClassData.h"

#include "tests/support/CTestElement.h"

#include <gtest/gtest.h>

#include <stdexcept>

using namespace OvZel;
using OrvaneXML::XIXMLElement;
using ZelTest::CBytes;
using ZelTest::CTestElement;

namespace {

std::string textOf(const CClassData& data)
{
    const CTestElement target;
    data.copyInto(*target.element());
    const std::string text = target.text();
    return text.substr(text.find("<E"));
}

void addChild(XIXMLElement* element, const char* tag)
{
    element->AddElement(element->MakeKey(tag));
}

/// A section that cannot be copied.
class CSingle final : public OrvaneXML::XIXMLData::IXMLCData {
public:
    bool Write(OrvaneXML::XIXMLWriteStream*, void*, OrvaneXML::XIXMLData*) override { return true; }
    IXMLCData* Clone() override { return nullptr; }
};

} // namespace

TEST(ClassData, IsAnEmptyElementAtFirst)
{
    const CClassData data("Object.Data");
    EXPECT_EQ(textOf(data), "<E><Object.Data/></E>");
    data.read([](XIXMLElement* inside) { EXPECT_STREQ(inside->GetKey(), "Object.Data"); });
    EXPECT_STREQ(data.element()->GetKey(), "Object.Data");
    EXPECT_EQ(textOf(data), "<E><Object.Data/></E>");
}

TEST(ClassData, KeepsTheElementOfAClient)
{
    CClassData data("Instance.Data");
    XIXMLElement* element = data.element();
    addChild(element, "A");
    data.edit([&](XIXMLElement* inside) { EXPECT_EQ(inside, element); });
    data.read([&](XIXMLElement* inside) { EXPECT_EQ(inside, element); });
    EXPECT_EQ(data.element(), element);
    EXPECT_EQ(textOf(data), "<E><Instance.Data><A/></Instance.Data></E>");
}

TEST(ClassData, KeepsTheElementThatAClientTookDuringAnEdit)
{
    CClassData data("Instance.Data");
    XIXMLElement* taken = nullptr;
    data.edit([&](XIXMLElement* inside) {
        taken = data.element();
        EXPECT_EQ(taken, inside);
        data.edit([](XIXMLElement* again) { addChild(again, "A"); });
        addChild(inside, "B");
    });
    EXPECT_EQ(data.element(), taken);
    addChild(taken, "C");
    EXPECT_EQ(textOf(data), "<E><Instance.Data><A/><B/><C/></Instance.Data></E>");
}

TEST(ClassData, MakesAnElementAnewThatAClientDestroyed)
{
    CClassData data("Instance.Data");
    addChild(data.element(), "A");
    data.element()->GetNode()->Destroy();
    EXPECT_EQ(textOf(data), "<E><Instance.Data/></E>");
    data.edit([](XIXMLElement* inside) { addChild(inside, "B"); });
    EXPECT_EQ(textOf(data), "<E><Instance.Data><B/></Instance.Data></E>");
}

TEST(ClassData, KeepsWhatWasChangedBeforeAFailure)
{
    CClassData data("Instance.Data");
    EXPECT_THROW(data.edit([](XIXMLElement* inside) {
        addChild(inside, "A");
        throw std::runtime_error("no");
    }),
                 std::runtime_error);
    EXPECT_EQ(textOf(data), "<E><Instance.Data><A/></Instance.Data></E>");
}

TEST(ClassData, WhatIsReadIsNotChanged)
{
    CClassData data("Instance.Data");
    data.setText("A", "1");
    data.read([](XIXMLElement* inside) { addChild(inside, "B"); });
    EXPECT_EQ(textOf(data), "<E><Instance.Data><A>1</A></Instance.Data></E>");
}

TEST(ClassData, ACopyComesBackAsItWas)
{
    const std::string content = "<Object.Data a=\"1\" b=\"&lt;\"><!--note--><X>text</X>"
                                "<X n=\"2\"/><Y><Z/></Y></Object.Data>";
    const CTestElement source("<E>" + content + "</E>");
    CClassData data("Object.Data");
    addChild(data.element(), "Old");
    data.copyFrom(*source.element()->GetFirstElement());
    EXPECT_EQ(textOf(data), "<E>" + content + "</E>");
    EXPECT_EQ(source.text().substr(source.text().find("<E>")), "<E>" + content + "</E>");
    addChild(data.element(), "New");
    EXPECT_NE(textOf(data).find("<Y><Z/></Y><New/>"), std::string::npos);
    data.copyFrom(*source.element()->GetFirstElement());
    EXPECT_EQ(textOf(data), "<E>" + content + "</E>");
}

TEST(ClassData, KeepsASection)
{
    const int nbBefore = CBytes::nbAlive;
    {
        const CTestElement file("<Instance.Data/>");
        file.element()->SetCData(new CBytes("bytes"));
        CClassData data("Instance.Data");
        for (int i = 0; i < 2; ++i) {
            data.copyFrom(*file.element());
            data.edit([](XIXMLElement* inside) { addChild(inside, "A"); });
            EXPECT_EQ(textOf(data), "<E><Instance.Data><![CDATA[bytes]]><A/></Instance.Data></E>");
        }
        const CTestElement other("<Instance.Data a=\"1\"/>");
        data.copyFrom(*other.element());
        EXPECT_EQ(textOf(data), "<E><Instance.Data a=\"1\"/></E>");
    }
    EXPECT_EQ(CBytes::nbAlive, nbBefore);

    CClassData data("Instance.Data");
    data.edit([](XIXMLElement* inside) { inside->SetCData(new CBytes("new")); });
    EXPECT_EQ(textOf(data), "<E><Instance.Data><![CDATA[new]]></Instance.Data></E>");
}

TEST(ClassData, ASectionThatCannotBeCopiedIsLeftOut)
{
    const CTestElement file("<Instance.Data><A/><B/></Instance.Data>");
    file.element()->GetFirstElement()->SetCData(new CSingle);
    CClassData data("Instance.Data");
    data.copyFrom(*file.element());
    EXPECT_EQ(textOf(data), "<E><Instance.Data><A/><B/></Instance.Data></E>");
}

TEST(ClassData, TextsOfChildren)
{
    CClassData data("Instance.Data");
    EXPECT_STREQ(data.getText("Url"), "");
    data.setText("Url", "one");
    EXPECT_EQ(textOf(data), "<E><Instance.Data><Url>one</Url></Instance.Data></E>");
    const char* url = data.getText("Url");
    data.setText("URL", "two");
    EXPECT_STREQ(url, "one") << "another text must not take it along";
    data.setText("Url", url);
    EXPECT_STREQ(data.getText("Url"), "one");
    data.setText("Url", nullptr);
    EXPECT_STREQ(data.getText("Url"), "");
    EXPECT_STREQ(data.getText("URL"), "two");

    const CTestElement file("<Instance.Data><Url/><Url>second</Url></Instance.Data>");
    data.copyFrom(*file.element());
    EXPECT_STREQ(data.getText("Url"), "");
    data.setText("Url", "c");
    EXPECT_EQ(textOf(data), "<E><Instance.Data><Url>c</Url><Url>second</Url></Instance.Data></E>");
}

TEST(ClassData, EditsInATreeThatOthersUseToo)
{
    CClassData::CTreePtr workingTree;
    CClassData first("Instance.Data"), second("Object.Data"), kept("Instance.Data");
    const auto addA = [](XIXMLElement* inside) { addChild(inside, "A"); };
    first.edit(addA, workingTree);
    ASSERT_TRUE(workingTree);
    EXPECT_EQ(workingTree->GetRoot()->GetFirstNode(), nullptr);
    EXPECT_EQ(textOf(first), "<E><Instance.Data><A/></Instance.Data></E>");
    // One edit inside another has a tree of its own.
    second.edit(
        [&](XIXMLElement* inside) {
            first.edit(addA, workingTree);
            addChild(inside, "B");
        },
        workingTree);
    EXPECT_EQ(textOf(first), "<E><Instance.Data><A/><A/></Instance.Data></E>");
    EXPECT_EQ(textOf(second), "<E><Object.Data><B/></Object.Data></E>");
    // What is seen during an edit stays where it is.
    XIXMLElement* seen = nullptr;
    kept.edit(
        [&](XIXMLElement* inside) {
            seen = kept.element();
            EXPECT_EQ(seen, inside);
            addChild(inside, "C");
        },
        workingTree);
    EXPECT_FALSE(workingTree);
    EXPECT_EQ(kept.element(), seen);
    EXPECT_EQ(textOf(kept), "<E><Instance.Data><C/></Instance.Data></E>");
    // A failure keeps what was done before it.
    EXPECT_THROW(first.edit(
                     [&](XIXMLElement* inside) {
                         addChild(inside, "D");
                         throw std::runtime_error("stop");
                     },
                     workingTree),
                 std::runtime_error);
    EXPECT_EQ(textOf(first), "<E><Instance.Data><A/><A/><D/></Instance.Data></E>");
    // An edit of the same data is in the same tree.
    first.edit(
        [&](XIXMLElement* inside) {
            first.setText("E", "e");
            first.edit(addA, workingTree);
            EXPECT_EQ(textOf(first),
                      "<E><Instance.Data><A/><A/><D/><E>e</E><A/></Instance.Data></E>");
            addChild(inside, "F");
        },
        workingTree);
    EXPECT_EQ(textOf(first), "<E><Instance.Data><A/><A/><D/><E>e</E><A/><F/></Instance.Data></E>");
    // A section that has its only provider here keeps its tree.
    second.edit([](XIXMLElement* inside) { inside->SetCData(new CSingle); }, workingTree);
    EXPECT_FALSE(workingTree);
    EXPECT_NE(second.element()->GetFirstElement(), nullptr);
}
