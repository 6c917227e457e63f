#include "import/CViewsImport.h"

#include <zel/IZelCamera.h>
#include <zel/IZelMgr.h>
#include <zel/IZelParallelView.h>
#include <zel/IZelViewObject.h>

#include <algorithm>
#include <set>

namespace OvZel {

namespace {

using CIdTable = std::map<CZelUUID, CZelUUID>;

CIdTable pairLayers(TZelObjectMgr<IZelLayer>& destination, TZelObjectMgr<IZelLayer>& source)
{
    CIdTable table;
    TNameIndex<IZelLayer> partners(destination);
    const std::int32_t count = source.getNbObjects();
    for (std::int32_t i = 0; i < count; ++i) {
        IZelLayer& layer = *source.getZelObject(i);
        if (IZelLayer* partner = partners.find(CNameOf()(layer)))
            table[CIdOf()(layer)] = CIdOf()(*partner);
    }
    return table;
}

/// The nodes of a copied panorama have identifiers of their own.
CIdTable pairNodes(TZelObjectMgr<IZelPanoNodeV2>& destination,
                   TZelObjectMgr<IZelPanoNodeV2>& source)
{
    CIdTable table;
    const std::int32_t count = std::min(destination.getNbObjects(), source.getNbObjects());
    for (std::int32_t i = 0; i < count; ++i)
        table[CIdOf()(*source.getZelObject(i))] = CIdOf()(*destination.getZelObject(i));
    return table;
}

CZelUUID valueOrNull(const CIdTable& table, const CZelUUID& key)
{
    const auto found = table.find(key);
    return found != table.end() ? found->second : CZelUUID();
}

void showLayers(TZelObjectMgr<CZelUUID>& shown, TZelObjectMgr<IZelLayer>& layers)
{
    std::set<CZelUUID> known;
    for (std::int32_t i = 0; i < shown.getNbObjects(); ++i)
        known.insert(*shown.getZelObject(i));
    for (std::int32_t i = 0; i < layers.getNbObjects(); ++i) {
        const CZelUUID id = CIdOf()(*layers.getZelObject(i));
        if (!known.insert(id).second)
            continue;
        CZelUUID* added = shown.newZelObject(-1);
        OvThrow::IfNULL(added);
        *added = id;
    }
}

} // namespace

CViewsImport::CViewsImport(IZelMgr& destination, IZelMgr& source, CLightsImport& lights,
                           CAnimationImport& animation)
    : mDestination(destination), mSource(source), mLights(lights), mAnimation(animation),
      mLayerTable(pairLayers(*destination.getLayers(), *source.getLayers()))
{
}

template <class I>
void CViewsImport::importViews(TZelObjectMgr<I>& destination, TZelObjectMgr<I>& source)
{
    mergeByName(destination, source, [&](I& view, I&) {
        bringUsed(*view.getViewInfo());
        mImported.push_back(view.getViewInfo());
    });
}

void CViewsImport::importCameras()
{
    importViews(*mDestination.getCameras(), *mSource.getCameras());
}

void CViewsImport::importParallelViews()
{
    importViews(*mDestination.getParallelViews(), *mSource.getParallelViews());
}

void CViewsImport::importViewObjects()
{
    importViews(*mDestination.getViewObjects(), *mSource.getViewObjects());
}

void CViewsImport::importPanoramas()
{
    TMerger<IZelPanoramaV2, CNameOf> merger(*mDestination.getPanoramas());
    TZelObjectMgr<IZelPanoramaV2>& panoramas = *mSource.getPanoramas();
    const std::int32_t count = panoramas.getNbObjects();
    for (std::int32_t i = 0; i < count; ++i) {
        IZelPanoramaV2& source = *panoramas.getZelObject(i);
        if (source.getNodes()->getNbObjects() == 0)
            continue;
        if (const auto copy = merger.merge(source); copy.isComplete)
            importPanorama(*copy.object, source);
    }
}

void CViewsImport::importPanorama(IZelPanoramaV2& copy, IZelPanoramaV2& source)
{
    copy.getBasicData()->setName(source.getBasicData()->getName());
    bringUsed(*copy.getViewInfo());
    const CIdTable nodes = pairNodes(*copy.getNodes(), *source.getNodes());
    copy.setStartNode(valueOrNull(nodes, source.getStartNode()));
    copy.setCurrentNode(valueOrNull(nodes, source.getCurrentNode()));
    TZelObjectMgr<IZelPanoLinkV2>& to = *copy.getLinks();
    TZelObjectMgr<IZelPanoLinkV2>& from = *source.getLinks();
    const std::int32_t count = std::min(to.getNbObjects(), from.getNbObjects());
    for (std::int32_t i = 0; i < count; ++i) {
        to.getZelObject(i)->setStart(valueOrNull(nodes, from.getZelObject(i)->getStart()));
        to.getZelObject(i)->setEnd(valueOrNull(nodes, from.getZelObject(i)->getEnd()));
    }
}

void CViewsImport::importSequences()
{
    IZelScenario* source = mAnimation.sourceScenario();
    if (source == nullptr)
        return;
    mergeByName(*mAnimation.destinationScenario().getSequences(), *source->getSequences(),
                [&](IZelSequence& sequence, IZelSequence&) {
                    bringUsed(*sequence.getViewInfo());
                    mAnimation.bring(CIdOf()(sequence));
                    mImported.push_back(sequence.getViewInfo());
                });
}

void CViewsImport::bringUsed(IZelViewInfo& info)
{
    translateLayers(*info.getLayers());
    mLights.bringGroups(*info.getLightsGroups());
    mLights.bringHeliodon(info.getHeliodonName());
}

void CViewsImport::translateLayers(TZelObjectMgr<CZelUUID>& layers) const
{
    const std::int32_t count = layers.getNbObjects();
    for (std::int32_t i = 0; i < count; ++i) {
        CZelUUID& id = *layers.getZelObject(i);
        if (const auto found = mLayerTable.find(id); found != mLayerTable.end())
            id = found->second;
    }
}

void CViewsImport::showAllLayers()
{
    if (mSource.getLayers()->getNbObjects() > 0)
        return;
    for (IZelViewInfo* info : mImported)
        showLayers(*info->getLayers(), *mDestination.getLayers());
}

} // namespace OvZel
