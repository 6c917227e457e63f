#pragma once

#include "import/CAnimationImport.h"

#include <zel/IZelLayer.h>
#include <zel/IZelObjectInstance.h>

#include <map>
#include <utility>

namespace OvZel {

class IZelLayerInfo;

/// Imports object instances with the layers on which they lie, and the ground as a whole.
///
/// An instance takes the place of the one with its identifier on the layer of that name; every
/// other is added.
class CInstancesImport {
public:
    /// Documents and animation must outlive the import.
    CInstancesImport(IZelMgr& destination, IZelMgr& source, CAnimationImport& animation);

    /// Instances of the source are put on the layers of the destination before they are copied:
    /// the source changes too.
    void importInstances();
    /// Nothing happens unless the source's first ground is active.
    void importGround();

private:
    /// Where an instance goes.
    struct CPlace {
        IZelLayer* layer = nullptr;
        bool wasThere = false;
    };

    void importInstance(IZelObjectInstance& source);
    CPlace placeOf(const IZelObjectInstance& source);
    bool isImported(const IZelObjectInstance& source) const;
    IZelObjectInstance* findPartner(const CZelUUID& id, const CZelUUID& layerId);
    void takeDefaults(const CZelUUID& layerId);
    void detach(IZelObjectInstance& copy, const IZelObjectInstance& source) const;
    const CZelUUID& defaultLayerOf(const IZelObjectInstance& copy) const;

    IZelMgr& mDestination;
    IZelMgr& mSource;
    CAnimationImport& mAnimation;
    const IZelLayerInfo& mSourceInfo;
    IZelLayerInfo& mDestinationInfo;
    const bool mIsLevelZero;
    TIdIndex<IZelLayer> mSourceLayers;
    TNameIndex<IZelLayer> mDestinationLayers;
    /// The last instance of the source with each identifier.
    std::map<CZelUUID, IZelObjectInstance*> mLastOfId;
    /// By identifier and layer, the last instance of the destination, as far as it was looked at.
    std::map<std::pair<CZelUUID, CZelUUID>, std::int32_t> mPartners;
    std::int32_t mNbSeen = 0;
};

} // namespace OvZel
