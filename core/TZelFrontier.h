#pragma once

#include "core/obsoleteSlot.h"

namespace OvZel {

/// The safety margin at the end of an interface: three slots in which a client lands that was built
/// against a newer interface than this library has.
///
/// Whatever overrides an operation of a second base must stand in a class derived from this one,
/// since such an override takes a slot of its own behind those of the class that declares it.
template <class I>
class TZelFrontier : public I {
public:
    virtual void obsolete1() { obsoleteSlot(); }
    virtual void obsolete2() { obsoleteSlot(); }
    virtual void obsolete3() { obsoleteSlot(); }

protected:
    ~TZelFrontier() = default;
};

} // namespace OvZel
