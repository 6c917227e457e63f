#include "tests/random/CRandomDocument.h"
#include "tests/support/CClientDocument.h"
#include "tests/support/documentLists.h"
#include "tests/support/savedText.h"
#include "tests/toolRun.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cstdlib>

// What holds for any document, tried with random ones. A failure names its document by a seed,
// which zel_random_documents writes into a file.

using namespace OvZel;
using ZelTest::CClientDocument;
using ZelTest::CMemoryReadStream;
using ZelTest::CRandomDocument;
using ZelTest::CRandomValues;

namespace {

constexpr std::int32_t kAllCategories =
    IZelMgr::eImportMaterials | IZelMgr::eImportLights | IZelMgr::eImportHeliodons |
    IZelMgr::eImportInstances | IZelMgr::eImportCameras | IZelMgr::eImportParallelViews |
    IZelMgr::eImportViewObjects | IZelMgr::eImportPanoramas | IZelMgr::eImportSequences;

/// Calls the function with each seed, ten times as many in a full run.
template <class Check>
void forSeeds(std::uint64_t count, Check check)
{
    const std::uint64_t last = std::getenv("ZEL_TEST_FULL") != nullptr ? 10 * count : count;
    for (std::uint64_t seed = 1; seed <= last; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        check(seed);
        if (testing::Test::HasFailure())
            return;
    }
}

/// The saved text of a random document, made without a message.
std::string randomText(std::uint64_t seed)
{
    CClientDocument document;
    CRandomDocument(seed).fill(*document.get());
    EXPECT_TRUE(document.write());
    EXPECT_THAT(document.takeMessages(), testing::IsEmpty());
    return document.written;
}

/// A load leaves the preview to the client.
void takePreview(CClientDocument& document, const std::string& text)
{
    CMemoryReadStream stream(text);
    IZelImage* preview = nullptr;
    IZelMgr::readPreviewImage(&preview, &stream);
    std::uint32_t width = 0;
    std::uint32_t height = 0;
    std::uint8_t* pixels = nullptr;
    if (preview != nullptr)
        preview->getImage(&width, &height, &pixels);
    document->getPreviewImage()->setImage(width, height, pixels);
    if (preview != nullptr)
        preview->Release();
}

std::string loadAndSave(CClientDocument& document, const std::string& text)
{
    const bool good = document.read(text);
    takePreview(document, text);
    return good ? document.save() : "the load failed";
}

std::string resaved(const std::string& text)
{
    CClientDocument document;
    return loadAndSave(document, text);
}

/// Shows where two texts part: half a megabyte of each says nothing.
void expectSame(const std::string& expected, const std::string& found)
{
    constexpr std::ptrdiff_t kBefore = 300;
    constexpr std::size_t kShown = 400;
    if (expected == found)
        return;
    const auto at =
        std::mismatch(expected.begin(), expected.end(), found.begin(), found.end()).first -
        expected.begin();
    const auto from = static_cast<std::size_t>(std::max<std::ptrdiff_t>(at - kBefore, 0));
    ADD_FAILURE() << "at byte " << at << "\nexpected " << expected.substr(from, kShown)
                  << "\nfound " << (from < found.size() ? found.substr(from, kShown) : "less");
}

/// The second document has the lists of the first; those that are empty there may hold anything.
void expectLists(const std::string& expected, const std::string& found)
{
    for (const ZelTest::CDocumentList& list : ZelTest::documentLists()) {
        const std::string section = ZelTest::sectionOf(expected, list.section);
        if (section != '<' + std::string(list.section) + "/>")
            expectSame(section, ZelTest::sectionOf(found, list.section));
    }
}

} // namespace

TEST(RandomDocuments, OneSeedGivesOneText)
{
    forSeeds(5, [](std::uint64_t seed) {
        expectSame(randomText(seed), randomText(seed));
        EXPECT_NE(randomText(seed), randomText(seed + 1));
    });
}

TEST(RandomDocuments, ALoadAndASaveGiveTheSameBytes)
{
    forSeeds(40, [](std::uint64_t seed) {
        const std::string text = randomText(seed);
        CClientDocument document;
        expectSame(text, loadAndSave(document, text));
        EXPECT_THAT(document.takeMessages(), testing::IsEmpty());
    });
}

TEST(RandomDocuments, ALoadReplacesTheListsThatTheFileHas)
{
    forSeeds(15, [](std::uint64_t seed) {
        const std::string text = randomText(seed);
        CClientDocument document;
        ASSERT_TRUE(document.read(randomText(seed + 1)));
        expectLists(text, loadAndSave(document, text));
    });
}

TEST(RandomDocuments, ManySmallReadsGiveTheSameDocument)
{
    forSeeds(5, [](std::uint64_t seed) {
        const std::string text = randomText(seed);
        CClientDocument document;
        ASSERT_TRUE(document.read(text, nullptr, 1 + seed % 13));
        takePreview(document, text);
        expectSame(text, document.save());
    });
}

TEST(RandomDocuments, TheProbesSayWhatALoadSays)
{
    forSeeds(15, [](std::uint64_t seed) {
        const std::string text = randomText(seed);
        CClientDocument document;
        ASSERT_TRUE(document.read(text));

        CMemoryReadStream stream(text);
        auto readability = IZelMgr::eUnknown;
        CZelVersion version;
        char label[64];
        EXPECT_TRUE(IZelMgr::checkFormat2(&stream, &readability, &version, label, sizeof label));
        const std::string application = document->getApplicationName();
        EXPECT_EQ(readability,
                  application == "Vendralis" ? IZelMgr::eSame : IZelMgr::eOtherApplication);
        EXPECT_EQ(version, *document->getLibraryVersion());

        IZelFileInfo* info = nullptr;
        IZelMgr::readFileInfo(&info, &stream);
        ASSERT_NE(info, nullptr);
        EXPECT_EQ(*info->getBasicData()->getId(),
                  *document->getFileInfo()->getBasicData()->getId());
        const double* origin = document->getFileInfo()->getOrigin();
        EXPECT_TRUE(std::equal(origin, origin + 3, info->getOrigin()));
        info->Release();

        CClientDocument other;
        EXPECT_TRUE(other->readMediaInfo(&stream));
        EXPECT_STREQ(other->getObjectDefinition()->getBasicData()->getName(),
                     document->getObjectDefinition()->getBasicData()->getName());
    });
}

TEST(RandomDocuments, TheToolFindsThemReadableAndEqual)
{
    if (toolPath() == nullptr)
        GTEST_SKIP() << "built without the tool";
    forSeeds(5, [](std::uint64_t seed) {
        const CTempFolder folder;
        const std::string text = randomText(seed);
        const std::string file = folder.put("a.zel", text);
        const std::string again = folder.put("b.zel", resaved(text));
        const CRun diff = runTool({"diff", file, again});
        EXPECT_EQ(diff.code, 0) << diff.output << diff.messages;
        EXPECT_EQ(diff.messages, "");
        const CRun check = runTool({"check", file});
        EXPECT_NE(check.output, "");
        EXPECT_EQ(check.output.find("\tE"), std::string::npos) << check.output;
    });
}

TEST(RandomDocuments, ADocumentImportedIntoItselfStaysAsItIs)
{
    forSeeds(10, [](std::uint64_t seed) {
        CClientDocument document;
        CRandomDocument(seed).fill(*document.get());
        const std::string before = document.save();
        IZelMgr::doImportReference(document.get(), document.get(), kAllCategories);
        expectSame(before, document.save());
    });
}

TEST(RandomDocuments, WhatAnImportMakesCanBeSavedAndLoaded)
{
    forSeeds(10, [](std::uint64_t seed) {
        CClientDocument tuned;
        CClientDocument fresh;
        CRandomDocument(seed).fill(*tuned.get());
        CRandomDocument(seed + 1).fill(*fresh.get());
        IZelMgr::doImportReference(tuned.get(), fresh.get(), kAllCategories);
        // The parent of a mapping node is any identifier here.
        EXPECT_THAT(tuned.takeMessages(),
                    testing::Each("CZelXMLIO::GetMappingNode - ParentId refered by child before we "
                                  "meet the parent"));
        EXPECT_THAT(fresh.takeMessages(), testing::IsEmpty());
        const std::string merged = tuned.save();
        expectSame(merged, resaved(merged));
    });
}

TEST(RandomDocuments, UnknownSectionsStayWhereTheyStand)
{
    forSeeds(15, [](std::uint64_t seed) {
        CRandomValues random(seed);
        const std::string text = randomText(seed);
        // A save arranges the head of a file. Behind it, in front of any section.
        std::vector<std::size_t> places;
        for (std::size_t at = text.find("\n\t<Heliodons"); at != std::string::npos;
             at = text.find("\n\t<", at + 1))
            if (text[at + 3] != '/')
                places.push_back(at);
        const std::size_t place = places[random.below(static_cast<std::uint32_t>(places.size()))];
        const std::string unknown =
            "\n\t<Later.Version Kind=\"a&amp;&quot;&lt;b\">\n\t\t<Grüße N=\"1\">a&amp;&lt;b</Grüße>"
            "\n\t\t<!-- kept -->\n\t\t<?kept as it is?>\n\t\t<Raw><![CDATA[<&]]></Raw>"
            "\n\t</Later.Version>";
        const std::string extended = text.substr(0, place) + unknown + text.substr(place);
        expectSame(extended, resaved(extended));
    });
}

TEST(RandomDocuments, AFileThatBreaksOffLeavesNoTraceInTheNextLoad)
{
    forSeeds(15, [](std::uint64_t seed) {
        CRandomValues random(seed);
        CClientDocument document;
        const std::string broken = randomText(seed + 1);
        EXPECT_FALSE(document.read(
            broken.substr(0, random.below(static_cast<std::uint32_t>(broken.size() - 10)))));
        const std::string text = randomText(seed);
        expectLists(text, loadAndSave(document, text));
    });
}

TEST(RandomDocuments, WhatWasReadAheadOfABadObjectIsThere)
{
    const auto lists = ZelTest::documentLists();
    forSeeds(40, [&](std::uint64_t seed) {
        CRandomValues random(seed);
        std::string text = randomText(seed);
        CClientDocument whole;
        ASSERT_TRUE(whole.read(text));
        const std::uint32_t bad = random.below(static_cast<std::uint32_t>(lists.size()));
        const std::size_t section = text.find("\n\t<" + std::string(lists[bad].section) + '>');
        if (lists[bad].size(whole) == 0)
            return;
        const auto item = ZelTest::extentOf(text, lists[bad].item, section + 3);
        text.replace(item.begin, item.end - item.begin, '<' + std::string(lists[bad].item) + "/>");
        CClientDocument part;
        part.read(text);
        for (std::uint32_t i = 0; i < bad; ++i)
            EXPECT_EQ(lists[i].size(part), lists[i].size(whole))
                << lists[i].section << " ahead of " << lists[bad].section;
    });
}
