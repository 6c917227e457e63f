#include "core/TObjectMgrBase.h"

#include "core/TComObjectMgr.h"
#include "core/TObject2Mgr.h"
#include "core/TObjectMgr.h"
#include "core/TSimpleMgr.h"
#include "core/TZelCOMObjLinkRef.h"
#include "core/TZelFrontierObjLinkRef.h"
#include "tests/support/CTestDocument.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>
#include <memory>
#include <stdexcept>

using namespace OvZel;
using ZelTest::CTestDocument;

namespace {

using CMessages = std::vector<std::string>;
constexpr std::int32_t kLowest = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t kHighest = std::numeric_limits<std::int32_t>::max();

/// What the elements of a test did, and whether the next one can be made.
struct CLog {
    std::vector<int> deaths;
    bool fails = false;
};
CLog gLog;

void failIfTold()
{
    if (gLog.fails)
        throw std::runtime_error("no element");
}

class IThing : public IZelBasic {
public:
    static constexpr CZelUUID sIID{"11111111111111111111111111111111"};
    int mark = 0;

protected:
    ~IThing() override { gLog.deaths.push_back(mark); }
};

class CThing : public TZelCOMObjLinkRef<IThing> {
public:
    explicit CThing(IZelObjectLinkRef* owner) : TZelCOMObjLinkRef(owner) { failIfTold(); }
};

class IPart {
public:
    static constexpr CZelUUID sIID{"22222222222222222222222222222222"};
    int mark = 0;

protected:
    ~IPart() { gLog.deaths.push_back(mark); }
};

class CPart : public TZelFrontierObjLinkRef<IPart> {
public:
    explicit CPart(IZelObjectLinkRef* owner) : TZelFrontierObjLinkRef(owner) { failIfTold(); }
};

class IOwned {
public:
    static constexpr CZelUUID sIID{"33333333333333333333333333333333"};
    int mark = 0;

protected:
    ~IOwned() { gLog.deaths.push_back(mark); }
};

class COwned : public TZelFrontier<IOwned> {
public:
    COwned() { failIfTold(); }
    virtual ~COwned() = default;
};

struct CSimpleCase {
    using CManager = TSimpleMgr<double>;
    static void mark(double& element, int value) { element = value; }
    static int markOf(const double& element) { return static_cast<int>(element); }
    static constexpr const char* kRemoveFromEmpty = "removeObject: no more object to remove";
};

template <class Manager>
struct CObjectCase {
    using CManager = Manager;
    template <class T>
    static void mark(T& element, int value)
    {
        element.mark = value;
    }
    template <class T>
    static int markOf(const T& element)
    {
        return element.mark;
    }
    static constexpr const char* kRemoveFromEmpty = "removeObject: Bad index value";
};

template <class Case>
class Managers : public testing::Test {
protected:
    using CManager = typename Case::CManager;

    Managers() { gLog = CLog(); }

    /// Fills the manager with elements marked 1, 2, 3 and so on.
    void fill(int count)
    {
        for (int i = 1; i <= count; ++i)
            Case::mark(*mManager->newZelObject(-1), i);
    }
    std::vector<int> marks() const
    {
        std::vector<int> found;
        for (std::int32_t i = 0; i < mManager->getNbObjects(); ++i)
            found.push_back(Case::markOf(*mManager->getZelObject(i)));
        return found;
    }
    CMessages messages() { return mDocument.takeMessages(); }

    CTestDocument mDocument;
    TZelComPtr<CManager> mManager{new CManager(mDocument.ref())};
};

using CComCase = CObjectCase<TComObjectMgr<CThing, IThing>>;
using CObject2Case = CObjectCase<TObject2Mgr<CPart, IPart>>;
using COwnedCase = CObjectCase<TObjectMgr<COwned, IOwned>>;
using CAllCases = testing::Types<CComCase, CObject2Case, COwnedCase, CSimpleCase>;
TYPED_TEST_SUITE(Managers, CAllCases);

using CInts = std::vector<int>;

} // namespace

TYPED_TEST(Managers, NewElementsAreInsertedAtTheirIndex)
{
    this->fill(2);
    TypeParam::mark(*this->mManager->newZelObject(0), 10);
    TypeParam::mark(*this->mManager->newZelObject(1), 11);
    TypeParam::mark(*this->mManager->newZelObject(4), 12); // the count itself is a good index
    EXPECT_EQ(this->marks(), (CInts{10, 11, 1, 2, 12}));
    EXPECT_EQ(this->messages(), CMessages{});
}

TYPED_TEST(Managers, NewElementsAreFresh)
{
    this->fill(3);
    this->mManager->removeObject(1);
    EXPECT_EQ(TypeParam::markOf(*this->mManager->newZelObject(1)), 0);
    EXPECT_EQ(TypeParam::markOf(*this->mManager->newZelObject(-1)), 0);
}

TYPED_TEST(Managers, ABadIndexForANewElementWarns)
{
    this->fill(2);
    for (const std::int32_t index : {-2, 3, kLowest, kHighest}) {
        EXPECT_EQ(this->mManager->newZelObject(index), nullptr);
        EXPECT_EQ(this->messages(), CMessages{"newZelObject: Bad index value"}) << index;
    }
    EXPECT_EQ(this->marks(), (CInts{1, 2}));
}

TYPED_TEST(Managers, ABadIndexForAnElementWarns)
{
    this->fill(2);
    for (const std::int32_t index : {-1, 2, kLowest, kHighest}) {
        EXPECT_EQ(this->mManager->getZelObject(index), nullptr);
        EXPECT_EQ(this->messages(), CMessages{"getZelObject: Bad index value"}) << index;
    }
}

TYPED_TEST(Managers, RemoveTakesTheElementOut)
{
    this->fill(4);
    this->mManager->removeObject(1);
    EXPECT_EQ(this->marks(), (CInts{1, 3, 4}));
    this->mManager->removeObject(-1);
    EXPECT_EQ(this->marks(), (CInts{1, 3}));
    this->mManager->removeObject(0);
    EXPECT_EQ(this->marks(), CInts{3});
    EXPECT_EQ(this->messages(), CMessages{});
}

TYPED_TEST(Managers, ABadIndexToRemoveWarns)
{
    this->fill(2);
    for (const std::int32_t index : {-2, 2, kLowest, kHighest}) {
        this->mManager->removeObject(index);
        EXPECT_EQ(this->messages(), CMessages{"removeObject: Bad index value"}) << index;
    }
    EXPECT_EQ(this->marks(), (CInts{1, 2}));
}

TYPED_TEST(Managers, AnEmptyManagerHasNothingToRemove)
{
    this->mManager->removeObject(-1);
    EXPECT_EQ(this->messages(), CMessages{TypeParam::kRemoveFromEmpty});
    this->mManager->removeObject(0);
    EXPECT_EQ(this->messages(), CMessages{"removeObject: Bad index value"});
}

TYPED_TEST(Managers, MoveCountsTheTargetBehindTheRemoval)
{
    constexpr int kCount = 4;
    for (int from = 0; from < kCount; ++from)
        for (int to = 0; to < kCount; ++to) {
            this->mManager->removeAllObjects();
            this->fill(kCount);
            CInts expected = {1, 2, 3, 4};
            const int moved = expected[static_cast<std::size_t>(from)];
            expected.erase(expected.begin() + from);
            expected.insert(expected.begin() + to, moved);
            gLog.deaths.clear();
            this->mManager->moveObject(from, to);
            EXPECT_EQ(this->marks(), expected) << "from " << from << " to " << to;
            EXPECT_EQ(gLog.deaths, CInts{});
        }
    EXPECT_EQ(this->messages(), CMessages{});
}

TYPED_TEST(Managers, OneBadIndexIsEnoughToRefuseAMove)
{
    this->fill(3);
    const std::pair<std::int32_t, std::int32_t> cases[] = {
        {3, 4}, {-1, 5}, {0, 3}, {3, 0}, {-1, 0}, {0, -1}, {kLowest, kHighest}};
    for (auto [from, to] : cases) {
        this->mManager->moveObject(from, to);
        EXPECT_EQ(this->messages(), CMessages{"moveObject: Bad index value"})
            << "from " << from << " to " << to;
    }
    EXPECT_EQ(this->marks(), (CInts{1, 2, 3}));
    this->mManager->moveObject(7, 7);
    EXPECT_EQ(this->messages(), CMessages{}) << "equal indices are not looked at";
}

TYPED_TEST(Managers, RemoveAllEmptiesAndTheManagerGoesOn)
{
    this->fill(3);
    this->mManager->removeAllObjects();
    EXPECT_EQ(this->mManager->getNbObjects(), 0);
    this->fill(1);
    EXPECT_EQ(this->marks(), CInts{1});
    EXPECT_EQ(this->messages(), CMessages{});
}

TYPED_TEST(Managers, ReserveKeepsTheElements)
{
    this->fill(3);
    EXPECT_TRUE(this->mManager->reserve(100));
    EXPECT_TRUE(this->mManager->reserve(50));
    EXPECT_TRUE(this->mManager->reserve(0));
    EXPECT_FALSE(this->mManager->reserve(-1));
    EXPECT_FALSE(this->mManager->reserve(kLowest));
    EXPECT_EQ(this->marks(), (CInts{1, 2, 3}));
    EXPECT_EQ(this->messages(), CMessages{});
}

TYPED_TEST(Managers, AnswersToTheIdentifierOfManagers)
{
    auto* manager = this->mManager.get();
    for (const CZelUUID& accepted : {IID_IUnknown, IZelObjectMgrBase::sIID}) {
        void* out = nullptr;
        EXPECT_EQ(manager->QueryInterface(accepted, &out), kQueryOk);
        EXPECT_EQ(out, static_cast<IZelObjectMgrBase*>(manager));
        manager->Release();
    }
    for (const CZelUUID& refused : {IZelBasic::sIID, IZelObjectLinkRef::sIID, CZelUUID()}) {
        void* out = this;
        EXPECT_EQ(manager->QueryInterface(refused, &out), kQueryNoInterface);
        EXPECT_EQ(out, nullptr);
    }
    EXPECT_EQ(manager->QueryInterface(IID_IUnknown, nullptr), kQueryInvalidArgument);
}

TYPED_TEST(Managers, HaveLinksAndBasicDataOfTheirOwn)
{
    auto* manager = this->mManager.get();
    IZelObjectLink* link = manager->getObjectLink();
    EXPECT_EQ(link->getMgrRef(), this->mDocument.ref());
    EXPECT_EQ(link->getOwnerLink(), this->mDocument.ref());
    EXPECT_EQ(link->getCOMWeakPtr(), manager->getBlock());
    EXPECT_EQ(link->getSelfWeakPtr(), manager->getBlock());
    EXPECT_EQ(manager->getBasicData()->getWarningTarget(), this->mDocument.ref());
    EXPECT_FALSE(manager->getBasicData()->getId()->isNull());
    manager->getBasicData()->setName(nullptr);
    EXPECT_EQ(this->messages(), CMessages{"CZelBasicData::setName - inName is NULL"});
}

TYPED_TEST(Managers, AreSilentWithoutADocument)
{
    const TZelComPtr manager(new typename TypeParam::CManager(nullptr));
    EXPECT_EQ(manager->getZelObject(0), nullptr);
    EXPECT_EQ(manager->newZelObject(1), nullptr);
    manager->removeObject(-1);
    manager->moveObject(0, 1);
    EXPECT_EQ(manager->getObjectLink()->getOwnerLink(), nullptr);
    EXPECT_EQ(manager->getObjectLink()->getMgrRef(), nullptr);
    EXPECT_NE(manager->newZelObject(-1), nullptr);
}

TYPED_TEST(Managers, AreSilentWhenTheDocumentIsGone)
{
    this->mDocument.die();
    EXPECT_EQ(this->mManager->getZelObject(0), nullptr);
    ASSERT_NE(this->mManager->getObjectLink()->getMgrRef(), nullptr);
    EXPECT_EQ(this->mManager->getObjectLink()->getMgrRef()->getMgr(), nullptr);
    EXPECT_EQ(this->messages(), CMessages{});
}

namespace {

template <class Case>
class ObjectManagers : public Managers<Case> {
};

using CObjectCases = testing::Types<CComCase, CObject2Case, COwnedCase>;
TYPED_TEST_SUITE(ObjectManagers, CObjectCases);

} // namespace

TYPED_TEST(ObjectManagers, AnElementThatCannotBeMadeWarns)
{
    this->fill(2);
    gLog.fails = true;
    EXPECT_EQ(this->mManager->newZelObject(-1), nullptr);
    EXPECT_EQ(this->mManager->newZelObject(0), nullptr);
    const CMessages expected(2, "newZelObject: Can't allocate object");
    EXPECT_EQ(this->messages(), expected);
    EXPECT_EQ(this->marks(), (CInts{1, 2}));
}

TYPED_TEST(ObjectManagers, RemovedElementsDie)
{
    this->fill(3);
    this->mManager->removeObject(1);
    EXPECT_EQ(gLog.deaths, CInts{2});
    this->mManager.reset();
    EXPECT_EQ(gLog.deaths.size(), 3u);
}

TEST(ElementTypes, AreNamedByTheirIdentifiers)
{
    const auto idOf = [](IZelObjectMgrBase* made) {
        const TZelComPtr<IZelObjectMgrBase> manager(made);
        return *manager->getObjectIID();
    };
    EXPECT_EQ(idOf(new TComObjectMgr<CThing, IThing>(nullptr)), IThing::sIID);
    EXPECT_EQ(idOf(new TObject2Mgr<CPart, IPart>(nullptr)), IPart::sIID);
    EXPECT_EQ(idOf(new TObjectMgr<COwned, IOwned>(nullptr)), IOwned::sIID);
    EXPECT_EQ(idOf(new TSimpleMgr<double>(nullptr)), ElementId::kDouble);
}

namespace {

class Elements : public testing::Test {
protected:
    Elements() { gLog = CLog(); }
    CTestDocument mDocument;
};

} // namespace

TEST_F(Elements, DieFromLastToFirstOrFromFirstToLast)
{
    const auto deathsOf = [](auto* made) {
        gLog = CLog();
        const TZelComPtr manager(made);
        for (int i = 1; i <= 3; ++i)
            manager->newZelObject(-1)->mark = i;
        manager->removeAllObjects();
        return gLog.deaths;
    };
    EXPECT_EQ(deathsOf(new TComObjectMgr<CThing, IThing>(nullptr)), (CInts{3, 2, 1}));
    EXPECT_EQ(deathsOf(new TObjectMgr<COwned, IOwned>(nullptr)), (CInts{3, 2, 1}));
    EXPECT_EQ(deathsOf(new TObject2Mgr<CPart, IPart>(nullptr)), (CInts{1, 2, 3}));
}

TEST_F(Elements, KnowTheirManagerAsOwner)
{
    const TZelComPtr things(new TComObjectMgr<CThing, IThing>(mDocument.ref()));
    const TZelComPtr parts(new TObject2Mgr<CPart, IPart>(mDocument.ref()));
    CThing* thing = things->append();
    CPart* part = parts->append();
    EXPECT_EQ(thing->getObjectLink()->getOwnerLink(), things->getObjectLink());
    EXPECT_EQ(thing->getObjectLink()->getMgrRef(), mDocument.ref());
    EXPECT_EQ(part->getOwnerLink(), parts->getObjectLink());
    EXPECT_EQ(part->getMgrRef(), mDocument.ref());
    EXPECT_EQ(thing->getCOMWeakPtr(), thing->getSelfWeakPtr());
    EXPECT_EQ(part->getCOMWeakPtr(), nullBlock());
    EXPECT_EQ(part->getSelfWeakPtr(), part->getBlock());
}

TEST_F(Elements, AKeptElementOutlivesManagerAndDocument)
{
    TZelComPtr manager(new TComObjectMgr<CThing, IThing>(mDocument.ref()));
    const TZelComPtr<IThing> kept(manager->newZelObject(-1));
    kept->mark = 7;
    manager->removeObject(0);
    EXPECT_EQ(gLog.deaths, CInts{});
    mDocument.die();
    manager.reset();
    IZelObjectLink* link = kept->getObjectLink();
    ASSERT_NE(link->getOwnerLink(), nullptr);
    EXPECT_EQ(link->getOwnerLink()->getOwnerLink(), link->getMgrRef());
    EXPECT_FALSE(CZelSharedPtrObject::from(link->getOwnerLink()->getCOMWeakPtr())->isAlive());
    ASSERT_NE(link->getMgrRef(), nullptr);
    EXPECT_EQ(link->getMgrRef()->getMgr(), nullptr);
    kept->getBasicData()->setName(nullptr);
    EXPECT_EQ(mDocument.takeMessages(), CMessages{}) << "its warnings go nowhere";
}

TEST_F(Elements, AManagerOfADeadOwnerHasNone)
{
    TZelComPtr owner(new CThing(nullptr));
    const TZelComPtr manager(new TObject2Mgr<CPart, IPart>(owner->getObjectLink()));
    EXPECT_EQ(manager->getObjectLink()->getOwnerLink(), owner->getObjectLink());
    owner.reset();
    EXPECT_EQ(manager->getObjectLink()->getOwnerLink(), nullptr);
}

namespace {

// The address sanitizer ends the process where operator new would raise.
#if defined(__has_feature)
constexpr bool kNewRaises = !__has_feature(address_sanitizer) && !__has_feature(thread_sanitizer);
#elif defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr bool kNewRaises = false;
#else
constexpr bool kNewRaises = true;
#endif

/// A slot of a megabyte, so that no machine has room for many.
struct CLargeSlot {
    COwned* get() const { return element.get(); }
    std::unique_ptr<COwned> element;
    std::array<char, 1 << 20> ballast;
};

class CLargeMgr : public TArrayMgr<COwned, IOwned, CLargeSlot> {
public:
    explicit CLargeMgr(IZelObjectLink* owner) : TArrayMgr(owner) {}
    void removeAllObjects() override { mElements.clear(); }

protected:
    CLargeSlot make() override { return {std::make_unique<COwned>(), {}}; }
};

} // namespace

TEST_F(Elements, ReserveWithoutMemoryIsRefusedInSilence)
{
    if (!kNewRaises)
        GTEST_SKIP() << "needs an operator new that raises";
    const TZelComPtr manager(new CLargeMgr(mDocument.ref()));
    EXPECT_FALSE(manager->reserve(kHighest));
    EXPECT_EQ(mDocument.takeMessages(), CMessages{});
    EXPECT_TRUE(manager->reserve(1));
}
