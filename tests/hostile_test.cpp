#include "tests/support/CClientDocument.h"
#include "tests/support/smallScene.h"

#include <gtest/gtest.h>

#include <cstring>
#include <limits>

// Files that are broken and streams that misbehave: a load ends with true, or with false and a
// message, and the document can be used afterwards.

using namespace OvZel;
using ZelTest::CClientDocument;
using ZelTest::CMemoryReadStream;
using ZelTest::CMemoryWriteStream;
using ZelTest::kSmallScene;

namespace {

const std::vector<std::string> kSceneMessages = {
    "NaN double.", "INF double.", "Error \"CData block unknown\" while parsing 'Other' data block"};

void probe(const std::string& text)
{
    CMemoryReadStream stream(text);
    IZelMgr::eReadability readability = IZelMgr::eSame;
    const bool isReadable = IZelMgr::checkFormat2(&stream, &readability, nullptr, nullptr, 0);
    EXPECT_EQ(isReadable, readability != IZelMgr::eUnknown && readability != IZelMgr::eTooNew);
    EXPECT_EQ(stream.getPosition(), 0);
    IZelImage* preview = nullptr;
    IZelMgr::readPreviewImage(&preview, &stream);
    if (preview != nullptr)
        preview->Release();
}

/// Whether it loads. What loads can also be saved.
bool loadsOrTells(const std::string& text)
{
    CClientDocument document;
    if (document.read(text)) {
        document.takeMessages();
        EXPECT_TRUE(document.write() || !document.takeMessages().empty());
        return true;
    }
    EXPECT_FALSE(document.takeMessages().empty());
    return false;
}

std::string changedAt(std::size_t place, char value)
{
    std::string text = kSmallScene;
    text[place] = value;
    return text;
}

/// The small scene; what a read does once so many bytes have been read, the failure says.
CMemoryReadStream failingStream(std::size_t after, CMemoryReadStream::CFailure failure)
{
    CMemoryReadStream stream(kSmallScene, 100);
    stream.failsAt = after;
    stream.failure = std::move(failure);
    return stream;
}

std::vector<std::string> messagesOfFailedLoad(IZelReadStream& stream)
{
    CClientDocument document;
    EXPECT_FALSE(document->read(&stream, nullptr));
    const std::vector<std::string> messages = document.takeMessages();
    EXPECT_TRUE(document.read(kSmallScene));
    EXPECT_EQ(document.takeMessages(), kSceneMessages);
    return messages;
}

} // namespace

TEST(HostileFile, TheSmallSceneItselfLoadsWithoutAMessage)
{
    CClientDocument document;
    EXPECT_TRUE(document.read(kSmallScene));
    EXPECT_EQ(document.takeMessages(), kSceneMessages);
    EXPECT_EQ(document->getImages()->getNbObjects(), 2);
    EXPECT_EQ(document->getPoints()->getNbObjects(), 3);
    EXPECT_EQ(document->getPolygons()->getNbObjects(), 2);
    EXPECT_EQ(document->getDefinitions()->getNbObjects(), 2);
    EXPECT_STREQ(document->getObjectDefinition()->getName()->getText(0x6465), "Haus");
}

TEST(HostileFile, EveryPrefixFailsWithAMessage)
{
    const std::string text = kSmallScene;
    const std::size_t end = text.rfind('>') + 1; // what follows is a line end
    for (std::size_t length = 0; length < end; ++length) {
        EXPECT_FALSE(loadsOrTells(text.substr(0, length))) << length << " bytes";
        probe(text.substr(0, length));
    }
}

class HostileByte : public testing::TestWithParam<int> {};

// The values turn text into markup, digits into other digits and into none, and end texts.
TEST_P(HostileByte, ChangedAnywhereLoadsOrFailsWithAMessage)
{
    const std::string text = kSmallScene;
    int nbLoaded = 0;
    for (std::size_t place = 0; place < text.size(); ++place) {
        SCOPED_TRACE("byte " + std::to_string(place));
        const char value = static_cast<char>(GetParam() < 256 ? GetParam() : text[place] ^ 0x81);
        const std::string changed = changedAt(place, value);
        nbLoaded += loadsOrTells(changed);
        probe(changed);
    }
    EXPECT_LT(nbLoaded, static_cast<int>(text.size()));
}

INSTANTIATE_TEST_SUITE_P(Values, HostileByte, testing::Values(0, ' ', '<', '"', '9', 'F', 256));

TEST(HostileStream, TheWidthOfTheStepsMakesNoDifference)
{
    CClientDocument whole;
    ASSERT_TRUE(whole.read(kSmallScene));
    const std::string saved = whole.save();
    ASSERT_FALSE(saved.empty());
    for (const unsigned step : {1U, 2U, 7U, 100U, 4096U}) {
        CClientDocument document;
        EXPECT_TRUE(document.read(kSmallScene, nullptr, step)) << step;
        EXPECT_EQ(document.takeMessages(), kSceneMessages) << step;
        EXPECT_EQ(document.save(), saved) << step;
    }
}

TEST(HostileStream, ARaisedExceptionIsTheMessageWhereverItIsRaised)
{
    for (std::size_t after = 0; after < std::strlen(kSmallScene); after += 100) {
        auto known = failingStream(
            after, [](void*, std::uint32_t) -> std::uint32_t { throw std::runtime_error("disk"); });
        const auto messages = messagesOfFailedLoad(known);
        ASSERT_FALSE(messages.empty()) << after;
        EXPECT_EQ(messages.back(), "disk") << after;

        auto unknown = failingStream(after, CMemoryReadStream::throwInt);
        EXPECT_EQ(messagesOfFailedLoad(unknown).back(), "Unknown reading error") << after;
    }
}

TEST(HostileStream, AnEarlyEndFailsWithAMessage)
{
    for (std::size_t after = 0; after < std::strlen(kSmallScene) - 100; after += 100) {
        auto stream = failingStream(after, [](void*, std::uint32_t) { return 0U; });
        EXPECT_FALSE(messagesOfFailedLoad(stream).empty()) << after;
    }
}

TEST(HostileStream, ACountAboveTheOneAskedForIsNotBelieved)
{
    for (const std::uint32_t excess : {1U, 1000U, std::numeric_limits<std::uint32_t>::max()}) {
        auto stream = failingStream(300, [excess](void* buffer, std::uint32_t size) {
            std::memset(buffer, 'x', size);
            return size > std::numeric_limits<std::uint32_t>::max() - excess
                       ? std::numeric_limits<std::uint32_t>::max()
                       : size + excess;
        });
        // Such a stream never ends, so that a name without end must be stopped by the test.
        int nbReads = 0;
        auto ending = failingStream(300, [&](void* buffer, std::uint32_t size) {
            return ++nbReads > 20 ? 0U : stream.read(buffer, size);
        });
        EXPECT_FALSE(messagesOfFailedLoad(ending).empty()) << excess;
    }
}

namespace {

class CLostStream : public CMemoryReadStream {
public:
    CLostStream() : CMemoryReadStream(kSmallScene) {}
    std::int64_t getPosition() override { throw std::runtime_error("no position"); }
};

class CFixedStream : public CMemoryReadStream {
public:
    CFixedStream() : CMemoryReadStream(kSmallScene) {}
    void setPosition(std::int64_t) override { throw std::runtime_error("cannot go back"); }
};

/// What the probes find in a stream on which they fail.
void expectNoAnswer(IZelReadStream& stream)
{
    IZelMgr::eReadability readability = IZelMgr::eSame;
    EXPECT_FALSE(IZelMgr::checkFormat2(&stream, &readability, nullptr, nullptr, 0));
    EXPECT_EQ(readability, IZelMgr::eUnknown);
    IZelFileInfo* info = nullptr;
    IZelMgr::readFileInfo(&info, &stream);
    if (info != nullptr)
        info->Release();
}

} // namespace

TEST(HostileStream, PositionsThatFailAreTold)
{
    CLostStream lost;
    EXPECT_EQ(messagesOfFailedLoad(lost), std::vector<std::string>{"no position"});
    expectNoAnswer(lost);
    CFixedStream fixed;
    EXPECT_EQ(messagesOfFailedLoad(fixed), std::vector<std::string>{"cannot go back"});
    expectNoAnswer(fixed);
}

TEST(HostileStream, ProbesSwallowWhatTheStreamRaises)
{
    auto stream = failingStream(0, CMemoryReadStream::throwInt);
    expectNoAnswer(stream);
    IZelImage* preview = nullptr;
    IZelMgr::readPreviewImage(&preview, &stream);
    EXPECT_EQ(preview, nullptr);
    CClientDocument document;
    EXPECT_TRUE(document->readMediaInfo(&stream));
    EXPECT_EQ(document.takeMessages(), std::vector<std::string>{});
}

TEST(HostileStream, ASaveThatFailedCanBeRepeated)
{
    CClientDocument document;
    ASSERT_TRUE(document.read(kSmallScene));
    const std::string saved = document.save();
    document.takeMessages();
    for (std::size_t room = 0; room < saved.size(); room += 97) {
        CMemoryWriteStream disk;
        disk.room = room;
        EXPECT_FALSE(document->write(&disk, nullptr)) << room;
        const auto messages = document.takeMessages();
        EXPECT_FALSE(messages.empty()) << room;
        EXPECT_EQ(document.save(), saved) << room;
        document.takeMessages();
    }
}
