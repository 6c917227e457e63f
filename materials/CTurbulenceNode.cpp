#include "materials/CTurbulenceNode.h"

namespace OvZel {

CTurbulenceNode::CTurbulenceNode(ITCENode* parent, const CTurbulenceNode& source)
    : TTCENode(parent, source), mValues(source.mValues)
{
    mTable->copyFrom(source.getTable());
}

} // namespace OvZel
