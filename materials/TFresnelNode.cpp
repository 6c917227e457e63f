#include "materials/TFresnelNode.h"

#include "core/CZelMgrRef.h"

#include <zel/IFresnelDiffuseNode.h>
#include <zel/IFresnelNode.h>

namespace OvZel {

template <class I>
void TFresnelNode<I>::setMinReflection(double value)
{
    mMinReflection = kMinReflection.clip(value);
    // Both nodes report under one name.
    if (!(value >= kMinReflection.lowest))
        this->getEnclosingMgr()->warning("IFresnelNode::setMinReflection - Value is lower than 0");
    else if (value > kMinReflection.highest)
        this->getEnclosingMgr()->warning(
            "IFresnelNode::setMinReflection - Value is higer than 1"); // (sic)
}

template void TFresnelNode<IFresnelNode>::setMinReflection(double);
template void TFresnelNode<IFresnelDiffuseNode>::setMinReflection(double);

} // namespace OvZel
