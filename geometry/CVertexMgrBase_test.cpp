#include "geometry/CVertexMgrBase.h"

#include "geometry/CPolygon.h"
#include "tests/support/CTestBlockHost.h"

#include <gtest/gtest.h>

#include <thread>

using namespace OvZel;
using namespace ZelTest;

namespace {

using CVertices = TZelComPtr<CVertexMgr>;

IZelSharedPtrBase* blockOf(CVertexMgr& vertices)
{
    return vertices.getObjectLink()->getCOMWeakPtr();
}

bool isAlive(IZelSharedPtrBase* block)
{
    return CZelSharedPtrObject::from(block)->isAlive();
}

} // namespace

TEST(VertexMgrBase, AnswersForItsFamily)
{
    CVertices vertices(new CVertexMgr(nullptr));
    void* out = nullptr;
    EXPECT_EQ(vertices->QueryInterface(IZelObjectMgrBase::sIID, &out), kQueryOk);
    EXPECT_EQ(out, static_cast<TZelObjectMgr<CZelVertex>*>(vertices.get()));
    vertices->Release();
    EXPECT_EQ(vertices->QueryInterface(IZelPolygon::sIID, &out), kQueryNoInterface);
    EXPECT_EQ(vertices->AddRef(), 1U);
    EXPECT_EQ(vertices->Release(), 1U);
    EXPECT_EQ(*vertices->getObjectIID(), CZelVertex::sIID);
}

TEST(VertexMgrBase, TheBlockSharesTheCount)
{
    CVertices vertices(new CVertexMgr(nullptr));
    CVertices second = vertices;
    IZelSharedPtrBase* block = blockOf(*vertices);
    EXPECT_EQ(block, blockOf(*vertices));
    EXPECT_EQ(block, vertices->getObjectLink()->getSelfWeakPtr());
    block->addWeakRef();
    block->addRef();
    second.reset();
    CVertexMgr* bare = vertices.get();
    vertices.reset();
    ASSERT_TRUE(isAlive(block));
    // Only the block keeps it; a new holder may come and outlast that.
    vertices = CVertices(bare);
    block->release();
    ASSERT_TRUE(isAlive(block));
    vertices.reset();
    EXPECT_FALSE(isAlive(block));
    block->releaseWeakRef();
}

TEST(VertexMgrBase, KeptWithoutEverHavingBeenAskedForALink)
{
    CTestBlockHost host;
    TZelComPtr<CPolygonMgr> mesh(new CPolygonMgr(&host.blockMgrRef()));
    CPolygon* polygon = mesh->append();
    const CVertices vertices(&polygon->vertices().manager());
    const CVertices ofHole(&polygon->holes().append()->vertices().manager());
    EXPECT_EQ(vertices->getZelObject(0), nullptr);
    mesh.reset();
    EXPECT_EQ(ofHole->getZelObject(0), nullptr);
    EXPECT_EQ(vertices->getZelObject(0), nullptr);
    EXPECT_EQ(host.messages.size(), 3U);
    for (const CVertices& kept : {vertices, ofHole}) {
        EXPECT_EQ(kept->getWarningTarget(), &host.blockMgrRef());
        EXPECT_EQ(kept->getObjectLink()->getMgrRef(), &host.blockMgrRef());
        EXPECT_EQ(kept->getObjectLink()->getOwnerLink(), nullptr);
    }
}

TEST(VertexMgrBase, SilentWithoutADocument)
{
    const CVertices vertices(new CVertexMgr(nullptr));
    EXPECT_EQ(vertices->getZelObject(0), nullptr);
    EXPECT_EQ(vertices->getWarningTarget(), nullptr);
    EXPECT_EQ(vertices->getObjectLink()->getMgrRef(), nullptr);
    EXPECT_EQ(vertices->getBasicData(), vertices.get());
}

TEST(VertexMgrBase, CountsFromAnyThread)
{
    CVertices vertices(new CVertexMgr(nullptr));
    IZelSharedPtrBase* block = nullptr;
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i)
        threads.emplace_back([kept = vertices]() mutable {
            for (int turn = 0; turn < 10'000; ++turn)
                CVertices(kept.get()).reset();
            kept.reset();
        });
    block = blockOf(*vertices);
    block->addWeakRef();
    vertices.reset();
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_FALSE(isAlive(block));
    block->releaseWeakRef();
}
