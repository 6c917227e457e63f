// What a polygon costs in memory, and what changes of a long list take.

#include "bench/CDocument.h"
#include "bench/CRow.h"
#include "bench/inputs.h"
#include "bench/memoryOf.h"
#include "bench/streams.h"

#include <algorithm>
#include <memory>
#include <vector>

using OvZel::IZelPolygon;
using OvZel::TZelObjectMgr;

namespace ZelBench {

namespace {

using CPolygons = TZelObjectMgr<IZelPolygon>;
using CDocumentPtr = std::shared_ptr<CDocument>;

CDocumentPtr load(const std::string& path)
{
    return std::make_shared<CDocument>(CDocument::from(CFileSource(path)));
}

CDocumentPtr loadAndTouch(const std::string& path)
{
    CDocumentPtr document = load(path);
    CPolygons& polygons = *(*document)->getPolygons();
    for (std::int32_t i = 0; i < polygons.getNbObjects(); ++i)
        benchmark::DoNotOptimize(polygons.getZelObject(i)->getVertices()->getZelObject(0));
    return document;
}

SPair bytesPair(CDocumentPtr (*make)(const std::string&))
{
    const std::string path = fileWith("polygons.zel", zelFile(polygonsSection(terrain())));
    const auto count = static_cast<double>(nbQuads());
    return {[] {
                return static_cast<double>(sizeof(SFlatMesh::SPolygon) +
                                           4 * sizeof(OvZel::CZelVertex));
            },
            [path, make, count] { return memoryOf([&] { return make(path); }).held / count; }};
}

const CRow kBytes("polygon_bytes", [] { return bytesPair(load); });
const CRow kBytesTouched("polygon_bytes_touched", [] { return bytesPair(loadAndTouch); });

using CPointers = std::vector<void*>;

/// Changes at the front of the list, the worst place; seconds for one change.
template <class List>
double changeSeconds(List& list, void (*change)(List&))
{
    constexpr int kChanges = 100;
    const double start = processSeconds();
    for (int i = 0; i < kChanges; ++i)
        change(list);
    return (processSeconds() - start) / kChanges;
}

SPair changePair(void (*plain)(CPointers&), void (*own)(CPolygons&))
{
    const auto pointers = std::make_shared<CPointers>(nbQuads());
    const std::string file = zelFile(polygonsSection(terrain()));
    const auto document = std::make_shared<CDocument>(CDocument::from(CTextSource(file)));
    return {[pointers, plain] { return changeSeconds(*pointers, plain); },
            [document, own] { return changeSeconds(*(*document)->getPolygons(), own); }};
}

const CRow kMove("list_move", [] {
    return changePair(
        [](CPointers& list) { std::rotate(list.begin(), list.begin() + 1, list.end()); },
        [](CPolygons& list) { list.moveObject(0, list.getNbObjects() - 1); });
});

const CRow kRemove("list_remove", [] {
    return changePair([](CPointers& list) { list.erase(list.begin()); },
                      [](CPolygons& list) { list.removeObject(0); });
});

const CRow kInsert("list_insert", [] {
    return changePair([](CPointers& list) { list.insert(list.begin(), &list); },
                      [](CPolygons& list) { benchmark::DoNotOptimize(list.newZelObject(0)); });
});

} // namespace

} // namespace ZelBench
