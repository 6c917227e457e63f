#include "materials/CWangTilesNode.h"

namespace OvZel {

CWangTilesNode::CWangTilesNode(ITCENode* parent, const CWangTilesNode& source)
    : TTCENode(parent, source), mValues(source.mValues), mSubPartsId(source.mSubPartsId)
{
    CZelMultiMaps::CopyMultiMapsMgr(*mTiles, *source.mTiles);
}

} // namespace OvZel
