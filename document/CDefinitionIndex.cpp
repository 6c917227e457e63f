#include "document/CDefinitionIndex.h"

namespace OvZel {

void CDefinitionIndex::reset()
{
    mPlaces.clear();
    mCount = 0;
}

CZelZelObjectDefinition* CDefinitionIndex::find(const CDefinitionMgr& definitions,
                                                const CZelUUID& id)
{
    // A client's storage is called in the middle of a load and may have removed some.
    if (definitions.size() < mCount)
        reset();
    for (; mCount < definitions.size(); ++mCount)
        mPlaces[*definitions.at(mCount)->getId()] = mCount;
    const auto found = mPlaces.find(id);
    return found != mPlaces.end() ? definitions.at(found->second) : nullptr;
}

} // namespace OvZel
