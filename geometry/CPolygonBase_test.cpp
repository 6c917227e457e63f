#include "geometry/CPolygonBase.h"

#include "geometry/CPolygon.h"
#include "tests/support/CTestBlockHost.h"

#include <gtest/gtest.h>

using namespace OvZel;
using namespace ZelTest;

namespace {

using CMesh = TZelComPtr<CPolygonMgr>;

/// Client data of a loop that asks for the polygon's control block when the loop goes.
class CLastLook : public IUnknown {
public:
    std::int32_t QueryInterface(const CZelUUID&, void**) override { return kQueryNoInterface; }
    std::uint32_t AddRef() override { return ++mNbReferences; }
    std::uint32_t Release() override
    {
        if (--mNbReferences == 0 && block == nullptr) {
            block = polygon->getSelfWeakPtr();
            block->addWeakRef();
        }
        return mNbReferences;
    }

    CPolygon* polygon = nullptr;
    IZelSharedPtrBase* block = nullptr;

private:
    std::uint32_t mNbReferences = 0;
};

} // namespace

TEST(PolygonBase, LinksToTheListAndTheDocument)
{
    CTestBlockHost host;
    const CMesh mesh(new CPolygonMgr(&host.blockMgrRef()));
    IZelObjectLink* link = mesh->append()->getObjectLink();
    EXPECT_EQ(link->getOwnerLink(), mesh->getObjectLink());
    EXPECT_EQ(link->getMgrRef(), &host.blockMgrRef());
    EXPECT_EQ(link->getCOMWeakPtr(), nullBlock());
    EXPECT_EQ(link->getSelfWeakPtr(), link->getSelfWeakPtr());
}

TEST(PolygonBase, ACountOfTheBlockKeepsAPolygonThatIsRemoved)
{
    const CMesh mesh(new CPolygonMgr(nullptr));
    CPolygon* polygon = mesh->append();
    polygon->setMaterial(5);
    IZelSharedPtrBase* block = polygon->getSelfWeakPtr();
    block->addWeakRef();
    block->addRef();
    mesh->removeObject(0);
    EXPECT_TRUE(CZelSharedPtrObject::from(block)->isAlive());
    EXPECT_EQ(polygon->getMaterial(), 5);
    block->release();
    EXPECT_FALSE(CZelSharedPtrObject::from(block)->isAlive());
    block->releaseWeakRef();
}

TEST(PolygonBase, AWeakCountKeepsTheBlockAlone)
{
    for (const bool isHeld : {false, true}) {
        auto polygon = std::make_unique<CPolygon>(nullptr);
        IZelSharedPtrBase* block = polygon->getSelfWeakPtr();
        block->addWeakRef();
        if (isHeld) {
            polygon->hold();
            polygon.release()->letGo();
        }
        polygon.reset();
        EXPECT_FALSE(CZelSharedPtrObject::from(block)->isAlive());
        block->releaseWeakRef();
    }
}

TEST(PolygonBase, LoopsStayTheSameWhenTheRestIsMade)
{
    const CMesh mesh(new CPolygonMgr(nullptr));
    CPolygon* polygon = mesh->append();
    TZelObjectMgr<CZelVertex>* const vertices = polygon->getVertices();
    vertices->newZelObject(-1)->pointIndex = 7;
    CZelVertex* const vertex = vertices->getZelObject(0);
    EXPECT_EQ(polygon->nbHoles(), 0);
    IZelSharedPtrBase* const block = polygon->getSelfWeakPtr();
    TZelObjectMgr<IZelPolygon::IZelHole>* const holes = polygon->getHoles();
    ASSERT_NE(holes->newZelObject(-1), nullptr);
    EXPECT_EQ(polygon->getVertices(), vertices);
    EXPECT_EQ(polygon->getVertices()->getZelObject(0), vertex);
    EXPECT_EQ(polygon->getSelfWeakPtr(), block);
    EXPECT_EQ(polygon->getHoles(), holes);
    EXPECT_EQ(polygon->nbHoles(), 1);
}

TEST(PolygonBase, ABlockThatIsMadeWhileThePolygonGoesKnowsNoObject)
{
    const CMesh mesh(new CPolygonMgr(nullptr));
    CLastLook look;
    look.polygon = mesh->append();
    const CZelUUID key("0123456789ABCDEF0123456789ABCDEF");
    look.polygon->getVertices()->getBasicData()->setUserData(&key, &look);
    mesh->removeObject(0);
    ASSERT_NE(look.block, nullptr);
    EXPECT_FALSE(CZelSharedPtrObject::from(look.block)->isAlive());
    look.block->addRef();
    look.block->release();
    look.block->releaseWeakRef();
}
