#include "tests/support/CClientDocument.h"
#include "tests/support/savedText.h"
#include "tests/toolRun.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <set>

// Whole files through the library and back.

namespace {

using namespace OvZel;
using testing::IsEmpty;
using ZelTest::CClientDocument;
using ZelTest::CMemoryReadStream;

/// Loads a file, gives the document its preview as far as a load leaves it out, and saves.
std::string throughLibrary(const std::string& text)
{
    CClientDocument document;
    EXPECT_TRUE(document.read(text));
    CMemoryReadStream stream(text);
    IZelImage* preview = nullptr;
    IZelMgr::readPreviewImage(&preview, &stream);
    if (preview != nullptr) {
        std::uint32_t width = 0, height = 0;
        std::uint8_t* pixels = nullptr;
        preview->getImage(&width, &height, &pixels);
        document->getPreviewImage()->setImage(width, height, pixels);
        preview->Release();
    }
    EXPECT_TRUE(document.write());
    EXPECT_THAT(document.takeMessages(), IsEmpty());
    return document.written;
}

/// The tags, texts, comments, instructions and sections of a file, one piece each. White space
/// between two tags is no piece.
std::vector<std::string> piecesOf(const std::string& text)
{
    std::vector<std::string> pieces;
    for (std::size_t from = 0; from < text.size();) {
        std::size_t to = std::string::npos;
        if (text.compare(from, 9, "<![CDATA[") == 0)
            to = text.find("]]>", from) + 3;
        else if (text.compare(from, 4, "<!--") == 0)
            to = text.find("-->", from) + 3;
        else if (text[from] == '<')
            to = text.find('>', from) + 1;
        else
            to = std::min(text.find('<', from), text.size());
        std::string piece = text.substr(from, to - from);
        if (piece[0] != '<') // a text may be set on lines of its own
            piece.erase(piece.find_last_not_of(" \t\r\n") + 1);
        if (piece.find_first_not_of(" \t\r\n") != std::string::npos)
            pieces.push_back(piece);
        from = to;
    }
    return pieces;
}

struct CFile {
    std::vector<std::string> head;               ///< what stands in front of the file element
    std::map<std::string, std::string> sections; ///< its children by their names, joined
    std::vector<std::string> order;              ///< their names
};

std::string nameOf(const std::string& tag)
{
    return tag.substr(1, tag.find_first_of(" \t\r\n/>", 1) - 1);
}

CFile takeApart(const std::string& text)
{
    CFile file;
    int depth = 0;
    std::string current;
    for (const std::string& piece : piecesOf(text)) {
        const bool isTag = piece[0] == '<' && piece[1] != '!' && piece[1] != '?';
        const bool isEnd = isTag && piece[1] == '/';
        const bool isStart = isTag && !isEnd && piece[piece.size() - 2] != '/';
        if (depth == 0 && !isTag)
            file.head.push_back(piece);
        if (depth == 1 && isTag && !isEnd) {
            current = nameOf(piece);
            EXPECT_EQ(file.sections.count(current), 0U) << current;
            file.order.push_back(current);
        }
        if (depth > 1 || (depth == 1 && !isEnd))
            file.sections[current] += piece;
        depth += isStart ? 1 : isEnd ? -1 : 0;
    }
    EXPECT_EQ(depth, 0);
    return file;
}

/// Sections of early versions, which each save drops.
bool isLegacy(const std::string& name)
{
    return testing::Matches(testing::AnyOf("Heliodon", "Image", "Preview", "Ambient", "Atmosphere",
                                           "Background", "Panoramas", "Current.Id"))(name);
}

class Samples : public testing::TestWithParam<const char*> {};

INSTANTIATE_TEST_SUITE_P(All, Samples, testing::Values("house.zel", "legacy.zel", "minimal.zel"),
                         [](const auto& item) {
                             const std::string name = item.param;
                             return name.substr(0, name.find('.'));
                         });

TEST_P(Samples, TheSecondRoundChangesNothing)
{
    const std::string first = throughLibrary(contents(sample(GetParam())));
    EXPECT_EQ(throughLibrary(first), first);
}

TEST_P(Samples, TheSecondRoundWithoutThePreviewChangesNothing)
{
    const auto plain = [](const std::string& text) {
        CClientDocument document;
        EXPECT_TRUE(document.read(text));
        return document.save();
    };
    const std::string first = plain(plain(contents(sample(GetParam()))));
    EXPECT_EQ(plain(first), first);
}

class CurrentSamples : public Samples {};

INSTANTIATE_TEST_SUITE_P(All, CurrentSamples, testing::Values("house.zel", "minimal.zel"),
                         [](const auto& item) {
                             const std::string name = item.param;
                             return name.substr(0, name.find('.'));
                         });

TEST_P(CurrentSamples, NothingIsLost)
{
    const CFile given = takeApart(contents(sample(GetParam())));
    const CFile saved = takeApart(throughLibrary(contents(sample(GetParam()))));
    ASSERT_FALSE(given.sections.empty());
    for (const auto& [name, content] : given.sections) {
        const auto found = saved.sections.find(name);
        ASSERT_NE(found, saved.sections.end()) << name;
        EXPECT_TRUE(found->second == content) << name << "\n"
                                              << content.substr(0, 2000) << "\n"
                                              << found->second.substr(0, 2000);
    }
}

/// The elements of a text that hold a text alone, whole.
std::set<std::string> leavesOf(const std::string& text)
{
    std::set<std::string> leaves;
    const std::vector<std::string> pieces = piecesOf(text);
    for (std::size_t i = 2; i < pieces.size(); ++i)
        if (pieces[i].substr(0, 2) == "</" && pieces[i - 1][0] != '<' && pieces[i - 2][0] == '<')
            leaves.insert(pieces[i - 2] + pieces[i - 1] + pieces[i]);
    return leaves;
}

// An early file's sections go out in the form of today.
TEST(EarlySample, ItsValuesArriveInTheFormOfToday)
{
    const std::string given = contents(sample("legacy.zel"));
    const std::string saved = throughLibrary(given);
    const struct {
        std::string early, today;
    } changed[] = {
        {"<TimeZone>1</TimeZone>", "<TimeZone>60</TimeZone>"},
        {"<North.Angle>-30.000000</North.Angle>", "<North.Angle>330.000000</North.Angle>"},
        {"<URL Type=\"Refletion\">maps/water.jpg</URL>", // (sic)
         "<URL Type=\"Reflection\">maps/water.jpg</URL>"},
        {"<URL>maps/brick.jpg</URL>", "<URL Type=\"Diffuse\">maps/brick.jpg</URL>"},
        {"<URL Type=\"Refletion\">maps/wet.jpg</URL>", // (sic)
         "<URL Type=\"Reflection\">maps/wet.jpg</URL>"},
        {"<Texture1Width>80.000000</Texture1Width>", "<Width>80.000000</Width>"},
        {"<Texture1Height>80.000000</Texture1Height>", "<Height>80.000000</Height>"},
        {"<Texture2Width>120.000000</Texture2Width>", "<Width>120.000000</Width>"},
        {"<Texture2Height>60.000000</Texture2Height>", "<Height>60.000000</Height>"},
        {"<Tansparency>0.250000</Tansparency>", "<Transparency>0.250000</Transparency>"}, // (sic)
        {"<Nb.Loops>3</Nb.Loops>", "<Nb.Loops>0</Nb.Loops>"}, // not read without a path
        {"<Current.Id>17</Current.Id>", ""},                  // dropped
    };
    const std::set<std::string> before = leavesOf(given), after = leavesOf(saved);
    for (const std::string& leaf : before) {
        const bool isColour = testing::Matches(testing::AnyOf(testing::StartsWith("<Red>"),
                                                              testing::StartsWith("<Green>"),
                                                              testing::StartsWith("<Blue>")))(leaf);
        const auto* row = std::find_if(std::begin(changed), std::end(changed),
                                       [&](const auto& each) { return each.early == leaf; });
        EXPECT_TRUE(row != std::end(changed) || isColour || after.count(leaf) == 1) << leaf;
    }
    for (const auto& [early, today] : changed) {
        EXPECT_EQ(before.count(early), 1U) << early;
        EXPECT_EQ(after.count(early), 0U) << early;
        EXPECT_TRUE(today.empty() || after.count(today) == 1) << today;
    }
    // Colours had an element for each part.
    EXPECT_NE(saved.find("<Diffuse R=\"200\" G=\"180\" B=\"150\"/>"), std::string::npos);
}

TEST_P(Samples, TheHeadKeepsAllButTheFormat)
{
    std::vector<std::string> given = takeApart(contents(sample(GetParam()))).head;
    ASSERT_GT(given.size(), 2U);
    EXPECT_EQ(given[1].substr(0, 6), "<?Zel ");
    given[1] =
        "<?Zel library=\"6.0.6\" file=\"6.0\" min_version=\"6.0.0\" safe_version=\"6.0.4\"?>";
    EXPECT_EQ(takeApart(throughLibrary(contents(sample(GetParam())))).head, given);
}

TEST_P(Samples, SectionsKeepTheirOrderButForTheWorkingWindow)
{
    std::vector<std::string> given = takeApart(contents(sample(GetParam()))).order;
    std::vector<std::string> saved = takeApart(throughLibrary(contents(sample(GetParam())))).order;
    std::erase_if(given, isLegacy);
    std::erase(given, "Working.Window");
    EXPECT_EQ(saved.back(), "Working.Window");
    saved.pop_back();
    std::erase_if(saved, [&](const std::string& name) {
        return std::find(given.begin(), given.end(), name) == given.end();
    });
    EXPECT_EQ(saved, given);
}

TEST_P(Samples, SmallStepsOfTheStreamReadTheSame)
{
    const std::string text = contents(sample(GetParam()));
    CClientDocument whole, stepped;
    EXPECT_TRUE(whole.read(text));
    CMemoryReadStream stream(text);
    stream.step = 13;
    EXPECT_TRUE(stepped->read(&stream, nullptr));
    // What has no identifier in the file gets another one in each load.
    EXPECT_EQ(ZelTest::withoutNewIds(stepped.save(), text),
              ZelTest::withoutNewIds(whole.save(), text));
}

TEST_P(Samples, AFileThatBreaksOffIsRefusedAndLeavesTheOldOne)
{
    const std::string text = contents(sample(GetParam()));
    for (int part = 1; part < 8; ++part) {
        CClientDocument document;
        document->setURL("old");
        EXPECT_FALSE(
            document.read(text.substr(0, text.size() * static_cast<std::size_t>(part) / 8)));
        EXPECT_FALSE(document.takeMessages().empty());
        EXPECT_STREQ(document->getURL(), "old");
        EXPECT_TRUE(document.write());
    }
}

} // namespace
