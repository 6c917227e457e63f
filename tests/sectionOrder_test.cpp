#include "tests/support/CClientDocument.h"
#include "tests/support/documentLists.h"
#include "tests/support/savedText.h"
#include "tests/support/zelFile.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

// In which order a save writes the sections.

using namespace OvZel;
using testing::HasSubstr;
using testing::IsEmpty;
using ZelTest::CClientDocument;
using ZelTest::CDocumentList;
using ZelTest::documentLists;
using ZelTest::sectionNames;
using ZelTest::sectionOf;
using ZelTest::zelFile;

using CNames = std::vector<std::string>;

namespace {

const CNames kLaidOut = {"Preview.Image", "File.Info", "Images", "Points", "Polygons"};

CNames joined(CNames first, const CNames& second)
{
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

void fillLists(CClientDocument& document)
{
    for (const CDocumentList& each : documentLists()) {
        each.list(document)->removeAllObjects();
        each.add(document);
        each.add(document);
    }
    document.more().getWorkingViews()->newZelObject(-1);
    // A material without nodes is written with one, which gets its identifier when it is read.
    ASSERT_TRUE(document.read(document.save()));
}

} // namespace

TEST(SectionOrder, OfANewDocument)
{
    CClientDocument document;
    EXPECT_EQ(sectionNames(document.save()), joined(kLaidOut, {"Heliodons",
                                                               "Properties",
                                                               "Billboards",
                                                               "Lights",
                                                               "Lights.Groups",
                                                               "Perspective.Views",
                                                               "Parallel.Views",
                                                               "PanoramasV2",
                                                               "Animations",
                                                               "View.Objects",
                                                               "Object.Definition",
                                                               "Object.Instances",
                                                               "Scenarios",
                                                               "Paths.3D",
                                                               "Grounds",
                                                               "Layers",
                                                               "Layers.Info",
                                                               "Tmp.Render.Parameters",
                                                               "ExternalDefinitions",
                                                               "Working.Window"}));
}

TEST(SectionOrder, IsTheSameForListsThatHoldSomethingAndAlsoForTheNextSave)
{
    CClientDocument document;
    fillLists(document);
    const std::string first = document.save();
    EXPECT_EQ(sectionNames(first), joined(kLaidOut, ZelTest::kAddedSections));
    EXPECT_EQ(document.save(), first);
    CClientDocument other;
    ASSERT_TRUE(other.read(first));
    EXPECT_EQ(other.save(), first);
    EXPECT_THAT(other.takeMessages(), IsEmpty());
    ASSERT_TRUE(other.read(first)); // into a used document
    EXPECT_EQ(other.save(), first);
    EXPECT_THAT(document.takeMessages(), IsEmpty());
}

TEST(SectionOrder, ListsAreWrittenAlsoWhenTheyAreEmpty)
{
    CClientDocument document;
    fillLists(document);
    document.write();
    for (const CDocumentList& each : documentLists())
        each.list(document)->removeAllObjects();
    const std::string saved = document.save();
    EXPECT_EQ(sectionNames(saved), joined(kLaidOut, ZelTest::kAddedSections));
    for (const CDocumentList& each : documentLists())
        EXPECT_EQ(sectionOf(saved, each.section), "<" + std::string(each.section) + "/>");
}

TEST(SectionOrder, ItemsStandInTheOrderOfTheirList)
{
    for (const CDocumentList& each : documentLists()) {
        SCOPED_TRACE(each.section);
        const std::string start = "<" + std::string(each.item);
        CClientDocument document;
        fillLists(document);
        const std::string before = sectionOf(document.save(), each.section);
        each.list(document)->moveObject(1, 0);
        const std::string after = sectionOf(document.save(), each.section);
        const std::string name = each.section;
        const auto inside = [&](const std::string& text) {
            return text.substr(name.size() + 2, text.size() - 2 * name.size() - 5);
        };
        // Both items are there, the second one first.
        const std::string items = inside(before);
        const std::string close = "</" + std::string(each.item) + ">";
        const std::size_t half = items.size() / 2;
        std::size_t cut = items.find(start + ">", 1);
        for (std::size_t at = items.find(start + " ", 1);
             cut == std::string::npos && at != std::string::npos;
             at = items.find(start + " ", at + 1))
            cut = at;
        ASSERT_NE(cut, std::string::npos);
        EXPECT_NEAR(static_cast<double>(cut), static_cast<double>(half), 40.0);
        EXPECT_EQ(inside(after), items.substr(cut) + items.substr(0, cut));
    }
}

TEST(SectionOrder, OfALoadedFileStays)
{
    CClientDocument source;
    fillLists(source);
    const std::string saved = source.save();
    std::string file;
    CNames expected;
    for (const std::string& name : ZelTest::kAddedSections)
        if (name != "Working.Window") {
            file = sectionOf(saved, name) + file;
            expected.insert(expected.begin(), name);
        }
    expected.push_back("Working.Window");
    CClientDocument document;
    ASSERT_TRUE(document.read(zelFile(file)));
    EXPECT_EQ(sectionNames(document.save()), joined(kLaidOut, expected));
    for (const CDocumentList& each : documentLists())
        EXPECT_EQ(sectionOf(document.written, each.section), sectionOf(saved, each.section));
    EXPECT_EQ(document.save(), document.written);
}

TEST(SectionOrder, SectionsThatAreMissingGoBehindThoseOfTheFile)
{
    CClientDocument document;
    ASSERT_TRUE(document.read(zelFile("<Layers/><Unknown/><Lights/>")));
    CNames expected = joined(kLaidOut, {"Layers", "Unknown", "Lights"});
    for (const std::string& name : ZelTest::kAddedSections)
        if (name != "Layers" && name != "Lights")
            expected.push_back(name);
    EXPECT_EQ(sectionNames(document.save()), expected);
}

TEST(SectionOrder, ComponentsStandInFrontOfThePictures)
{
    CClientDocument document;
    document->getDefinitions()->newZelObject(-1);
    const CNames head = {"Preview.Image", "File.Info", "Images", "InternalComponentDefinitions"};
    EXPECT_EQ(sectionNames(document.save()), joined(head, ZelTest::kAddedSections));
    EXPECT_EQ(sectionNames(document.save()), joined(head, ZelTest::kAddedSections));
}

TEST(SectionOrder, ShadersAndEnvironmentsThatNobodyNamesAreNotWritten)
{
    CClientDocument document;
    const std::string before = document.save();
    document.more().newShader();
    document->getEnvironments()->newZelObject(-1);
    EXPECT_EQ(document.save(), before);
}
