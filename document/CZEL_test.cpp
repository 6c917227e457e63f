#include "document/CZEL.h"

#include "tests/support/CTestFeedback.h"

#include <gtest/gtest.h>
#include <memory>

// What of the document only the library's inside can see: its own mesh storage.

namespace {

using OvZel::CZEL;
using OvZel::CZelPoint;
using OvZel::CZelUUID;
using CMessages = std::vector<std::string>;
using CReader = OvZel::IZelExtStorageReader::IReader;
using CWriter = OvZel::IZelExtStorageWriter::IWriter;

class OwnStorage : public testing::Test {
protected:
    std::unique_ptr<CReader> reader(const CZelUUID* id)
    {
        return std::unique_ptr<CReader>(mDocument->createGeometryReader(id, true));
    }
    std::unique_ptr<CWriter> writer(const CZelUUID* id)
    {
        return std::unique_ptr<CWriter>(mDocument->createGeometryWriter(id));
    }

    ZelTest::CTestFeedback mFeedback;
    OvZel::TZelComPtr<CZEL> mDocument{new CZEL(OvZel::eVersionZel, &mFeedback)};
    const CZelUUID mId{"AAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAA"};
};

TEST_F(OwnStorage, ANullPointerAndTheNullIdentifierMeanTheDocument)
{
    const CZelUUID null;
    const CZelPoint point{1, 2, 3};
    for (const CZelUUID* id : {static_cast<const CZelUUID*>(nullptr), &null}) {
        reader(id)->setNbPoints(1); // a mesh begins: the one before goes
        EXPECT_EQ(mDocument->getPoints()->size(), 0);
        EXPECT_TRUE(reader(id)->setPoint(&point, 77));
        EXPECT_EQ(mDocument->getPoints()->size(), 1);
        EXPECT_EQ(writer(id)->getNbPoints(), 1);
    }
    EXPECT_EQ(mDocument->getDefinitions()->size(), 0);
    EXPECT_EQ(mFeedback.take(), CMessages{});
}

TEST_F(OwnStorage, ReadingMakesAnUnknownComponentAndWritingRefusesIt)
{
    EXPECT_EQ(writer(&mId), nullptr);
    EXPECT_EQ(mFeedback.take(), CMessages{"CZEL::createGeometryWriter - Invalid component id"});
    const CZelPoint point{1, 2, 3};
    EXPECT_TRUE(reader(&mId)->setPoint(&point, 0));
    ASSERT_EQ(mDocument->getDefinitions()->size(), 1);
    EXPECT_EQ(*mDocument->getDefinitions()->at(0)->getId(), mId);
    EXPECT_EQ(writer(&mId)->getNbPoints(), 1);
    EXPECT_TRUE(reader(&mId)->setPoint(&point, 0));
    EXPECT_EQ(mDocument->getDefinitions()->size(), 1);
    EXPECT_EQ(mDocument->getPoints()->size(), 0);
}

TEST_F(OwnStorage, TheLevelIsThatOfANewDefinitionOnly)
{
    EXPECT_EQ(mDocument->definitionOf(mId, 5).getGeometryLevel(), 5);
    EXPECT_EQ(mDocument->definitionOf(mId, 6).getGeometryLevel(), 5);
}

} // namespace
