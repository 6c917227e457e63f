#include "materials/CMultiTextureNode.h"

namespace OvZel {

CMultiTextureNode::CMultiTextureNode(ITCENode* parent, const CMultiTextureNode& source)
    : TTCENode(parent, source), mValues(source.mValues), mSubPartsId(source.mSubPartsId)
{
    CZelSubPart::CopySubPartsMgr(*mSubParts, *source.mSubParts);
}

} // namespace OvZel
