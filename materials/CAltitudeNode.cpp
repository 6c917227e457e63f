#include "materials/CAltitudeNode.h"

namespace OvZel {

CAltitudeNode::CAltitudeNode(ITCENode* parent, const CAltitudeNode& source)
    : TTCENode(parent, source), mValues(source.mValues), mSubPartsId(source.mSubPartsId)
{
    CZelSubPart::CopySubPartsMgr(*mSubParts, *source.mSubParts);
}

} // namespace OvZel
