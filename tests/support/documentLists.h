#pragma once

#include "tests/support/CClientDocument.h"

#include <zel/IZel3DPath.h>
#include <zel/IZelAnimation.h>
#include <zel/IZelBBMgrData.h>
#include <zel/IZelCamera.h>
#include <zel/IZelExternalDefinition.h>
#include <zel/IZelGround.h>
#include <zel/IZelHeliodon.h>
#include <zel/IZelLayer.h>
#include <zel/IZelLight.h>
#include <zel/IZelLightsGroup.h>
#include <zel/IZelObjectInstance.h>
#include <zel/IZelPanoramaV2.h>
#include <zel/IZelParallelView.h>
#include <zel/IZelProperty.h>
#include <zel/IZelScenario.h>
#include <zel/IZelViewObject.h>

#include <functional>
#include <vector>

namespace ZelTest {

/// One list of the document, whatever it holds.
struct CDocumentList {
    const char* section; ///< where it stands in the file
    const char* item;
    std::function<OvZel::IZelObjectMgrBase*(CClientDocument&)> list;
    std::function<const void*(CClientDocument&, std::int32_t)> at;
    std::function<const void*(CClientDocument&)> add;

    std::int32_t size(CClientDocument& document) const { return list(document)->getNbObjects(); }
};

template <class Get>
CDocumentList documentList(const char* section, const char* item, Get get)
{
    return {section, item, [get](CClientDocument& document) { return get(document); },
            [get](CClientDocument& document, std::int32_t index) {
                return get(document)->getZelObject(index);
            },
            [get](CClientDocument& document) { return get(document)->newZelObject(-1); }};
}

/// Those with a section of their own, in the order in which a load reads them.
inline std::vector<CDocumentList> documentLists()
{
    using C = CClientDocument;
    return {
        documentList("Perspective.Views", "Perspective.View",
                     [](C& document) { return document->getCameras(); }),
        documentList("Heliodons", "Heliodon", [](C& document) { return document->getHeliodons(); }),
        documentList("Parallel.Views", "Parallel.View",
                     [](C& document) { return document->getParallelViews(); }),
        documentList("PanoramasV2", "PanoramaV2",
                     [](C& document) { return document->getPanoramas(); }),
        documentList("Animations", "Animation",
                     [](C& document) { return document.more().getAnimations(); }),
        documentList("View.Objects", "View.Object",
                     [](C& document) { return document->getViewObjects(); }),
        documentList("Billboards", "Billboard",
                     [](C& document) { return document.more().getBillboards(); }),
        documentList("Properties", "Property",
                     [](C& document) { return document->getProperties(); }),
        documentList("Lights", "Light", [](C& document) { return document->getLights(); }),
        documentList("Lights.Groups", "Lights.Group",
                     [](C& document) { return document->getLightsGroups(); }),
        documentList("Object.Instances", "Object.Instance",
                     [](C& document) { return document->getObjectInstances(); }),
        documentList("Scenarios", "Scenario", [](C& document) { return document->getScenarios(); }),
        documentList("Paths.3D", "Path.3D", [](C& document) { return document->get3DPaths(); }),
        documentList("Grounds", "Ground", [](C& document) { return document->getGrounds(); }),
        documentList("Layers", "Layer", [](C& document) { return document->getLayers(); }),
        documentList("ExternalDefinitions", "External.Definition",
                     [](C& document) { return document->getExternalDefinitions(); }),
    };
}

} // namespace ZelTest
