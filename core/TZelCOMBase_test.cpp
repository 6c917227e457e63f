#include "core/TZelCOMBase.h"

#include "core/CBaseObjectMgr.h"
#include "core/TZelCOMObjLinkRef.h"
#include "tests/support/CTestDocument.h"

#include <zel/IZelImage.h>

#include <gtest/gtest.h>

using namespace OvZel;

namespace {

class IThing : public IZelBasic {
public:
    static constexpr CZelUUID sIID{"11111111111111111111111111111111"};

protected:
    ~IThing() override = default;
};

class CThing : public TZelCOMObjLinkRef<IThing> {
public:
    explicit CThing(bool* dead = nullptr, IZelObjectLinkRef* owner = nullptr)
        : TZelCOMObjLinkRef(owner), mDead(dead)
    {
    }
    ~CThing() override
    {
        if (mDead != nullptr)
            *mDead = true;
    }

private:
    bool* mDead;
};

} // namespace

TEST(COMBase, AnswersToTheIdentifierOfItsFamily)
{
    const TZelComPtr thing(new CThing);
    for (const CZelUUID& accepted : {IID_IUnknown, IZelBasic::sIID}) {
        void* out = nullptr;
        EXPECT_EQ(thing->QueryInterface(accepted, &out), kQueryOk);
        EXPECT_EQ(out, static_cast<IThing*>(thing.get()));
        thing->Release();
    }
}

TEST(COMBase, RefusesEveryOtherIdentifierAndItsOwn)
{
    const TZelComPtr thing(new CThing);
    for (const CZelUUID& refused : {IThing::sIID, IZelImage::sIID, CZelUUID()}) {
        void* out = &out;
        EXPECT_EQ(thing->QueryInterface(refused, &out), static_cast<std::int32_t>(0x80004002u));
        EXPECT_EQ(out, nullptr);
    }
}

TEST(COMBase, ANullResultSlotIsRefusedWithoutACount)
{
    bool dead = false;
    auto* thing = new CThing(&dead);
    thing->AddRef();
    EXPECT_EQ(thing->QueryInterface(IID_IUnknown, nullptr), static_cast<std::int32_t>(0x80070057u));
    EXPECT_EQ(thing->QueryInterface(IThing::sIID, nullptr), static_cast<std::int32_t>(0x80070057u));
    thing->Release();
    EXPECT_TRUE(dead);
}

TEST(COMBase, AQueryTakesOneReference)
{
    bool dead = false;
    auto* thing = new CThing(&dead);
    thing->AddRef();
    void* out = nullptr;
    thing->QueryInterface(IZelBasic::sIID, &out);
    thing->Release();
    EXPECT_FALSE(dead);
    static_cast<IThing*>(out)->Release();
    EXPECT_TRUE(dead);
}

TEST(COMBase, AddRefAndReleaseAlwaysAnswerOne)
{
    const TZelComPtr thing(new CThing);
    for (int i = 0; i < 100; ++i)
        EXPECT_EQ(thing->AddRef(), 1u);
    for (int i = 0; i < 100; ++i)
        EXPECT_EQ(thing->Release(), 1u);
}

TEST(COMBase, ItsLinkTellsOwnerDocumentAndBlock)
{
    ZelTest::CTestDocument document;
    const TZelComPtr owner(new CBaseObjectMgr(document.block(), document.ref()));
    const TZelComPtr thing(new CThing(nullptr, owner.get()));
    IZelObjectLink* link = thing->getObjectLink();
    EXPECT_EQ(link->getOwnerLink(), owner.get());
    EXPECT_EQ(link->getMgrRef(), document.ref());
    EXPECT_EQ(link->getCOMWeakPtr(), thing->getBlock());
    EXPECT_EQ(link->getSelfWeakPtr(), thing->getBlock());
    EXPECT_EQ(thing->getBasicData()->getWarningTarget(), document.ref());
}

TEST(COMBase, HasNeitherOwnerNorDocumentWithoutAnOwner)
{
    const TZelComPtr thing(new CThing);
    EXPECT_EQ(thing->getObjectLink()->getOwnerLink(), nullptr);
    EXPECT_EQ(thing->getObjectLink()->getMgrRef(), nullptr);
    EXPECT_EQ(thing->getBasicData()->getWarningTarget(), nullptr);
}

TEST(BaseObjectMgr, AnswersToTheIdentifierOfItsFamily)
{
    ZelTest::CTestDocument document;
    const TZelComPtr owner(new CBaseObjectMgr(document.block(), document.ref()));
    for (const CZelUUID& accepted : {IID_IUnknown, IZelObjectLinkRef::sIID}) {
        void* out = nullptr;
        EXPECT_EQ(owner->QueryInterface(accepted, &out), kQueryOk);
        EXPECT_EQ(out, static_cast<IZelObjectLinkRef*>(owner.get()));
        owner->Release();
    }
    void* out = &out;
    EXPECT_EQ(owner->QueryInterface(IZelBasic::sIID, &out), kQueryNoInterface);
    EXPECT_EQ(out, nullptr);
}
