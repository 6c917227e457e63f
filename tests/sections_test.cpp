#include "tests/support/CClientDocument.h"
#include "tests/support/documentLists.h"
#include "tests/support/savedText.h"
#include "tests/support/zelFile.h"

#include <zel/IZelBasicData.h>
#include <zel/IZelFileInfo.h>
#include <zel/IZelLayerInfo.h>
#include <zel/IZelString.h>
#include <zel/IZelZelObjectDefinition.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <set>

// What a load does with the sections of the document's lists.

using namespace OvZel;
using testing::ElementsAre;
using testing::IsEmpty;
using ZelTest::CClientDocument;
using ZelTest::CDocumentList;
using ZelTest::documentLists;
using ZelTest::kIdA;
using ZelTest::sectionOf;
using ZelTest::zelFile;

namespace {

/// The sections of a document with one object in each list, by their names.
std::map<std::string, std::string> filledSections()
{
    CClientDocument document;
    for (const CDocumentList& each : documentLists()) {
        each.list(document)->removeAllObjects();
        each.add(document);
    }
    // A material without nodes is written with one, which gets its identifier when it is read.
    EXPECT_TRUE(document.read(document.save()));
    const std::string saved = document.save();
    std::map<std::string, std::string> found;
    for (const CDocumentList& each : documentLists())
        found[each.section] = sectionOf(saved, each.section);
    return found;
}

/// The objects of a list with three of them.
std::vector<const void*> fill(CClientDocument& document, const CDocumentList& list)
{
    list.list(document)->removeAllObjects();
    std::vector<const void*> made;
    for (int i = 0; i < 3; ++i)
        made.push_back(list.add(document));
    return made;
}

std::vector<const void*> objectsOf(CClientDocument& document, const CDocumentList& list)
{
    std::vector<const void*> found;
    for (std::int32_t i = 0; i < list.size(document); ++i)
        found.push_back(list.at(document, i));
    return found;
}

} // namespace

TEST(Sections, OneThatIsThereReplacesItsList)
{
    const auto filled = filledSections();
    for (const CDocumentList& each : documentLists()) {
        SCOPED_TRACE(each.section);
        CClientDocument document;
        fill(document, each);
        const std::string& given = filled.at(each.section);
        ASSERT_TRUE(document.read(zelFile("<A/>" + given + "<B/>")));
        EXPECT_EQ(each.size(document), 1);
        EXPECT_EQ(sectionOf(document.save(), each.section), given);
        EXPECT_THAT(document.takeMessages(), IsEmpty());
    }
}

TEST(Sections, OneThatIsNotThereLeavesItsList)
{
    for (const CDocumentList& each : documentLists()) {
        SCOPED_TRACE(each.section);
        CClientDocument document;
        const auto made = fill(document, each);
        EXPECT_TRUE(document.read(zelFile("")));
        EXPECT_EQ(objectsOf(document, each), made);
    }
}

TEST(Sections, OneWithoutItemsLeavesItsListButForAFew)
{
    const std::set<std::string> emptied = {"Properties", "Lights.Groups", "Paths.3D"};
    for (const CDocumentList& each : documentLists()) {
        const std::string name = each.section;
        for (const std::string content : {"", "<Other/>", "text", "<!--c-->"}) {
            SCOPED_TRACE(name + " with " + content);
            CClientDocument document;
            const auto made = fill(document, each);
            EXPECT_TRUE(document.read(zelFile("<" + name + ">" + content + "</" + name + ">")));
            if (emptied.count(name) != 0)
                EXPECT_EQ(each.size(document), 0);
            else
                EXPECT_EQ(objectsOf(document, each), made);
            EXPECT_THAT(document.takeMessages(), IsEmpty());
        }
    }
}

TEST(Sections, OnlyTheFirstOfANameIsRead)
{
    const auto filled = filledSections();
    for (const CDocumentList& each : documentLists()) {
        const std::string name = each.section;
        if (name == "Paths.3D")
            continue; // below
        SCOPED_TRACE(name);
        CClientDocument document;
        each.list(document)->removeAllObjects();
        EXPECT_TRUE(document.read(zelFile("<" + name + "/>" + filled.at(name))));
        EXPECT_EQ(each.size(document), 0);
        EXPECT_TRUE(document.read(zelFile(filled.at(name) + "<" + name + "/>")));
        EXPECT_EQ(each.size(document), 1);
    }
}

TEST(Sections, PathsAreReadAlsoUnderTheirOldName)
{
    const std::string given = filledSections().at("Paths.3D");
    std::string old = given;
    for (std::size_t at = old.find("Paths.3D"); at != std::string::npos; at = old.find("Paths.3D"))
        old.replace(at, 8, "3D.Paths");
    const struct {
        std::string sections;
        std::int32_t nb;
        std::string saved;
    } cases[] = {
        {"<A/>" + old + "<B/>", 1, given},
        {"<3D.Paths/>", 0, "<Paths.3D/>"},
        {given + old, 1, given},
        {given + "<3D.Paths/>", 0, "<Paths.3D/>"}, // the old name wins
    };
    for (const auto& item : cases) {
        CClientDocument document;
        document->get3DPaths()->newZelObject(-1);
        document->get3DPaths()->newZelObject(-1);
        EXPECT_TRUE(document.read(zelFile(item.sections))) << item.sections;
        EXPECT_EQ(document->get3DPaths()->getNbObjects(), item.nb) << item.sections;
        EXPECT_EQ(sectionOf(document.save(), "Paths.3D"), item.saved) << item.sections;
        EXPECT_EQ(document.written.find("3D.Paths"), std::string::npos);
    }
}

TEST(Sections, AreReadInTheirOrderWhateverThatOfTheFile)
{
    // What can't be read, where an item without anything in it can.
    const std::map<std::string, std::string> broken = {
        {"ExternalDefinitions", "<External.Definition UUID=\"12\"/>"},
    };
    const auto lists = documentLists();
    const auto filled = filledSections();
    for (std::size_t bad = 0; bad < lists.size(); ++bad) {
        const std::string name = lists[bad].section;
        SCOPED_TRACE(name);
        const auto own = broken.find(name);
        const std::string item =
            own != broken.end() ? own->second : "<" + std::string(lists[bad].item) + "/>";
        std::string file; // in the opposite order
        for (const CDocumentList& each : lists)
            file = (each.section == name ? "<" + name + ">" + item + "</" + name + ">"
                                         : filled.at(each.section)) +
                   file;
        CClientDocument document;
        for (const CDocumentList& each : lists)
            each.list(document)->removeAllObjects();
        EXPECT_FALSE(document.read(zelFile(file)));
        EXPECT_EQ(document.takeMessages().size(), 1U);
        // The object that failed stays, what stands behind it in the order of reading is untouched.
        for (std::size_t i = 0; i < lists.size(); ++i)
            EXPECT_EQ(lists[i].size(document), i <= bad ? 1 : 0) << lists[i].section;
        EXPECT_TRUE(document.write());
    }
}

TEST(Sections, WithoutAWorkingWindowWhatStandsInFrontIsReadAndTheRestIsNot)
{
    const auto filled = filledSections();
    std::string file = zelFile(filled.at("Layers") + filled.at("Lights"));
    const std::string window = "<Working.Window/>";
    file.erase(file.find(window), window.size());
    CClientDocument document;
    EXPECT_FALSE(document.read(file));
    EXPECT_THAT(document.takeMessages(), ElementsAre("Unknown exception"));
    EXPECT_EQ(document->getLights()->getNbObjects(), 1);
    EXPECT_EQ(document->getLayers()->getNbObjects(), 0);
}

TEST(Sections, WorkingViewsStandInTheWorkingWindowAlone)
{
    const auto list = [](CClientDocument& document) { return document.more().getWorkingViews(); };
    CClientDocument source;
    list(source)->newZelObject(-1)->getBasicData()->setName("front");
    list(source)->newZelObject(-1)->getBasicData()->setName("above");
    source->getParallelViews()->newZelObject(-1)->getBasicData()->setName("side");
    const std::string saved = source.save();
    const std::string given = sectionOf(saved, "Working.Window");
    EXPECT_EQ(given.find("side"), std::string::npos);
    EXPECT_EQ(sectionOf(saved, "Parallel.Views").find("front"), std::string::npos);

    CClientDocument document;
    ASSERT_TRUE(document.read(saved));
    ASSERT_EQ(list(document)->getNbObjects(), 2);
    EXPECT_STREQ(list(document)->getZelObject(0)->getBasicData()->getName(), "front");
    EXPECT_STREQ(list(document)->getZelObject(1)->getBasicData()->getName(), "above");
    EXPECT_EQ(document->getParallelViews()->getNbObjects(), 1);
    EXPECT_EQ(document.save(), saved);

    // A window without views leaves them.
    for (const char* empty : {"", "<Working.Window/>",
                              "<Working.Window><Parallel.Views/><Parallel.View/></Working.Window>"})
        EXPECT_TRUE(document.read(zelFile(empty))) << empty;
    EXPECT_EQ(list(document)->getNbObjects(), 2);
    EXPECT_EQ(sectionOf(document.save(), "Working.Window"), given);
}

TEST(Sections, WhatIsNoListStaysWithoutItsSectionToo)
{
    const CZelUUID layer(kIdA.c_str());
    CClientDocument document;
    document->getLayerInfo()->setActiveLayer(layer);
    document.more().getRenderParameters()->entries[3].value = 4.5;
    document->getObjectDefinition()->getName()->setText(0x656E, "House");
    const double origin[] = {1, 2, 3};
    document->getFileInfo()->setOrigin(origin);
    EXPECT_TRUE(document.read(zelFile("")));
    EXPECT_EQ(document->getLayerInfo()->getActiveLayer(), layer);
    EXPECT_EQ(document.more().getRenderParameters()->entries[3].value, 4.5);
    EXPECT_STREQ(document->getObjectDefinition()->getName()->getText(0x656E), "House");
    EXPECT_EQ(document->getFileInfo()->getOrigin()[2], 3.0);

    CClientDocument other;
    ASSERT_TRUE(other.read(document.save()));
    EXPECT_EQ(other->getLayerInfo()->getActiveLayer(), layer);
    EXPECT_EQ(other.more().getRenderParameters()->entries[3].value, 4.5);
    EXPECT_STREQ(other->getObjectDefinition()->getName()->getText(0x656E), "House");
    EXPECT_EQ(other.save(), document.written);
}
