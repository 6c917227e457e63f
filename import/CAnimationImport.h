#pragma once

#include "import/TMerger.h"

#include <zel/IZel3DPath.h>
#include <zel/IZelScenario.h>

#include <optional>
#include <set>

namespace OvZel {

class IZelMgr;

/// Brings along what is animated of a copied object. Only the first scenario of each document
/// counts.
class CAnimationImport {
public:
    /// Both documents must outlive the import.
    CAnimationImport(IZelMgr& destination, IZelMgr& source);

    /// Merges the animated element of that identifier, with its values and their paths. Nothing
    /// happens when the source has none, also no scenario is made.
    void bring(const CZelUUID& id);

    /// Null when the source has no scenario.
    IZelScenario* sourceScenario() const { return mSourceScenario; }
    /// Made if there is none.
    IZelScenario& destinationScenario();

private:
    struct CChannelOf {
        std::int32_t operator()(IZelInterpolatedValue& value) const { return value.getChannel(); }
    };

    IZelAnimatedElement& destinationElement(const CZelUUID& id);
    void mergeValues(IZelAnimatedElement& destination, IZelAnimatedElement& source);
    void bringPath(const CZelUUID& id);

    IZelMgr& mDestination;
    IZelScenario* mSourceScenario;
    std::optional<TIdIndex<IZelAnimatedElement>> mSourceElements;
    std::optional<TIdIndex<IZelAnimatedElement>> mDestinationElements;
    TIdIndex<IZel3DPath> mSourcePaths;
    TMerger<IZel3DPath, CIdOf> mPaths;
    /// Many values may share a long path; a second copy in one call would be the same.
    std::set<CZelUUID> mBrought;
};

} // namespace OvZel
