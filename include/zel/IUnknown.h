#pragma once

#include <zel/CZelUUID.h>
#include <zel/ZelExport.h>

#include <cstdint>

namespace OvZel {

/// 00000000-0000-0000-C000-000000000046 in memory order; every counted object answers to it.
extern ZEL_API const CZelUUID IID_IUnknown;

/// Result of QueryInterface: the interface was given.
inline constexpr std::int32_t kQueryOk = 0;
/// Result of QueryInterface: the object has no such interface.
inline constexpr std::int32_t kQueryNoInterface = static_cast<std::int32_t>(0x80004002u);
/// Result of QueryInterface: there was no place for the interface.
inline constexpr std::int32_t kQueryInvalidArgument = static_cast<std::int32_t>(0x80070057u);

/// The root of every counted interface.
///
/// The three operations may be called from any thread. The count cannot be observed: AddRef and
/// Release always return 1.
class IUnknown {
public:
    /// Asks for an interface. With a null out nothing happens (kQueryInvalidArgument). An accepted
    /// identifier puts the object's main interface pointer into *out with one more reference
    /// (kQueryOk); any other puts null there (kQueryNoInterface). An object answers to
    /// IID_IUnknown and to the identifier of its family, not to that of its own interface.
    virtual std::int32_t QueryInterface(const CZelUUID& iid, void** out) = 0;
    /// Takes one more reference, to be given back by Release.
    virtual std::uint32_t AddRef() = 0;
    /// Gives a reference back; the last one destroys the object on the calling thread.
    virtual std::uint32_t Release() = 0;

protected:
    ~IUnknown() = default;
};

} // namespace OvZel
