#include "import/importReference.h"

#include "import/CInstancesImport.h"
#include "import/CMaterialsImport.h"
#include "import/CViewsImport.h"

namespace OvZel {

namespace {

void importInstances(IZelMgr& destination, IZelMgr& source, CAnimationImport& animation)
{
    CInstancesImport instances(destination, source, animation);
    instances.importInstances();
    instances.importGround();
}

void importMaterials(IZelMgr& destination, IZelMgr& source)
{
    CMaterialsImport materials(destination, source);
    materials.importOfInstances();
    materials.importOfDefinitions();
    materials.importOfGround();
}

void importViews(CViewsImport& views, std::int32_t flags)
{
    if (flags & IZelMgr::eImportCameras)
        views.importCameras();
    if (flags & IZelMgr::eImportParallelViews)
        views.importParallelViews();
    if (flags & IZelMgr::eImportViewObjects)
        views.importViewObjects();
    if (flags & IZelMgr::eImportPanoramas)
        views.importPanoramas();
    if (flags & IZelMgr::eImportSequences)
        views.importSequences();
    views.showAllLayers();
}

} // namespace

void importReference(IZelMgr* destination, IZelMgr* source, std::int32_t flags)
{
    OvThrow::IfNULL(destination);
    OvThrow::IfNULL(source);
    if (destination == source)
        return;
    CAnimationImport animation(*destination, *source);
    if (flags & IZelMgr::eImportInstances)
        importInstances(*destination, *source, animation);
    if (flags & IZelMgr::eImportMaterials)
        importMaterials(*destination, *source);
    CLightsImport lights(*destination, *source, animation);
    if (flags & IZelMgr::eImportLights)
        lights.importLights();
    if (flags & IZelMgr::eImportHeliodons)
        lights.importHeliodons();
    // Behind the instances, which may have brought layers along.
    CViewsImport views(*destination, *source, lights, animation);
    importViews(views, flags);
}

} // namespace OvZel
