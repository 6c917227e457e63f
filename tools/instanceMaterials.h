#pragma once

#include <zel/IZelMgr.h>

namespace tool {

/// Hands the lists of materials of an instance to the operation: its own and those of its class.
template <class Operation>
void forEachMaterialList(OvZel::IZelObjectInstance& instance, Operation operation)
{
    operation(*instance.getProperties());
    if (OvZel::IZelZelObjectInstance* placed = instance.asZelObjectInstance())
        operation(*placed->getProperties());
    if (OvZel::IZelInternalComponentInstance* component = instance.asInternalComponentInstance())
        operation(*component->getProperties());
    if (OvZel::IZelBBObjectInstance* billboard = instance.asBBObjectInstance())
        operation(*billboard->getOverloadedProperties());
    if (OvZel::IZelAnimatedObjectInstance* animated = instance.asAnimatedObjectInstance())
        operation(*animated->getOverloadedProperties());
}

} // namespace tool
