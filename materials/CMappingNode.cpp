#include "materials/CMappingNode.h"

#include "core/CZelMgrRef.h"

namespace OvZel {

CMappingNode::CMappingNode(ITCENode* parent, const CMappingNode& source)
    : TTCENode(parent, source), mLinkedMaps(source.mLinkedMaps), mValues(source.mValues)
{
    mMaps.copyFrom(source.mMaps);
}

const CZelUUID& CMappingNode::getMapLinked(std::int32_t index) const
{
    static constexpr CZelUUID kNull;
    if (index >= 0 && index < getNbLinkedMaps())
        return mLinkedMaps[static_cast<std::size_t>(index)];
    getEnclosingMgr()->warning("CMappingNode::getMapLinked - Invalid index");
    return kNull;
}

void CMappingNode::addLinkedMap(const CZelUUID& id)
{
    if (id.isNull())
        return getEnclosingMgr()->warning("CMappingNode::addLinkedMap - NULL UUID is Invalid");
    mLinkedMaps.push_back(id);
}

void CMappingNode::removeLinkedMap(const CZelUUID&)
{
    getEnclosingMgr()->warning("CMappingNode::removeLinkedMap - Map isn't linked");
}

} // namespace OvZel
