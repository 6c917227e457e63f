#include "geometry/CPolygon.h"

#include "tests/support/CTestBlockHost.h"
#include "tests/support/vtable.h"

#include <gtest/gtest.h>

using namespace OvZel;
using ZelTest::CTestBlockHost;
using ZelTest::slotOf;

namespace {

using CVertices = TZelObjectMgr<CZelVertex>;

void add(CVertices* vertices, const std::vector<CZelVertex>& records)
{
    for (const CZelVertex& record : records)
        *vertices->newZelObject(-1) = record;
}

/// The bytes of all records, so that a comparison sees every one of them.
std::string bytes(CVertices* vertices)
{
    std::string result;
    for (std::int32_t i = 0; i < vertices->getNbObjects(); ++i)
        result.append(reinterpret_cast<const char*>(vertices->getZelObject(i)), sizeof(CZelVertex));
    return result;
}

void expectSame(IZelPolygon& a, IZelPolygon& b)
{
    EXPECT_EQ(a.isSmooth(), b.isSmooth());
    EXPECT_EQ(a.getMaterial(), b.getMaterial());
    EXPECT_EQ(bytes(a.getVertices()), bytes(b.getVertices()));
    ASSERT_EQ(a.getHoles()->getNbObjects(), b.getHoles()->getNbObjects());
    for (std::int32_t i = 0; i < a.getHoles()->getNbObjects(); ++i)
        EXPECT_EQ(bytes(a.getHoles()->getZelObject(i)->getVertices()),
                  bytes(b.getHoles()->getZelObject(i)->getVertices()));
}

void fill(IZelPolygon& polygon)
{
    polygon.setSmooth(true);
    polygon.setMaterial(-7);
    // No flag M, and a flag bit without a meaning: a copy keeps u, v and every bit.
    add(polygon.getVertices(), {{1, 0xF0000000U, 0.5F, -0.25F}, {2, 3, 1.F, 2.F}, {}, {4}, {5}});
    add(polygon.getHoles()->newZelObject(-1)->getVertices(), {{6}, {7, 1}});
    polygon.getHoles()->newZelObject(-1);
    add(polygon.getHoles()->newZelObject(-1)->getVertices(), {{8}});
}

/// A polygon of another implementation, which hands on to the one inside it.
class CForeignPolygon : public IZelPolygon {
public:
    bool copy(IZelPolygon* other) override { return inside.copy(other); }
    bool isSmooth() const override { return inside.isSmooth(); }
    void setSmooth(bool smooth) override { inside.setSmooth(smooth); }
    std::int32_t getMaterial() const override { return inside.getMaterial(); }
    void setMaterial(std::int32_t material) override { inside.setMaterial(material); }
    CVertices* getVertices() override { return inside.getVertices(); }
    TZelObjectMgr<IZelHole>* getHoles() override { return inside.getHoles(); }

    CPolygon inside{nullptr};
};

} // namespace

TEST(Polygon, Defaults)
{
    CPolygon polygon(nullptr);
    EXPECT_FALSE(polygon.isSmooth());
    EXPECT_EQ(polygon.getMaterial(), 0);
    EXPECT_EQ(polygon.getVertices()->getNbObjects(), 0);
    EXPECT_EQ(polygon.vertices().manager().capacity(), 3);
    EXPECT_EQ(polygon.getHoles()->getNbObjects(), 0);
    auto* hole = static_cast<CLoop*>(polygon.getHoles()->newZelObject(-1));
    EXPECT_EQ(hole->vertices().manager().capacity(), 0);
}

TEST(Polygon, ManagersStayTheSame)
{
    CPolygon polygon(nullptr);
    EXPECT_EQ(polygon.getVertices(), polygon.getVertices());
    EXPECT_EQ(polygon.getHoles(), polygon.getHoles());
    IZelPolygon::IZelHole* hole = polygon.getHoles()->newZelObject(-1);
    const IZelPolygon::IZelHole* view = hole;
    EXPECT_EQ(view->getVertices(), hole->getVertices());
}

TEST(Polygon, CopyIsDeepAndReplaces)
{
    CPolygon source(nullptr);
    fill(source);
    CPolygon expected(nullptr);
    fill(expected);
    CPolygon copy(nullptr);
    add(copy.getVertices(), {{99}});
    add(copy.getHoles()->newZelObject(-1)->getVertices(), {{98}});
    EXPECT_TRUE(copy.copy(&source));
    source.setMaterial(1);
    source.getVertices()->getZelObject(0)->pointIndex = 50;
    source.getHoles()->getZelObject(0)->getVertices()->removeAllObjects();
    expectSame(copy, expected);
}

TEST(Polygon, CopyWorksBetweenImplementations)
{
    CForeignPolygon foreign;
    fill(foreign);
    CPolygon copy(nullptr);
    EXPECT_TRUE(copy.copy(&foreign));
    expectSame(copy, foreign);
    EXPECT_FALSE(copy.copy(nullptr));
}

TEST(Polygon, CopyOntoItselfChangesNothing)
{
    CPolygon polygon(nullptr);
    fill(polygon);
    CPolygon expected(nullptr);
    fill(expected);
    EXPECT_TRUE(polygon.copy(&polygon));
    EXPECT_TRUE(polygon.copyFrom(polygon));
    expectSame(polygon, expected);
}

TEST(Polygon, CopyOfACopyThatNobodyLookedInto)
{
    CPolygon source(nullptr);
    fill(source);
    CPolygon between(nullptr);
    CPolygon last(nullptr);
    EXPECT_TRUE(between.copyFrom(source));
    EXPECT_TRUE(last.copyFrom(between));
    EXPECT_TRUE(last.copyFrom(between));
    expectSame(last, source);
    EXPECT_EQ(last.vertices().records().size(), 5U);
}

TEST(Polygon, ClearKeepsTheMemory)
{
    CPolygon polygon(nullptr);
    fill(polygon);
    const std::int32_t capacity = polygon.vertices().manager().capacity();
    polygon.clear();
    CPolygon fresh(nullptr);
    expectSame(polygon, fresh);
    EXPECT_EQ(polygon.vertices().manager().capacity(), capacity);
}

TEST(Polygon, HoleLeavesTheSmoothing)
{
    CPolygon polygon(nullptr);
    polygon.setSmooth(true);
    polygon.getHoles()->newZelObject(-1);
    EXPECT_TRUE(polygon.isSmooth());
}

TEST(Polygon, KeptManagersOutliveThePolygon)
{
    CTestBlockHost host;
    TZelComPtr<TObject2Mgr<CPolygon, IZelPolygon>> mesh(
        new TObject2Mgr<CPolygon, IZelPolygon>(&host.blockMgrRef()));
    CPolygon* polygon = mesh->append();
    fill(*polygon);
    const TZelComPtr<CVertices> vertices(polygon->getVertices());
    const TZelComPtr<TZelObjectMgr<IZelPolygon::IZelHole>> holes(polygon->getHoles());
    const TZelComPtr<CVertices> holeVertices(holes->getZelObject(0)->getVertices());
    EXPECT_EQ(vertices->getObjectLink()->getOwnerLink(), polygon->getObjectLink());
    mesh->removeAllObjects();
    mesh.reset();
    EXPECT_EQ(vertices->getNbObjects(), 5);
    EXPECT_EQ(vertices->getZelObject(1)->pointIndex, 2);
    EXPECT_EQ(holes->getNbObjects(), 3);
    EXPECT_EQ(holeVertices->getZelObject(1)->pointIndex, 7);
    EXPECT_EQ(vertices->getObjectLink()->getOwnerLink(), nullptr);
    EXPECT_EQ(vertices->getObjectLink()->getMgrRef(), &host.blockMgrRef());
    // They still warn.
    EXPECT_EQ(vertices->getZelObject(5), nullptr);
    EXPECT_EQ(host.messages, std::vector<std::string>{"getZelObject: Bad index value"});
    holes->removeAllObjects();
    EXPECT_EQ(holeVertices->getNbObjects(), 2);
    EXPECT_NE(vertices->newZelObject(-1), nullptr);
}

TEST(Polygon, Slots)
{
    EXPECT_EQ(slotOf(&IZelPolygon::copy), 0);
    EXPECT_EQ(slotOf(&IZelPolygon::isSmooth), 1);
    EXPECT_EQ(slotOf(&IZelPolygon::setSmooth), 2);
    EXPECT_EQ(slotOf(&IZelPolygon::getMaterial), 3);
    EXPECT_EQ(slotOf(&IZelPolygon::setMaterial), 4);
    EXPECT_EQ(slotOf(&IZelPolygon::getVertices), 5);
    EXPECT_EQ(slotOf(&IZelPolygon::getHoles), 6);
    EXPECT_EQ(slotOf(&TZelFrontier<IZelPolygon>::obsolete1), 7);
    EXPECT_EQ(slotOf(&TZelFrontier<IZelPolygon>::obsolete3), 9);
}

TEST(Polygon, HoleSlots)
{
    using IHole = IZelPolygon::IZelHole;
    EXPECT_EQ(slotOf<const CVertices*() const>(&IHole::getVertices), 0);
    EXPECT_EQ(slotOf<CVertices*()>(&IHole::getVertices), 1);
    // The destructor takes two.
    EXPECT_EQ(slotOf(&TZelFrontier<IHole>::obsolete1), 4);
    EXPECT_EQ(slotOf(&TZelFrontier<IHole>::obsolete3), 6);
}
