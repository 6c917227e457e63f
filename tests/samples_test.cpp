#include "tests/support/CClientDocument.h"
#include "tests/toolRun.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <map>

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
        const std::string piece = text.substr(from, to - from);
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

TEST_P(Samples, NothingIsLost)
{
    const CFile given = takeApart(contents(sample(GetParam())));
    const CFile saved = takeApart(throughLibrary(contents(sample(GetParam()))));
    ASSERT_FALSE(given.sections.empty());
    for (const auto& [name, content] : given.sections) {
        if (isLegacy(name))
            continue;
        const auto found = saved.sections.find(name);
        ASSERT_NE(found, saved.sections.end()) << name;
        EXPECT_TRUE(found->second == content) << name << "\n"
                                              << content.substr(0, 2000) << "\n"
                                              << found->second.substr(0, 2000);
    }
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
    for (const std::string fresh : {"Images", "Tmp.Render.Parameters"})
        if (std::find(given.begin(), given.end(), fresh) == given.end())
            std::erase(saved, fresh);
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
    EXPECT_EQ(stepped.save(), whole.save());
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
