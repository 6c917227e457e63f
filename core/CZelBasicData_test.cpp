#include "core/CZelBasicData.h"

#include "tests/support/CTestDocument.h"

#include <gtest/gtest.h>

using namespace OvZel;

namespace {

class CData : public CZelBasicData {
public:
    explicit CData(CZelMgrRef* target = nullptr) : mTarget(target) {}
    CZelMgrRef* getWarningTarget() const override { return mTarget; }

private:
    CZelMgrRef* mTarget;
};

/// Client data that counts its references, and may look back at its holder when it is released.
class CClientData : public IUnknown {
public:
    std::int32_t QueryInterface(const CZelUUID&, void**) override { return kQueryNoInterface; }
    std::uint32_t AddRef() override { return static_cast<std::uint32_t>(++references); }
    std::uint32_t Release() override
    {
        if (holder != nullptr)
            seenAtRelease = holder->getUserData(&key);
        return static_cast<std::uint32_t>(--references);
    }

    int references = 0;
    CData* holder = nullptr;
    CZelUUID key;
    IUnknown* seenAtRelease = nullptr;
};

const CZelUUID kFirst("00000000000000000000000000000001");
const CZelUUID kSecond("00000000000000000000000000000002");

} // namespace

TEST(BasicData, ObjectsHaveDifferentIdentifiers)
{
    const CData a, b;
    EXPECT_FALSE(a.getId()->isNull());
    EXPECT_NE(*a.getId(), *b.getId());
}

TEST(BasicData, KeepsItsIdentifier)
{
    CData data;
    data.setName("name"); // comes before the identifier is first asked for
    const CZelUUID id = *data.getId();
    data.setUIValue(1);
    EXPECT_EQ(*data.getId(), id);
    data.setId(&kFirst);
    EXPECT_EQ(*data.getId(), kFirst);
}

TEST(BasicData, ANullIdentifierStaysNull)
{
    CData data;
    data.setId(nullptr); // before there was another
    data.setName("name");
    EXPECT_TRUE(data.getId()->isNull());
    EXPECT_EQ(CData().getId()->isNull(), false);
}

TEST(BasicData, HasANameThatCanBeEmptied)
{
    CData data;
    EXPECT_STREQ(data.getName(), "");
    data.setName("name");
    EXPECT_STREQ(data.getName(), "name");
    data.setName("");
    EXPECT_STREQ(data.getName(), "");
}

TEST(BasicData, ANullNameWarnsAndChangesNothing)
{
    ZelTest::CTestDocument document;
    CData data(document.ref());
    data.setName("name");
    data.setName(nullptr);
    EXPECT_STREQ(data.getName(), "name");
    const std::vector<std::string> expected = {"CZelBasicData::setName - inName is NULL"};
    EXPECT_EQ(document.takeMessages(), expected);
}

TEST(BasicData, HasAUIValue)
{
    CData data;
    EXPECT_EQ(data.getUIValue(), 0u);
    data.setUIValue(0xFFFFFFFF);
    EXPECT_EQ(data.getUIValue(), 0xFFFFFFFFu);
}

TEST(BasicData, KeepsUserDataByKeyWithAReference)
{
    CClientData one, two;
    {
        CData data;
        EXPECT_EQ(data.getUserData(&kFirst), nullptr);
        data.setUserData(&kFirst, &one);
        data.setUserData(&kSecond, &two);
        EXPECT_EQ(data.getUserData(&kFirst), &one);
        EXPECT_EQ(data.getUserData(&kSecond), &two);
        EXPECT_EQ(one.references, 1);
        EXPECT_EQ(two.references, 1);
    }
    EXPECT_EQ(one.references, 0);
    EXPECT_EQ(two.references, 0);
}

TEST(BasicData, NewUserDataReleasesTheOldBehindTheChange)
{
    CData data;
    CClientData one, two;
    one.holder = &data;
    one.key = kFirst;
    data.setUserData(&kFirst, &one);
    data.setUserData(&kFirst, &two);
    EXPECT_EQ(one.references, 0);
    EXPECT_EQ(two.references, 1);
    EXPECT_EQ(one.seenAtRelease, &two);
    data.setUserData(&kFirst, &two);
    EXPECT_EQ(two.references, 1) << "the same value again";
    data.setUserData(&kFirst, nullptr);
    EXPECT_EQ(two.references, 0);
    EXPECT_EQ(data.getUserData(&kFirst), nullptr);
}

TEST(BasicData, HasNoXMLOfItsOwn)
{
    ZelTest::CTestDocument document;
    CData data(document.ref());
    EXPECT_EQ(data.putInXML(nullptr), nullptr);
    EXPECT_EQ(data.getUserXML(), nullptr);
    const std::vector<std::string> expected = {
        "CZelEmptyBasicData::putInXML - This class doesn't implement XML",
        "CZelEmptyBasicData::getUserXML - This class doesn't implement user XML"};
    EXPECT_EQ(document.takeMessages(), expected);
}
