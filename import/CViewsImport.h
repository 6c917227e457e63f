#pragma once

#include "import/CLightsImport.h"

#include <zel/IZelLayer.h>
#include <zel/IZelPanoramaV2.h>
#include <zel/IZelViewInfo.h>

#include <map>
#include <vector>

namespace OvZel {

/// Imports views of every kind: cameras, parallel views, view objects, panoramas and sequences.
///
/// A view names the layers that it shows. Those of the source stand for layers of the same name in
/// the destination.
class CViewsImport {
public:
    /// Takes the layers of both documents as they are now. Documents, lights and animation must
    /// outlive the import.
    CViewsImport(IZelMgr& destination, IZelMgr& source, CLightsImport& lights,
                 CAnimationImport& animation);

    void importCameras();
    void importParallelViews();
    void importViewObjects();
    /// A panorama without nodes is passed over.
    void importPanoramas();
    /// Those of the first scenario; makes one in the destination if only the source has one.
    void importSequences();

    /// When the source has no layers its views cannot say what they show: every view that was
    /// imported, panoramas apart, then shows all layers of the destination.
    void showAllLayers();

private:
    template <class I>
    void importViews(TZelObjectMgr<I>& destination, TZelObjectMgr<I>& source);
    void importPanorama(IZelPanoramaV2& copy, IZelPanoramaV2& source);
    void bringUsed(IZelViewInfo& info);
    void translateLayers(TZelObjectMgr<CZelUUID>& layers) const;

    IZelMgr& mDestination;
    IZelMgr& mSource;
    CLightsImport& mLights;
    CAnimationImport& mAnimation;
    /// From identifiers of the source to those of the destination.
    std::map<CZelUUID, CZelUUID> mLayerTable;
    std::vector<IZelViewInfo*> mImported;
};

} // namespace OvZel
