#include "core/TObject2Mgr.h"
#include "core/TZelCOMObjLinkRef.h"
#include "core/TZelStrongPtr.h"
#include "tests/support/CTestDocument.h"

#include <zel/IZelFileInfo.h>

#include <gtest/gtest.h>

#include <atomic>
#include <thread>
#include <vector>

using namespace OvZel;

namespace {

constexpr int kNbRounds = 20'000;

class CThing : public TZelCOMObjLinkRef<IZelFileInfo> {
public:
    CThing(std::atomic<int>& nbDeaths, IZelObjectLinkRef* owner = nullptr)
        : TZelCOMObjLinkRef(owner), mDeaths(nbDeaths)
    {
    }
    ~CThing() override { ++mDeaths; }

    const double* getOrigin() const override { return nullptr; }
    void setOrigin(const double*) override {}

private:
    std::atomic<int>& mDeaths;
};

template <class Action>
void onTwoThreads(Action action)
{
    std::thread other(action);
    action();
    other.join();
}

} // namespace

TEST(CountsThread, TwoThreadsRaiseAndLowerOneCount)
{
    std::atomic<int> nbDeaths{0};
    auto* thing = new CThing(nbDeaths);
    thing->AddRef();
    onTwoThreads([&] {
        for (int i = 0; i < kNbRounds; ++i) {
            thing->AddRef();
            thing->Release();
        }
    });
    EXPECT_EQ(nbDeaths, 0);
    thing->Release();
    EXPECT_EQ(nbDeaths, 1);
}

TEST(CountsThread, EitherThreadMayDropTheLastReference)
{
    std::atomic<int> nbDeaths{0};
    constexpr int kNbThings = 200;
    for (int i = 0; i < kNbThings; ++i) {
        auto* thing = new CThing(nbDeaths);
        thing->AddRef();
        thing->AddRef();
        onTwoThreads([thing] { thing->Release(); });
        EXPECT_EQ(nbDeaths, i + 1);
    }
}

TEST(CountsThread, AHoldThroughTheBlockSeesAWholeObjectOrNone)
{
    std::atomic<int> nbDeaths{0};
    for (int i = 0; i < 200; ++i) {
        auto* thing = new CThing(nbDeaths);
        thing->AddRef();
        const TZelWeakPtr<CThing::CBlockObject> weak(thing->getBlock());
        std::thread other([&] {
            const TZelStrongPtr<CThing> hold(weak.getSharedPtr());
            if (const CThing* seen = hold.peek()) {
                EXPECT_EQ(seen->getOrigin(), nullptr);
            }
        });
        thing->Release();
        other.join();
        EXPECT_EQ(nbDeaths, i + 1);
    }
}

TEST(CountsThread, KeptObjectsDieOnAnyThreadBehindTheirDocument)
{
    std::atomic<int> nbDeaths{0};
    for (int i = 0; i < 100; ++i) {
        ZelTest::CTestDocument document;
        const TZelComPtr<CBaseObjectMgr> owner(
            new CBaseObjectMgr(document.block(), document.ref()));
        std::vector<TZelComPtr<CThing>> mine, others;
        for (int k = 0; k < 4; ++k) {
            mine.emplace_back(new CThing(nbDeaths, owner.get()));
            others.emplace_back(new CThing(nbDeaths, owner.get()));
        }
        std::thread other([&] {
            for (TZelComPtr<CThing>& thing : others) {
                thing->getMgrRef();
                thing.reset();
            }
        });
        mine.clear();
        document.die();
        other.join();
        EXPECT_EQ(nbDeaths, 8 * (i + 1));
    }
}
