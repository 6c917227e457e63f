#include "document/CDefinitionIndex.h"

#include "tests/support/CTestDocument.h"

#include <gtest/gtest.h>

namespace {

using OvZel::CDefinitionIndex;
using OvZel::CDefinitionMgr;
using OvZel::CZelUUID;
using OvZel::CZelZelObjectDefinition;

class DefinitionIndex : public testing::Test {
protected:
    CZelZelObjectDefinition* add(const CZelUUID& id)
    {
        CZelZelObjectDefinition* made = mDefinitions->append();
        made->setId(&id);
        return made;
    }
    CZelZelObjectDefinition* find(const CZelUUID& id) { return mIndex.find(*mDefinitions, id); }

    ZelTest::CTestDocument mDocument;
    OvZel::TZelComPtr<CDefinitionMgr> mDefinitions{new CDefinitionMgr(mDocument.ref())};
    CDefinitionIndex mIndex;
    const CZelUUID mA{"AAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAA"};
    const CZelUUID mB{"BBBBBBBBBBBBBBBBBBBBBBBBBBBBBBBB"};
};

TEST_F(DefinitionIndex, FindsTheLastThatHasTheIdentifier)
{
    EXPECT_EQ(find(mA), nullptr);
    CZelZelObjectDefinition* first = add(mA);
    EXPECT_EQ(find(mA), first);
    EXPECT_EQ(find(mB), nullptr);
    add(mB);
    CZelZelObjectDefinition* last = add(mA); // appended behind a search
    EXPECT_EQ(find(mA), last);
}

TEST_F(DefinitionIndex, FewerDefinitionsThanBeforeAreCountedAgain)
{
    add(mA);
    CZelZelObjectDefinition* b = add(mB);
    EXPECT_EQ(find(mB), b);
    mDefinitions->removeObject(0);
    EXPECT_EQ(find(mA), nullptr);
    EXPECT_EQ(find(mB), b);
    mDefinitions->removeAllObjects();
    EXPECT_EQ(find(mB), nullptr);
}

TEST_F(DefinitionIndex, NewIdentifiersAreSeenAfterAReset)
{
    CZelZelObjectDefinition* definition = add(mA);
    EXPECT_EQ(find(mA), definition);
    definition->setId(&mB);
    mIndex.reset();
    EXPECT_EQ(find(mA), nullptr);
    EXPECT_EQ(find(mB), definition);
}

} // namespace
