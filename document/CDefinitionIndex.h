#pragma once

#include "core/TObject2Mgr.h"
#include "objects/CZelZelObjectDefinition.h"

#include <map>

namespace OvZel {

using CDefinitionMgr = TObject2Mgr<CZelZelObjectDefinition, IZelZelObjectDefinition>;

/// Finds definitions by identifier while a load or save runs.
///
/// Each mesh block asks for its definition, and a walk over the list each time would let a small
/// file keep the library busy for hours. Between two operations clients change list and identifiers
/// as they like, so each operation starts with reset.
class CDefinitionIndex {
public:
    void reset();
    /// The last definition that has the identifier, or null. Sees those appended since the last
    /// call.
    CZelZelObjectDefinition* find(const CDefinitionMgr& definitions, const CZelUUID& id);

private:
    std::map<CZelUUID, std::int32_t> mPlaces;
    std::int32_t mCount = 0;
};

} // namespace OvZel
