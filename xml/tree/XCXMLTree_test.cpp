#include "xml/tree/XCXMLTree.h"

#include "tests/support/xmlTree.h"

#include <gtest/gtest.h>

namespace OrvaneXML {

using namespace ZelTest;

TEST(XmlTree, ANewTreeIsSmallAndEmpty)
{
    const XCXMLTree tree;
    EXPECT_EQ(tree.GetRoot()->GetFirstNode(), nullptr);
    EXPECT_EQ(tree.GetPoolBytes(), 512u);
}

TEST(XmlTree, AThousandSavesDoNotGrowIt)
{
    XCXMLTree tree;
    XIXMLElement* file = tree.GetRoot()->AddElement(tree.GetRoot()->MakeKey("File"));
    std::size_t bytes = 0;
    for (int round = 0; round < 1'000; ++round) {
        if (XIXMLElement* old = file->FindElement(file->MakeKey("Section")))
            old->Destroy();
        XIXMLElement* section = file->AddElement(file->MakeKey("Section"));
        for (int i = 0; i < 50; ++i) {
            const std::string text(static_cast<std::size_t>(i * i), 'x');
            XIXMLElement* item = section->AddElement(file->MakeKey("Item"));
            item->AddAttribute(file->MakeKey("Value"), text.c_str());
            item->AddText("start")->SetText(text.c_str());
            item->AddComment("c")->Print("%d", round + 1'000'000);
            item->AddInstruction("i", "content");
            item->SetCData(new CBytes("bytes"));
        }
        ASSERT_GT(written(tree).size(), 50'000u);
        if (round == 1)
            bytes = tree.GetPoolBytes();
    }
    EXPECT_EQ(tree.GetPoolBytes(), bytes);
    EXPECT_EQ(CBytes::nbAlive, 50);
}

TEST(XmlTree, DeepTreesAreReadClonedWrittenAndDestroyed)
{
    std::string text = "<a>inline"; // else the tabs make it 100 MB
    for (int i = 1; i < 9'999; ++i)
        text += "<a>";
    text += "x";
    for (int i = 0; i < 9'999; ++i)
        text += "</a>";
    const CTreePtr tree = readTree(text);
    XCXMLTree copy;
    tree->GetRoot()->GetFirstElement()->GetNode()->CloneInto(copy.GetRoot());
    EXPECT_TRUE(written(copy) == written(*tree));
    copy.GetRoot()->GetFirstElement()->Destroy();
    EXPECT_EQ(written(copy), "");
}

TEST(XmlTree, TreesDeeperThanCanBeReadAreStillHandledWithoutRecursion)
{
    XCXMLTree tree;
    XIXMLElement* element = tree.GetRoot();
    const XCXMLKey key = element->MakeKey("a");
    for (int i = 0; i < 500'000; ++i)
        element = element->AddElement(key);
    element->AddText("x"); // an own line for each level would take a quarter of a terabyte
    XIXMLElement* top = tree.GetRoot()->GetFirstElement();
    top->AddText("inline");
    EXPECT_GT(written(tree).size(), 3'500'000u);
    XCXMLTree copy;
    top->GetNode()->CloneInto(copy.GetRoot());
    copy.GetRoot()->Destroy();
    EXPECT_EQ(copy.GetRoot()->GetFirstNode(), nullptr);
}

TEST(XmlTree, WriteIsConstAndRepeatable)
{
    const CTreePtr tree = readTree("<a><b><![CDATA[x]]></b></a>");
    const XCXMLTree& same = *tree;
    EXPECT_EQ(written(same), written(same));
}

} // namespace OrvaneXML
