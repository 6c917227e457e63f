#pragma once

#include "import/CAnimationImport.h"

#include <zel/IZelHeliodon.h>
#include <zel/IZelLight.h>
#include <zel/IZelLightsGroup.h>

namespace OvZel {

/// Imports lights and heliodons, and what views use of either.
class CLightsImport {
public:
    /// Documents and animation must outlive the import.
    CLightsImport(IZelMgr& destination, IZelMgr& source, CAnimationImport& animation);

    void importLights();
    void importHeliodons();

    /// Each group of the source that the list names: new in the destination, or its name there
    /// follows that of the source.
    void bringGroups(TZelObjectMgr<CZelUUID>& ids);
    /// Copies the heliodon of that name if the destination has none.
    void bringHeliodon(const char* name);

private:
    void bringGroup(const CZelUUID& id);

    IZelMgr& mDestination;
    IZelMgr& mSource;
    CAnimationImport& mAnimation;
    TIdIndex<IZelLightsGroup> mSourceGroups;
    TIdIndex<IZelLightsGroup> mDestinationGroups;
    TNameIndex<IZelHeliodon> mSourceHeliodons;
    TNameIndex<IZelHeliodon> mDestinationHeliodons;
};

} // namespace OvZel
