#pragma once

#include <zel/TZelObjectMgr.h>

#include <cstdint>

namespace tool {

/// Hands each element of a list to the operation, with its number.
template <class T, class Operation>
void forEach(OvZel::TZelObjectMgr<T>& list, Operation operation)
{
    for (std::int32_t i = 0; i < list.getNbObjects(); ++i)
        operation(*list.getZelObject(i), i);
}

} // namespace tool
