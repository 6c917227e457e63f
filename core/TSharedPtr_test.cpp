#include "core/TSharedPtr.h"

#include "core/CSelfBlock.h"
#include "core/TZelComPtr.h"
#include "core/TZelStrongPtr.h"
#include "core/TZelWeakPtr.h"

#include "tests/support/messageOf.h"

#include <gtest/gtest.h>

#include <functional>
#include <thread>

using namespace OvZel;
using ZelTest::messageOf;

namespace {

/// An object with a control block of its own that tells when it dies.
class CThing {
public:
    using CBlockObject = CThing;

    explicit CThing(std::function<void()> atDeath) : mAtDeath(std::move(atDeath)) {}
    virtual ~CThing() { mAtDeath(); }

    TZelSharedPtr<CThing>* getBlock() const { return mSelf.get(); }
    std::uint32_t AddRef() { return mSelf.addRef(); }
    std::uint32_t Release() { return mSelf.release(); }

private:
    CSelfBlock<CThing> mSelf{this};
    std::function<void()> mAtDeath;
};

/// A block that tells when it goes.
class CTellingBlock : public TZelSharedPtr<CThing>, public CZelSharedPtrBase {
public:
    explicit CTellingBlock(CThing* object, bool& gone) : TZelSharedPtr<CThing>(object), mGone(gone)
    {
    }
    ~CTellingBlock() override { mGone = true; }

    void addRef() override { raiseStrong(); }
    void release() override { lowerStrong(true); }
    void addWeakRef() override { raiseWeak(); }
    void releaseWeakRef() override { lowerWeak(); }
    void detachRef() override { lowerStrong(false); }
    void destroyObject() override
    {
        delete static_cast<CThing*>(mObject.exchange(nullptr, std::memory_order_acq_rel));
    }

private:
    bool& mGone;
};

} // namespace

TEST(ControlBlock, TheLastStrongCountDestroysObjectAndBlock)
{
    bool dead = false, gone = false;
    auto* block = new CTellingBlock(new CThing([&] { dead = true; }), gone);
    block->addRef();
    block->addRef();
    block->release();
    EXPECT_FALSE(dead);
    block->release();
    EXPECT_TRUE(dead);
    EXPECT_TRUE(gone);
}

TEST(ControlBlock, AWeakCountKeepsTheBlockAlone)
{
    bool dead = false, gone = false;
    auto* block = new CTellingBlock(new CThing([&] { dead = true; }), gone);
    block->addWeakRef();
    block->addRef();
    block->release();
    EXPECT_TRUE(dead);
    EXPECT_FALSE(gone);
    EXPECT_FALSE(block->isAlive());
    EXPECT_EQ(block->get(), nullptr);
    block->addRef(); // a hold on a dead object changes nothing
    block->release();
    EXPECT_FALSE(gone);
    block->releaseWeakRef();
    EXPECT_TRUE(gone);
}

TEST(ControlBlock, DetachLeavesTheObjectAliveWithoutACount)
{
    bool dead = false;
    auto* thing = new CThing([&] { dead = true; });
    thing->getBlock()->addRef();
    thing->getBlock()->detachRef();
    EXPECT_FALSE(dead);
    EXPECT_EQ(thing->getBlock()->get(), thing);
    thing->AddRef();
    thing->Release();
    EXPECT_TRUE(dead);
}

TEST(ControlBlock, DetachAboveOneOnlyCounts)
{
    bool dead = false;
    auto* thing = new CThing([&] { dead = true; });
    thing->AddRef();
    thing->AddRef();
    thing->getBlock()->detachRef();
    EXPECT_FALSE(dead);
    thing->Release();
    EXPECT_TRUE(dead);
}

TEST(ControlBlock, ResetMakesItForgetTheObject)
{
    bool dead = false, gone = false;
    auto* thing = new CThing([&] { dead = true; });
    auto* block = new CTellingBlock(thing, gone);
    block->addRef();
    block->resetPtr();
    block->release();
    EXPECT_TRUE(gone);
    EXPECT_FALSE(dead);
    delete thing;
}

TEST(ControlBlock, AddRefAndReleaseAlwaysAnswerOne)
{
    auto* thing = new CThing([] {});
    for (int i = 0; i < 100; ++i)
        EXPECT_EQ(thing->AddRef(), 1u) << i;
    for (int i = 0; i < 100; ++i)
        EXPECT_EQ(thing->Release(), 1u) << i;
}

TEST(ControlBlock, ADyingObjectMayReleaseOthersAndCountItself)
{
    bool innerDead = false;
    int nbDeaths = 0;
    auto* inner = new CThing([&] { innerDead = true; });
    inner->AddRef();
    CThing* outer = nullptr;
    outer = new CThing([&] {
        ++nbDeaths;
        outer->AddRef();
        outer->Release();
        inner->Release();
    });
    outer->AddRef();
    outer->Release();
    EXPECT_TRUE(innerDead);
    EXPECT_EQ(nbDeaths, 1);
}

TEST(ControlBlock, ADirectlyDestroyedObjectIsSeenAsGone)
{
    TZelWeakPtr<CThing> weak;
    {
        const CThing thing([] {});
        weak = TZelWeakPtr<CThing>(thing.getBlock());
        EXPECT_EQ(weak.getSharedPtr()->get(), &thing);
    }
    EXPECT_EQ(weak.getSharedPtr()->get(), nullptr);
}

TEST(ControlBlock, TwoThreadsKeepTheCount)
{
    bool dead = false;
    auto* thing = new CThing([&] { dead = true; });
    thing->AddRef();
    const auto hammer = [&] {
        for (int i = 0; i < 50'000; ++i) {
            thing->AddRef();
            const TZelWeakPtr<CThing> weak(thing->getBlock());
            thing->Release();
        }
    };
    std::thread other(hammer);
    hammer();
    other.join();
    EXPECT_FALSE(dead);
    thing->Release();
    EXPECT_TRUE(dead);
}

TEST(ControlBlock, TheLibraryWideNullBlockNeverHasAnObject)
{
    IZelSharedPtrBase* block = nullBlock();
    EXPECT_EQ(block, nullBlock());
    block->addRef();
    EXPECT_FALSE(CZelSharedPtrObject::from(block)->isAlive());
    block->release();
}

TEST(WeakPtr, KeepsTheBlockAndRaisesWhenEmpty)
{
    auto* thing = new CThing([] {});
    thing->AddRef();
    TZelWeakPtr<CThing> weak(thing->getBlock());
    const TZelWeakPtr<CThing> copy(weak);
    weak = TZelWeakPtr<CThing>();
    EXPECT_EQ(messageOf([&] { weak.getSharedPtr(); }),
              "TZelWeakPtr::getSharedPtr - Shared pointer is NULL");
    EXPECT_EQ(copy.getSharedPtr()->get(), thing);
    thing->Release();
    EXPECT_EQ(copy.getSharedPtr()->get(), nullptr) << "a dead object raises nothing";
}

TEST(StrongPtr, KeepsTheObject)
{
    bool dead = false;
    auto* thing = new CThing([&] { dead = true; });
    TZelStrongPtr<CThing> one(thing);
    TZelStrongPtr<CThing> two(one);
    one.reset();
    EXPECT_FALSE(dead);
    EXPECT_EQ(two.getPtr(), thing);
    two = TZelStrongPtr<CThing>(two);
    EXPECT_FALSE(dead) << "the new reference is taken before the old one goes";
    TZelStrongPtr<CThing> moved(std::move(two));
    EXPECT_EQ(moved.getPtr(), thing);
    moved.reset();
    EXPECT_TRUE(dead);
}

TEST(StrongPtr, RaisesWhenEmptyOrWithoutObject)
{
    auto* thing = new CThing([] {});
    thing->AddRef();
    const TZelWeakPtr<CThing> weak(thing->getBlock());
    thing->Release();
    const TZelStrongPtr<CThing> orphan(weak.getSharedPtr());
    const TZelStrongPtr<CThing> empty;
    EXPECT_EQ(messageOf([&] { orphan.getPtr(); }), "TZelStrongPtr::getPtr - Pointer is NULL");
    EXPECT_EQ(messageOf([&] { empty.getPtr(); }), "TZelStrongPtr::getPtr - Shared pointer is NULL");
    EXPECT_EQ(orphan.peek(), nullptr);
    EXPECT_EQ(empty.peek(), nullptr);
}

TEST(ComPtr, CountsAndRaisesOnNull)
{
    bool dead = false;
    auto* thing = new CThing([&] { dead = true; });
    TZelComPtr<CThing> one(thing);
    TZelComPtr<CThing> two(one);
    one = TZelComPtr<CThing>();
    EXPECT_FALSE(dead);
    EXPECT_EQ(two.operator->(), thing);
    EXPECT_EQ(&*two, thing);
    two.reset();
    EXPECT_TRUE(dead);
    EXPECT_EQ(messageOf([&] { two.operator->(); }),
              "TZelComPtr::operator->() - Dereferencing NULL");
    EXPECT_EQ(messageOf([&] { *two; }), "TZelComPtr::operator*() - Dereferencing NULL");
}
