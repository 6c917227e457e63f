#include "materials/CChessNode.h"

namespace OvZel {

CChessNode::CChessNode(ITCENode* parent, const CChessNode& source)
    : TTCENode(parent, source), mValues(source.mValues)
{
    mTable1->copyFrom(source.getTable1());
    mTable2->copyFrom(source.getTable2());
    mTable3->copyFrom(source.getTable3());
}

} // namespace OvZel
