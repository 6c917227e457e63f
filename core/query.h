#pragma once

#include <zel/IUnknown.h>

namespace OvZel {

/// The one QueryInterface body: an object answers to IID_IUnknown and to the identifier of its
/// family with its main interface pointer.
template <class I>
std::int32_t query(I* object, const CZelUUID& family, const CZelUUID& iid, void** out)
{
    if (out == nullptr)
        return kQueryInvalidArgument;
    if (iid != IID_IUnknown && iid != family) {
        *out = nullptr;
        return kQueryNoInterface;
    }
    *out = object;
    object->AddRef();
    return kQueryOk;
}

} // namespace OvZel
