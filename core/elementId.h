#pragma once

#include <zel/ZelIdentifiers.h>

namespace OvZel {

/// The identifier that a list of T answers as that of its element type.
template <class T>
const CZelUUID* elementId()
{
    return &T::sIID;
}

template <>
inline const CZelUUID* elementId<double>()
{
    return &ElementId::kDouble;
}

template <>
inline const CZelUUID* elementId<CZelUUID>()
{
    return &ElementId::kZelUUID;
}

} // namespace OvZel
