#include "tools/CImportCount.h"

#include "tools/forEach.h"

#include <zel/IZelMgr.h>

#include <map>

namespace tool {

using namespace OvZel;

namespace {

using CNameCounts = std::map<std::string, std::int32_t>;

template <class T>
bool isEvery(T&)
{
    return true;
}

template <class T, class Filter>
CNameCounts namesIn(TZelObjectMgr<T>* list, Filter isWanted)
{
    CNameCounts names;
    if (list)
        forEach(*list, [&](T& object, std::int32_t) {
            if (isWanted(object))
                ++names[object.getBasicData()->getName()];
        });
    return names;
}

template <class T>
std::int32_t sizeOf(TZelObjectMgr<T>* list)
{
    return list ? list->getNbObjects() : 0;
}

// Gives the list of a document, or null.
template <class ListOf, class Filter>
CImportCount countByName(const char* category, IZelMgr& destination, IZelMgr& source, ListOf listOf,
                         Filter isImported)
{
    CImportCount count{
        category, 0, 0, 0, {}, [&destination, listOf] {
                           return sizeOf(listOf(destination)); }};
    const CNameCounts partners =
        namesIn(listOf(destination), [](auto& object) { return isEvery(object); });
    for (const auto& [name, number] : namesIn(listOf(source), isImported)) {
        const auto partner = partners.find(name);
        if (partner != partners.end())
            ++count.overwritten;
        if (number > 1 || (partner != partners.end() && partner->second > 1))
            count.ambiguous.push_back(name);
    }
    count.kept = count.size() - count.overwritten;
    return count;
}

template <class ListOf>
CImportCount countByName(const char* category, IZelMgr& destination, IZelMgr& source, ListOf listOf)
{
    return countByName(category, destination, source, listOf,
                       [](auto& object) { return isEvery(object); });
}

TZelObjectMgr<IZelSequence>* sequencesOf(IZelMgr& document)
{
    IZelScenario* first = document.getScenarios()->getNbObjects() > 0
                              ? document.getScenarios()->getZelObject(0)
                              : nullptr;
    return first ? first->getSequences() : nullptr;
}

// A whole ground comes with the instances, if it is active.
CImportCount countGrounds(IZelMgr& destination, IZelMgr& source)
{
    TZelObjectMgr<IZelGround>& grounds = *destination.getGrounds();
    CImportCount count{"grounds", 0, 0, 0, {}, [&grounds] { return grounds.getNbObjects(); }};
    const bool isImported = source.getGrounds()->getNbObjects() > 0 &&
                            source.getGrounds()->getZelObject(0)->getActive();
    count.overwritten = isImported && grounds.getNbObjects() > 0 ? 1 : 0;
    count.kept = grounds.getNbObjects() - count.overwritten;
    return count;
}

CImportCount countPanoramas(IZelMgr& destination, IZelMgr& source)
{
    return countByName(
        "panoramas", destination, source, [](IZelMgr& document) { return document.getPanoramas(); },
        [](IZelPanoramaV2& panorama) { return panorama.getNodes()->getNbObjects() > 0; });
}

} // namespace

std::vector<CImportCount> importCounts(IZelMgr& destination, IZelMgr& source, std::int32_t flags,
                                       const CSizeBefore& before)
{
    std::vector<CImportCount> counts;
    const auto add = [&](const char* category, auto listOf) {
        counts.push_back(countByName(category, destination, source, listOf));
    };
    if (flags & IZelMgr::eImportInstances) {
        counts.push_back(countLayers(destination, source));
        counts.push_back(countInstances(destination, source));
        counts.push_back(countGrounds(destination, source));
    }
    if (flags & IZelMgr::eImportMaterials)
        counts.push_back(countMaterials(destination, source, before));
    if (flags & IZelMgr::eImportLights)
        add("lights", [](IZelMgr& document) { return document.getLights(); });
    if (flags & IZelMgr::eImportHeliodons)
        add("heliodons", [](IZelMgr& document) { return document.getHeliodons(); });
    if (flags & IZelMgr::eImportCameras)
        add("cameras", [](IZelMgr& document) { return document.getCameras(); });
    if (flags & IZelMgr::eImportParallelViews)
        add("parallelViews", [](IZelMgr& document) { return document.getParallelViews(); });
    if (flags & IZelMgr::eImportViewObjects)
        add("viewObjects", [](IZelMgr& document) { return document.getViewObjects(); });
    if (flags & IZelMgr::eImportPanoramas)
        counts.push_back(countPanoramas(destination, source));
    if (flags & IZelMgr::eImportSequences)
        add("sequences", sequencesOf);
    return counts;
}

} // namespace tool
