#include "geometry/CPolygonMgr.h"

#include "geometry/CGeometryBlockReader.h"
#include "geometry/CPolygon.h"
#include "geometry/CPolygonView.h"
#include "geometry/CPolygonsProvider.h"
#include "geometry/CZELGeoReader.h"
#include "geometry/CZELGeoWriter.h"
#include "tests/support/CGeometrySection.h"
#include "tests/support/COwnStorage.h"
#include "tests/support/CTestBlockHost.h"
#include "tests/support/CXMLTextSource.h"
#include "tests/support/peakMemory.h"
#include "xml/tree/CXMLBufferedReader.h"

#include <gtest/gtest.h>

#include <numeric>
#include <random>

using namespace OvZel;
using namespace ZelTest;

namespace {

using CMesh = TZelComPtr<CPolygonMgr>;
using CTexts = std::vector<std::string>;
using CNumbers = std::vector<std::int32_t>;

CMesh newMesh(IZelObjectLink* owner = nullptr)
{
    return CMesh(new CPolygonMgr(owner));
}

void addVertices(CVertexMgr& vertices, std::int32_t first, std::int32_t count)
{
    for (std::int32_t i = 0; i < count; ++i)
        *vertices.append() = {first + i, CZelVertex::kFlagM, 0.5F, static_cast<float>(i)};
}

/// Everything about the polygon follows from its number: some have holes, some no vertices.
void fill(CPolygon& polygon, std::int32_t number)
{
    polygon.clear();
    polygon.setMaterial(number);
    polygon.setSmooth(number % 2 == 0);
    addVertices(polygon.vertices().manager(), number * 100, number % 6);
    for (std::int32_t i = 0; i < number % 4 - 1; ++i)
        addVertices(polygon.holes().append()->vertices().manager(), number * 100 + 50, i * 3);
}

void appendNumber(CPolygonMgr& mesh, std::int32_t number)
{
    CPolygon polygon(nullptr);
    fill(polygon, number);
    ASSERT_TRUE(mesh.appendFlat(CPolygonView(polygon)));
}

std::string textOf(const CPolygonView& polygon)
{
    std::string text = std::to_string(polygon.getMaterial()) + (polygon.isSmooth() ? "s" : "f");
    for (std::int32_t i = 0; i < polygon.nbLoops(); ++i) {
        text += " |";
        for (const CZelVertex& vertex : polygon.loop(i))
            text += " " + std::to_string(vertex.pointIndex) + "," + std::to_string(vertex.v);
    }
    return text;
}

std::string textOfNumber(std::int32_t number)
{
    CPolygon polygon(nullptr);
    fill(polygon, number);
    return textOf(CPolygonView(polygon));
}

void expectNumbers(const CPolygonMgr& mesh, const CNumbers& numbers)
{
    ASSERT_EQ(static_cast<std::size_t>(mesh.size()), numbers.size());
    for (std::int32_t i = 0; i < mesh.size(); ++i)
        ASSERT_EQ(textOf(CPolygonView(mesh, i)), textOfNumber(numbers[static_cast<std::size_t>(i)]))
            << i;
}

CMesh meshOf(const CNumbers& numbers)
{
    CMesh mesh = newMesh();
    for (const std::int32_t number : numbers)
        appendNumber(*mesh, number);
    return mesh;
}

CNumbers upTo(std::int32_t count)
{
    CNumbers numbers(static_cast<std::size_t>(count));
    std::iota(numbers.begin(), numbers.end(), 0);
    return numbers;
}

CNumbers moved(CNumbers numbers, std::int32_t from, std::int32_t to)
{
    const std::int32_t number = numbers[static_cast<std::size_t>(from)];
    numbers.erase(numbers.begin() + from);
    numbers.insert(numbers.begin() + to, number);
    return numbers;
}

std::int32_t nbObjects(const CPolygonMgr& mesh)
{
    std::int32_t count = 0;
    for (std::int32_t i = 0; i < mesh.size(); ++i)
        count += mesh.objectAt(i) != nullptr ? 1 : 0;
    return count;
}

/// Reads a block of quads into the mesh, as a load does.
void readQuads(CTestBlockHost& host, CPolygonMgr& mesh, std::int32_t count)
{
    std::string text = std::to_string(count) + "\n";
    for (std::int32_t i = 0; i < count; ++i)
        text += "p 0 4 " + std::to_string(i) + " 1 2 3 \n";
    const TZelComPtr<CZELGeoReader::CPoints> points(new CZELGeoReader::CPoints(nullptr));
    CZELGeoReader storage(host.blockMgrRef(), *points, mesh);
    CXMLTextSource stream(text, CXMLTextSource::kWhole);
    OrvaneXML::CXMLBufferedReader in(&stream);
    CGeometryBlockReader(host, in, storage).readPolygons();
}

/// Puts its number down when the client data that it is goes.
class CDeathMark final : public IUnknown {
public:
    CDeathMark(CNumbers& deaths, std::int32_t number) : mDeaths(deaths), mNumber(number) {}

    std::int32_t QueryInterface(const CZelUUID&, void**) override { return -1; }
    std::uint32_t AddRef() override { return 1; }
    std::uint32_t Release() override
    {
        mDeaths.push_back(mNumber);
        return 1;
    }

private:
    CNumbers& mDeaths;
    std::int32_t mNumber;
};

} // namespace

TEST(PolygonMgr, ObjectTakesItsRecordOver)
{
    const CNumbers numbers = upTo(12);
    const CMesh mesh = meshOf(numbers);
    EXPECT_EQ(nbObjects(*mesh), 0);
    for (const std::int32_t i : {3, 11, 0, 7}) {
        EXPECT_EQ(mesh->objectAt(i), nullptr);
        IZelPolygon* polygon = mesh->getZelObject(i);
        EXPECT_EQ(mesh->objectAt(i), polygon);
        EXPECT_EQ(polygon->getMaterial(), i);
        EXPECT_EQ(polygon->getVertices()->getNbObjects(), i % 6);
        expectNumbers(*mesh, numbers);
    }
    EXPECT_EQ(nbObjects(*mesh), 4);
    mesh->getZelObject(3)->setMaterial(77);
    EXPECT_EQ(CPolygonView(*mesh, 3).getMaterial(), 77);
    EXPECT_EQ(mesh->at(5)->getOwnerLink(), mesh->getObjectLink());
}

TEST(PolygonMgr, PointersStayTheSame)
{
    const CMesh mesh = meshOf(upTo(10));
    IZelPolygon* third = mesh->getZelObject(3);
    const CZelVertex* corner = third->getVertices()->getZelObject(1);
    EXPECT_EQ(mesh->getZelObject(3), third);
    mesh->moveObject(3, 8);
    EXPECT_EQ(mesh->getZelObject(8), third);
    mesh->moveObject(0, 9);
    mesh->removeObject(0);
    mesh->newZelObject(2);
    EXPECT_EQ(mesh->getZelObject(7), third);
    for (std::int32_t i = 0; i < mesh->size(); ++i)
        mesh->getZelObject(i);
    EXPECT_EQ(mesh->getZelObject(7), third);
    EXPECT_EQ(third->getVertices()->getZelObject(1), corner);
    EXPECT_EQ(corner->pointIndex, 301);
}

TEST(PolygonMgr, TouchedAndUntouchedMixAnyhow)
{
    std::mt19937 random(1);
    CNumbers numbers = upTo(40);
    const CMesh mesh = meshOf(numbers);
    for (int step = 0; step < 4000; ++step) {
        const auto count = static_cast<std::int32_t>(numbers.size());
        const auto from = static_cast<std::int32_t>(random() % numbers.size());
        const auto to = static_cast<std::int32_t>(random() % numbers.size());
        switch (random() % 5) {
        case 0:
            mesh->moveObject(from, to);
            numbers = moved(numbers, from, to);
            break;
        case 1:
            if (count < 20)
                break;
            mesh->removeObject(from);
            numbers.erase(numbers.begin() + from);
            break;
        case 2:
            fill(static_cast<CPolygon&>(*mesh->newZelObject(from)), step);
            numbers.insert(numbers.begin() + from, step);
            break;
        case 3:
            appendNumber(*mesh, step);
            numbers.push_back(step);
            break;
        default:
            EXPECT_EQ(mesh->getZelObject(from)->getMaterial(),
                      numbers[static_cast<std::size_t>(from)]);
        }
        if (step % 50 == 0)
            expectNumbers(*mesh, numbers);
    }
    expectNumbers(*mesh, numbers);
}

TEST(PolygonMgr, BadIndicesWarnAndChangeNothing)
{
    CTestBlockHost host;
    const CMesh mesh = newMesh(&host.blockMgrRef());
    mesh->removeObject(-1);
    appendNumber(*mesh, 4);
    EXPECT_EQ(mesh->getZelObject(-1), nullptr);
    EXPECT_EQ(mesh->getZelObject(1), nullptr);
    EXPECT_EQ(mesh->newZelObject(-2), nullptr);
    EXPECT_EQ(mesh->newZelObject(2), nullptr);
    mesh->removeObject(1);
    mesh->removeObject(-2);
    mesh->moveObject(0, 1);
    mesh->moveObject(1, 0);
    mesh->moveObject(5, 5);
    EXPECT_FALSE(mesh->reserve(-1));
    EXPECT_TRUE(mesh->reserve(0));
    const std::string get = "getZelObject: Bad index value";
    const std::string make = "newZelObject: Bad index value";
    const std::string remove = "removeObject: Bad index value";
    const std::string move = "moveObject: Bad index value";
    EXPECT_EQ(host.messages, (CTexts{remove, get, get, make, make, remove, remove, move, move}));
    expectNumbers(*mesh, {4});
    EXPECT_EQ(nbObjects(*mesh), 0);
    mesh->removeObject(-1);
    EXPECT_EQ(mesh->size(), 0);
    EXPECT_NE(mesh->newZelObject(0), nullptr);
    EXPECT_EQ(*mesh->getObjectIID(), IZelPolygon::sIID);
}

TEST(PolygonMgr, ObjectThatFindsNoMemory)
{
    class CFull : public CPolygonMgr {
    public:
        using TObject2Mgr::TObject2Mgr;

    protected:
        CHeldPolygon make() override { throw std::bad_alloc(); }
    };
    CTestBlockHost host;
    const TZelComPtr<CFull> mesh(new CFull(&host.blockMgrRef()));
    appendNumber(*mesh, 5);
    EXPECT_EQ(mesh->getZelObject(0), nullptr);
    EXPECT_EQ(mesh->newZelObject(-1), nullptr);
    const std::string text = "newZelObject: Can't allocate object";
    EXPECT_EQ(host.messages, (CTexts{text, text}));
    expectNumbers(*mesh, {5});
}

TEST(PolygonMgr, LoopsOfAnySizeAndManyBlocks)
{
    constexpr std::int32_t kBlock = CFlatPolygons::kBlock;
    const CNumbers sizes = {1,      kBlock - 1, 1,      1, kBlock, kBlock + 1, 0,
                            40'000, kBlock * 3, 40'000, 5, 0,      kBlock - 5, 2};
    const CMesh mesh = newMesh();
    const auto expectSizes = [&](std::int32_t first) {
        for (std::int32_t i = 0; i < mesh->size(); ++i) {
            const auto size = static_cast<std::size_t>(sizes[static_cast<std::size_t>(first + i)]);
            const std::span<const CZelVertex> loop = CPolygonView(*mesh, i).loop(0);
            ASSERT_EQ(loop.size(), size);
            for (std::size_t k = 0; k < size; ++k)
                ASSERT_EQ(loop[k].pointIndex, first + i + static_cast<std::int32_t>(k));
        }
    };
    for (std::int32_t i = 0; i < static_cast<std::int32_t>(sizes.size()); ++i) {
        CPolygon polygon(nullptr);
        addVertices(polygon.vertices().manager(), i, sizes[static_cast<std::size_t>(i)]);
        ASSERT_TRUE(mesh->appendFlat(CPolygonView(polygon)));
    }
    expectSizes(0);
    mesh->releaseSpareRoom();
    for (std::int32_t first = 0; mesh->size() > 0; ++first) {
        expectSizes(first);
        mesh->removeObject(0);
    }
}

TEST(PolygonMgr, HolesComeAlong)
{
    const CMesh mesh = meshOf({3, 7, 11});
    auto* polygon = static_cast<CPolygon*>(mesh->getZelObject(1));
    ASSERT_EQ(polygon->nbHoles(), 2);
    IZelPolygon::IZelHole* hole = polygon->getHoles()->getZelObject(1);
    EXPECT_EQ(hole->getVertices()->getZelObject(2)->pointIndex, 752);
    EXPECT_EQ(polygon->getHoles()->getZelObject(0)->getVertices()->getNbObjects(), 0);
    EXPECT_EQ(CPolygonView(*mesh, 2).nbLoops(), 3);
}

TEST(PolygonMgr, CopiesBetweenLists)
{
    const CNumbers numbers = upTo(9);
    const CMesh source = meshOf(numbers);
    source->getZelObject(2);
    const CMesh flat = newMesh();
    const CMesh objects = newMesh();
    for (std::int32_t i = 0; i < source->size(); ++i)
        EXPECT_TRUE(flat->appendFlat(CPolygonView(*source, i)));
    EXPECT_EQ(nbObjects(*source), 1);
    for (std::int32_t i = 0; i < source->size(); ++i)
        EXPECT_TRUE(objects->newZelObject(-1)->copy(source->getZelObject(i)));
    source->removeAllObjects();
    expectNumbers(*flat, numbers);
    expectNumbers(*objects, numbers);
}

TEST(PolygonMgr, ObjectsGoFromTheFirstToTheLast)
{
    CNumbers deaths;
    std::vector<std::unique_ptr<CDeathMark>> marks;
    const CMesh mesh = meshOf(upTo(6));
    const CZelUUID key{"12345678123456781234567812345678"};
    for (const std::int32_t i : {5, 1, 3}) {
        marks.push_back(std::make_unique<CDeathMark>(deaths, i));
        mesh->getZelObject(i)->getVertices()->getBasicData()->setUserData(&key, marks.back().get());
    }
    mesh->moveObject(5, 0);
    mesh->removeAllObjects();
    EXPECT_EQ(deaths, (CNumbers{5, 1, 3}));
    EXPECT_EQ(mesh->size(), 0);
    appendNumber(*mesh, 8);
    expectNumbers(*mesh, {8});
}

TEST(PolygonMgr, KeptManagersOutliveTheMesh)
{
    CTestBlockHost host;
    CMesh mesh = newMesh(&host.blockMgrRef());
    appendNumber(*mesh, 3);
    appendNumber(*mesh, 7);
    const TZelComPtr<TZelObjectMgr<CZelVertex>> vertices(mesh->getZelObject(0)->getVertices());
    const TZelComPtr<TZelObjectMgr<IZelPolygon::IZelHole>> holes(mesh->getZelObject(1)->getHoles());
    EXPECT_EQ(vertices->getObjectLink()->getOwnerLink(), mesh->at(0)->getObjectLink());
    mesh->removeObject(0);
    mesh.reset();
    ASSERT_EQ(vertices->getNbObjects(), 3);
    EXPECT_EQ(vertices->getZelObject(2)->pointIndex, 302);
    EXPECT_EQ(vertices->getObjectLink()->getOwnerLink(), nullptr);
    EXPECT_EQ(vertices->getObjectLink()->getMgrRef(), &host.blockMgrRef());
    ASSERT_EQ(holes->getNbObjects(), 2);
    EXPECT_EQ(holes->getZelObject(1)->getVertices()->getZelObject(0)->pointIndex, 750);
}

TEST(PolygonMgr, SavingMakesNoObjects)
{
    CGeometrySection<CPolygonsProvider> section("Polygons");
    const TZelComPtr<CZELGeoWriter::CPoints> points(new CZELGeoWriter::CPoints(nullptr));
    const CMesh mesh = meshOf({1, 4, 6, 9});
    mesh->getZelObject(1)->setMaterial(20);
    COwnStorage storage(section.host, *points, *mesh);
    section.host.storage = &storage;
    EXPECT_TRUE(section.write());
    EXPECT_EQ(section.text(), "\n4 \n"
                              "p\t1 1 M 0.5 0.0 100 \n"
                              "o\t20 4 M 0.5 0.0 400 M 0.5 1.0 401 M 0.5 2.0 402 M 0.5 3.0 403 \n"
                              "h\t6 2 0 0 \n"
                              "p\t9 3 M 0.5 0.0 900 M 0.5 1.0 901 M 0.5 2.0 902 \n");
    EXPECT_EQ(section.host.messages, CTexts{"Holed polygon smoothed (smoothing will be loss)"});
    EXPECT_EQ(nbObjects(*mesh), 1);
}

TEST(PolygonMgr, MemoryOfManyQuads)
{
    constexpr std::int32_t kCount = 100'000;
    if (!ZelTest::canMeterMemory())
        GTEST_SKIP() << "this allocator keeps what is freed";
    CTestBlockHost host;
    const CMesh mesh = newMesh(&host.blockMgrRef());
    const auto perQuad = [&, before = ZelTest::heapInUse()] {
        return static_cast<double>(ZelTest::heapInUse() - before) / kCount;
    };
    readQuads(host, *mesh, kCount);
    EXPECT_EQ(nbObjects(*mesh), 0);
    EXPECT_LT(perQuad(), 84.0);
    for (std::int32_t i = 0; i < kCount; i += 2)
        ASSERT_EQ(mesh->getZelObject(i)->getVertices()->getZelObject(0)->pointIndex, i);
    for (std::int32_t i = 1; i < kCount; i += 2)
        ASSERT_EQ(mesh->getZelObject(i)->getVertices()->getZelObject(0)->pointIndex, i);
    // What the allocator adds to every block included; without it these are 176.
    EXPECT_LT(perQuad(), 200.0);
    EXPECT_EQ(sizeof(CPolygonRecord) + sizeof(CPolygon) + sizeof(CVertexMgr) +
                  4 * sizeof(CZelVertex),
              176U);
    mesh->removeAllObjects();
    EXPECT_LT(perQuad(), 1.0);
}
